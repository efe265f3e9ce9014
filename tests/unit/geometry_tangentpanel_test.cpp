// Circles tangent to two lines on the form, and the lists of pairs.
#include "geometry/tangentpanel.h"

#include "form17fixture.h"
#include "geometryrecords.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

using Texts = std::vector<std::string>;

class Tangent : public Form17Test {
protected:
    void RightAngle() {
        Tool("Line");
        PlaceLine("-1", "-1", "1", "1");
        PlaceLine("-1", "1", "1", "-1");
        Tool("CircTan");
    }
    void Enter(const std::string& size) {
        form->Frame8.Text4.Text(size);
        form->Command1.Value(true);
    }
    [[nodiscard]] std::vector<std::string> Lines() const { return form->Work.Live().Lines(); }
    [[nodiscard]] Texts Captions() {
        Texts captions;
        for (const CommandButton* const button : form->Frame8.KeepButtons()) {
            captions.push_back(button->Caption());
        }
        return captions;
    }
};

const std::string RightAnglePair = PairText(" 1 ", " 2 ", " 0", " 0");

TEST_F(Tangent, FourCirclesInARightAngle) {
    RightAngle();
    EXPECT_EQ(form->Frame8.Combo1.List(), Texts{RightAnglePair});
    EXPECT_EQ(form->ActiveControl(), &form->Frame8.Text4);
    Enter("1");
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(Captions(), (Texts{" 3", " 4", " 5", " 6"}));
    const std::vector<std::string> lines = Lines();
    ASSERT_EQ(lines.size(), 6U);
    // Half the diameter over the sine of half the angle, down, up, right, left; tangent half an inch along the lines.
    const double far = std::sqrt(.5);
    const double foot = std::sqrt(.125);
    const Position centres[] = {{0, -far}, {0, far}, {far, 0}, {-far, 0}};
    for (std::size_t i = 0; i < 4; ++i) {
        const Record circle = ReadRecord(lines[i + 2]);
        EXPECT_EQ(circle.Shape, Kind::Circle);
        EXPECT_EQ(circle.Diameter(), 1);
        EXPECT_NEAR(circle.Centre().X, centres[i].X, 1e-12);
        EXPECT_NEAR(circle.Centre().Y, centres[i].Y, 1e-12);
        const Partners partners = PartnersOf(lines[i + 2]);
        EXPECT_EQ(partners.First, 1);
        EXPECT_EQ(partners.Second, 2);
        const Tangency tangency = TangencyOf(lines[i + 2]);
        EXPECT_NEAR(std::fabs(ValueOf(tangency.X1)), foot, 1e-12);
        EXPECT_NEAR(ValueOf(tangency.X1), ValueOf(tangency.Y1), 1e-12) << "on the rising line";
        EXPECT_NEAR(ValueOf(tangency.X2), -ValueOf(tangency.Y2), 1e-12) << "on the falling line";
    }
    EXPECT_EQ(form->Work.Entities.CircleTop, 16);
    EXPECT_EQ(form->Work.Entities.EntNum, 6);
}

TEST_F(Tangent, NoCirclesAreMadeOfAStoreThatCanNotBeRead) {
    RightAngle();
    std::filesystem::remove(folder.Path() / "geometry.dat");
    std::filesystem::create_directory(folder.Path() / "geometry.dat");
    Enter("1");
    EXPECT_EQ(form->Work.Entities.CircleTop, 0);
    EXPECT_EQ(form->Frame8.Combo1.List(), Texts{});
    EXPECT_TRUE(Messages().empty());
}

TEST_F(Tangent, TheRadiiAreDrawnToBothLines) {
    RightAngle();
    Enter("1");
    EXPECT_EQ(Count(DrawKind::Line, {255, 0, 0}), 4);
    EXPECT_EQ(Count(DrawKind::Line, {0, 0, 0}), 4);
    EXPECT_EQ(Count(DrawKind::Circle, ink::Plain), 4);
    form->Frame8.Command17.Value(true);
    EXPECT_EQ(Count(DrawKind::Line, {255, 0, 0}), 0);
    EXPECT_EQ(Count(DrawKind::Circle, ink::Plain), 1);
}

TEST_F(Tangent, ARadiusCountsWhole) {
    RightAngle();
    form->Frame8.Option8.Value(true);
    Enter(".25");
    EXPECT_EQ(ReadRecord(Lines().back()).Diameter(), .5);
}

TEST_F(Tangent, SizesAreHeldToOneBound) {
    RightAngle();
    for (const bool radius : {false, true}) {
        (radius ? form->Frame8.Option8 : form->Frame8.Option7).Value(true);
        Enter(".0019");
        EXPECT_EQ(Messages(), Texts{"No Diameter less than .002 Allowed!"});
        EXPECT_EQ(form->Frame8.Text4.Text(), "");
        EXPECT_EQ(Lines().size(), 2U);
    }
    Enter(".002");
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(Lines().size(), 6U);
}

TEST_F(Tangent, ThirteenCirclesAreTooMany) {
    for (int i = 0; i < 9; ++i) {
        PlaceCircle("0", "0", "1");
    }
    RightAngle();
    Enter("1");
    EXPECT_EQ(Messages(),
              Texts{"Sorry. Only 12 Circles Can Be Created!\r\nThis Operation Would\r\n Require  13 Circles."});
    EXPECT_EQ(form->Frame8.Text4.Text(), "");
    EXPECT_EQ(form->Work.Entities.CircleTop, 36);
}

TEST_F(Tangent, EveryRefreshActsWhileASizeIsEntered) {
    RightAngle();
    form->Frame8.Text4.Text("1");
    Tool("Line");
    PlaceLine("-2", "-1", "-2", "1");
    EXPECT_EQ(Lines().size(), 7U);
    EXPECT_EQ(form->Frame8.Text4.Text(), "");
    EXPECT_TRUE(form->Command13.IsUsable());
    EXPECT_EQ(Captions(), (Texts{" 4", " 5", " 6", " 7"}));
}

TEST_F(Tangent, TheCopyOfTheLinesGoesAfterEveryRefresh) {
    RightAngle();
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "aaaa.tmp"));
    Enter("");
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "aaaa.tmp"));
    Enter(".001");
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "aaaa.tmp"));
    Enter("1");
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "aaaa.tmp"));
}

TEST_F(Tangent, ASizeBeyondAllNumbersEndsNothing) {
    RightAngle();
    for (const std::string size : {"1E308", "1E400", "99999999999999999999999999", ".", "-1"}) {
        form->Frame8.Option8.Value(true);
        Enter(size);
        EXPECT_FALSE(program.Ended());
        form->Command3.Value(true);
        form->Frame8.Text4.Text("");
    }
    EXPECT_EQ(Lines().size(), 2U);
}

TEST_F(Tangent, AListFallsToItsFirstItemWhereTheChosenOneWent) {
    Tool("Line");
    PlaceLine("-1", "-1", "1", "1");
    PlaceLine("-1", "1", "1", "-1");
    PlaceLine("1", "-1", "1", "1");
    Tool("CircTan");
    ComboBox& list = form->Frame8.Combo1;
    ASSERT_EQ(list.ListCount(), 3);
    list.ListIndex(2);
    Tool("CircTan");
    EXPECT_EQ(list.ListIndex(), 2);
    folder.Put("geometry.dat", LineLine(1, "-1", "-1", "1", "1") + "\r\n" + LineLine(2, "-1", "1", "1", "-1") + "\r\n");
    Tool("CircTan");
    EXPECT_EQ(list.Text(), RightAnglePair);
    folder.Put("geometry.dat", "");
    Tool("CircTan");
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.Text(), "");
}

TEST_F(Tangent, AWarningOfCirclesThatMiss) {
    Tool("Line");
    PlaceLine("-1", "0", "1", "0");
    PlaceLine("-1", "-1", "1", "1");
    Tool("CircTan");
    Enter("1");
    EXPECT_TRUE(form->Label35.Visible());
    form->Command3.Value(true);
    EXPECT_FALSE(form->Label35.Visible());
    form->ExactTan.FireClick();
    Enter("1");
    EXPECT_FALSE(form->Label35.Visible());
    for (const std::string& line : Lines()) {
        if (KindOf(line) == Kind::Circle) {
            const Position centre = ReadRecord(line).Centre();
            EXPECT_NEAR(std::fabs(centre.Y), .5, 1e-9) << "from the level line";
            EXPECT_NEAR(std::fabs(centre.X - centre.Y) / std::sqrt(2.0), .5, 1e-9) << "from the rising line";
        }
    }
}

TEST_F(Tangent, ALineThatGoesTakesItsSideOfTheTail) {
    RightAngle();
    Enter("1");
    form->Frame8.Command18.Value(true);
    std::vector<std::string> lines = Lines();
    ASSERT_EQ(lines.size(), 3U);
    const Tangency whole = TangencyOf(lines[2]);
    folder.Put("geometry.dat", lines[1] + "\r\n" + lines[2] + "\r\n");
    ASSERT_TRUE(form->Work.Live().CheckTangents());
    lines = Lines();
    const Partners partners = PartnersOf(lines[1]);
    EXPECT_EQ(partners.First, 0);
    EXPECT_EQ(partners.Second, 2);
    const Tangency left = TangencyOf(lines[1]);
    EXPECT_FALSE(left.First);
    EXPECT_TRUE(left.Second);
    EXPECT_EQ(left.X2, whole.X2);
    EXPECT_EQ(left.Y2, whole.Y2);
}

}  // namespace
}  // namespace brindlex::geometry
