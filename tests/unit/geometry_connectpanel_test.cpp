// Connecting two entities on the form: what the boxes name, what a click takes, what is refused.
#include "geometry/connectpanel.h"

#include "form17fixture.h"
#include "geometryrecords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

namespace brindlex::geometry {
namespace {

using Texts = std::vector<std::string>;

class Connecting : public Form17Test {
protected:
    void TwoCircles() {
        PlaceCircle("-1", "0", "1");
        PlaceCircle("1", "0", "1");
        Tool("Connect");
    }
    void Name(int option, const std::string& number) {
        const auto index = static_cast<std::size_t>(option - 1);
        form->Frame4.Options()[index]->Value(true);
        form->Frame4.Boxes()[index]->Text(number);
    }
    void ClickRight(double x, double y) {
        Move(x, y);
        Down(x, y, RightButton);
        form->Picture1.Fire(form->Picture1.MouseUp, "MouseUp", OnPicture(x, y, RightButton));
    }
    [[nodiscard]] Texts Captions() {
        Texts captions;
        for (const CommandButton* const button : form->Frame4.KeepButtons()) {
            captions.push_back(button->IsUsable() ? button->Caption() : "-");
        }
        return captions;
    }
    [[nodiscard]] std::vector<std::string> Lines() const { return form->Work.Live().Lines(); }
    [[nodiscard]] ConnectPanel& Panel() { return form->Frame4; }
};

TEST_F(Connecting, TheToolIsThereFromTwoEntitiesOn) {
    PlaceCircle("0", "0", "1");
    EXPECT_FALSE(form->Toolbar1.Buttons("Connect").Enabled);
    PlaceCircle("0", "0", "1");
    EXPECT_TRUE(form->Toolbar1.Buttons("Connect").Enabled);
}

TEST_F(Connecting, ByNumberTheButtonsShowTheNumbersOfTheNewLines) {
    TwoCircles();
    Name(1, "1");
    Name(4, "2");
    form->Command1.Value(true);
    EXPECT_EQ(Captions(), (Texts{" 3", " 4", " 5", " 6"}));
    EXPECT_EQ(form->Work.Entities.LineTop, 20);
    EXPECT_EQ(form->Work.Entities.EntNum, 6);
    EXPECT_TRUE(form->Command13.IsUsable());
    EXPECT_TRUE(form->Command3.IsUsable());
    EXPECT_EQ(form->Command8.Caption(), " 3") << "the copies follow";
    EXPECT_FALSE(form->Command8.Visible());
    EXPECT_EQ(Count(DrawKind::Circle, ink::Named), 2) << "named entities are green";
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "aaaa.tmp"));
}

TEST_F(Connecting, TheCoordinatesInTheArraysAreThoseOfThePicture) {
    PlaceCircle("0", "0", "1");
    Tool("Point");
    PlacePoint("-1", ".5");
    PlacePoint("1", "-.5");
    Tool("Connect");
    Name(3, "2");
    Name(6, "3");
    form->Command1.Value(true);
    const Board& board = form->Work.Entities;
    EXPECT_NEAR(board.LineArr[0], -1 + 2.2375, 1e-12);
    EXPECT_NEAR(board.LineArr[1], .5 - 1.1958335, 1e-12);
    EXPECT_NEAR(board.LineArr[2], 1 + 2.2375, 1e-12);
    EXPECT_NEAR(board.LineArr[3], -.5 - 1.1958335, 1e-12);
    EXPECT_EQ(board.LineArr[4], 4);
    EXPECT_EQ(Captions(), (Texts{"-", "-", "-", "-"})) << "one line between points is not asked about";
}

TEST_F(Connecting, ByClicksOnePointToAnotherIsAskedAbout) {
    Tool("Point");
    PlacePoint("-1", ".5");
    PlacePoint("1", "-.5");
    Tool("Connect");
    ClickRight(-1, .5);
    EXPECT_EQ(form->Work.Pass.Pick.Stage, 1);
    EXPECT_FALSE(form->Command1.Visible());
    ClickRight(1, -.5);
    EXPECT_EQ(form->Work.Pass.Pick.Stage, 0);
    EXPECT_EQ(Captions(), (Texts{" 3", "-", "-", "-"}));
    for (const TextBox* const box : Panel().Boxes()) {
        EXPECT_TRUE(box->Locked());
    }
}

TEST_F(Connecting, TheLinesOfASecondPickAreDrawnInTheSamePass) {
    TwoCircles();
    ClickRight(-1, .5);
    Down(.9, .1, RightButton);
    Move(1.1, -.1, RightButton);
    EXPECT_EQ(Panel().LinesMade(), 4);
    EXPECT_EQ(Count(DrawKind::Line, ink::Plain), 4);
}

TEST_F(Connecting, ADragTakesOneEntityAndNamesItOnce) {
    TwoCircles();
    Down(-1.2, .2, RightButton);
    for (const double x : {-.8, -.6, 1.2}) {
        Move(x, -.2, RightButton);
    }
    Up(1.2, -.2, RightButton);
    EXPECT_EQ(Panel().Text12.Text(), " 1");
    EXPECT_EQ(Panel().Text15.Text(), "");
    EXPECT_TRUE(Messages().empty());
}

TEST_F(Connecting, ItselfIsRefusedOnceAClickAndAnotherMayFollowInTheSameDrag) {
    TwoCircles();
    ClickRight(-1, .5);
    Down(-1.2, .2, RightButton);
    Move(-.8, -.2, RightButton);
    Move(-.7, -.3, RightButton);
    EXPECT_EQ(Messages(), (Texts{"Can't Connect an Entity to It's Self"}));
    EXPECT_EQ(form->Work.Pass.Pick.Stage, 1);
    Move(1.2, -.2, RightButton);
    EXPECT_EQ(Panel().Text15.Text(), " 2");
    EXPECT_EQ(Panel().LinesMade(), 4);
}

TEST_F(Connecting, AMessageThatSwallowsTheEndOfADragLeavesNothingPicking) {
    TwoCircles();
    ClickRight(-1, .5);
    Down(-1.2, .2, RightButton);
    Move(-.8, -.2, RightButton);
    Move(1, .5);
    EXPECT_FALSE(form->Work.Pass.View.Picking);
    EXPECT_EQ(Panel().Text15.Text(), "");
}

TEST_F(Connecting, TheSameWordsForEachWrongNumber) {
    PlaceCircle("0", "0", "1");
    Tool("Line");
    PlaceLine("0", "0", "1", "1");
    Tool("Point");
    PlacePoint("1", "-.5");
    Tool("Connect");
    const std::vector<std::tuple<int, std::string, std::string>> cases{
        {1, "2", "Entity  2 Is A Line."},   {1, "3", "Entity  3 Is A Point."},    {1, "7", "Entity  7 Does Not Exist."},
        {2, "1", "Entity  1 Is A Circle."}, {2, "3", "Entity  3 Is A Point."},    {3, "2", "Entity  2 Is A Line."},
        {3, "1", "Entity  1 Is A Circle."}, {1, "0", "Entity  0 Does Not Exist."}};
    for (const auto& [option, number, message] : cases) {
        Name(option, number);
        Name(option == 3 ? 4 : 6, option == 3 ? "1" : "3");
        form->Command1.Value(true);
        EXPECT_EQ(Messages(), Texts{message});
        EXPECT_EQ(form->ActiveControl(), Panel().Boxes()[static_cast<std::size_t>(option - 1)]);
    }
    EXPECT_EQ(Lines().size(), 3U);
}

TEST_F(Connecting, TheFirstBoxOfThePairTakesTheFocus) {
    TwoCircles();
    Name(1, "2");
    Name(4, "2");
    form->Command1.Value(true);
    EXPECT_EQ(Messages(), (Texts{"Can Not Connect an Entity To It's Self."}));
    EXPECT_EQ(form->ActiveControl(), &Panel().Text12);
}

TEST_F(Connecting, FourteenLinesAndEighteenInTheMessage) {
    Tool("Point");
    PlacePoint("0", "0");
    PlacePoint("1", "1");
    Tool("Line");
    for (int i = 0; i < 14; ++i) {
        PlaceLine("0", "0", "1", ".5");
    }
    Tool("Connect");
    Name(3, "1");
    Name(6, "2");
    form->Command1.Value(true);
    EXPECT_EQ(Messages(),
              (Texts{"Sorry. Only 14 Lines Can Be Created.\r\nThis Operation Would Require\r\n 18 Lines."}));
    EXPECT_TRUE(form->Command1.IsUsable());
    EXPECT_FALSE(Panel().Option3.Value());
    EXPECT_EQ(Panel().Text14.Text(), "");
}

TEST_F(Connecting, AnOverfullBoardRefusesAClick) {
    std::string store;
    for (int i = 1; i <= 13; ++i) {
        store += CircleLine(i, " 1", "0", "0") + End;
    }
    PlaceCircle("0", "0", "1");
    PlaceCircle("0", "0", "1");
    folder.Put("geometry.dat", store);
    form->Work.ReDraw();
    Tool("Connect");
    ClickRight(0, .5);
    EXPECT_EQ(Messages(), (Texts{"Sorry. Only 12 Circles Can Be Created!"}));
    EXPECT_EQ(form->Work.Pass.Pick.Stage, 0);
    EXPECT_EQ(Panel().Text12.Text(), "");
    EXPECT_TRUE(form->Command1.IsUsable());
}

TEST_F(Connecting, AStoreThatCanNotBeReadEndsNothing) {
    TwoCircles();
    Name(1, "1");
    Name(4, "2");
    std::filesystem::remove(folder.Path() / "geometry.dat");
    std::filesystem::create_directory(folder.Path() / "geometry.dat");
    form->Command1.Value(true);
    form->Command3.Value(true);
    EXPECT_FALSE(program.Ended());
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(form->Work.Entities.LineTop, 0);
    EXPECT_FALSE(form->Command13.Visible());
}

TEST_F(Connecting, OnTheFormEveryLineTouchesBothCirclesUnderExactTangents) {
    form->ExactTan.FireClick();
    EXPECT_TRUE(form->ExactTan.Checked());
    PlaceCircle("0", "-.6", "1");
    PlaceCircle("0", ".6", ".5");
    Tool("Connect");
    Name(1, "1");
    Name(4, "2");
    form->Command1.Value(true);
    EXPECT_FALSE(form->Label35.Visible());
    const std::vector<std::string> lines = Lines();
    ASSERT_EQ(lines.size(), 6U);
    for (std::size_t i = 2; i < lines.size(); ++i) {
        const Segment line = ReadRecord(lines[i]).Ends();
        const double dx = line.End.X - line.Start.X;
        const double dy = line.End.Y - line.Start.Y;
        // Twice the triangle's area over its base is its height: the distance of the centre.
        const auto distance = [&](double y) {
            return std::fabs(dx * (y - line.Start.Y) - dy * (0 - line.Start.X)) / std::hypot(dx, dy);
        };
        EXPECT_NEAR(distance(-.6), .5, 1e-9);
        EXPECT_NEAR(distance(.6), .25, 1e-9);
    }
}

TEST_F(Connecting, TheWarningStandsUntilTheCandidatesAreKeptOrCancelled) {
    PlaceCircle("0", "-.6", "1");
    PlaceCircle("0", ".6", ".5");
    Tool("Connect");
    for (CommandButton* const decide : {&Panel().Command4, &form->Command13, &form->Command3}) {
        Name(1, "1");
        Name(4, "2");
        form->Command1.Value(true);
        EXPECT_TRUE(form->Label35.IsShown());
        EXPECT_EQ(form->Label35.Caption(), "Not every line touches. See Exact Tangents.");
        decide->Value(true);
        EXPECT_FALSE(form->Label35.Visible());
        EXPECT_TRUE(form->Label11.Visible());
    }
}

}  // namespace
}  // namespace brindlex::geometry
