// Placing circles, lines and points by typed values.
#include "geometry/createpanel.h"

#include "form17fixture.h"
#include "geometryrecords.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

class Create : public Form17Test {
protected:
    [[nodiscard]] std::string Drawing() const { return folder.Get("geometry.dat"); }
};

TEST_F(Create, ACircleIsInTheStoreTheArraysAndThePicture) {
    PlaceCircle("1.50", "-.25", "2");
    EXPECT_EQ(Drawing(), CircleLine(1, " 2", "1.50", "-.25") + End);
    const Board& board = form->Work.Entities;
    EXPECT_EQ(board.CircleTop, 4);
    EXPECT_EQ(board.EntNum, 1);
    EXPECT_NEAR(board.CircleArr[0], 1.5 + 2.2375, 1e-12);
    EXPECT_NEAR(board.CircleArr[1], -.25 - 1.1958335, 1e-12);
    EXPECT_EQ(board.CircleArr[2], 1);
    EXPECT_EQ(board.CircleArr[3], 1);
    EXPECT_EQ(Count(DrawKind::Circle, ink::Plain), 1);
    EXPECT_TRUE(Messages().empty());
}

TEST_F(Create, ATypedRadiusIsStoredAsADiameter) {
    form->Frame1.Check2.Value(1);
    EXPECT_EQ(form->Frame1.Label4.Caption(), "Radius:");
    PlaceCircle("0", "0", "1.25");
    EXPECT_EQ(Drawing(), CircleLine(1, " 2.5", "0", "0") + End);
}

struct Refusal {
    const char* X;
    const char* Y;
    const char* Size;
    const char* Message;
    int Style;
    const char* Focus;
    const char* SizeAfter;
};

TEST_F(Create, ACircleIsRefusedInThisOrder) {
    const Refusal refusals[] = {
        {"", "", "", "What is the Diameter?", 32, "Text3", ""},
        {"", "", "0.0", "What is the Diameter?", 32, "Text3", ""},
        {"1", "1", ".", "What is the Diameter?", 32, "Text3", ""},
        {"", "", "2.", "The Form Has Not Been Completed#", 16, "Text3", ""},
        {"", "", ".001", "Where is X located?", 32, "Text1", ".001"},
        {"1.", "", "1", "Where is X located?", 32, "Text1", "1"},
        {"1", "-", "1", "Where is Y located?", 32, "Text2", "1"},
        {"1", ".5", ".0019", "No Diameter less than .002 Allowed!", 48, "Text3", ""},
    };
    for (const Refusal& each : refusals) {
        PlaceCircle(each.X, each.Y, each.Size);
        ASSERT_EQ(run.Boxes.size(), 1U) << each.Message;
        EXPECT_EQ(run.Boxes.front().Text, each.Message);
        EXPECT_EQ(run.Boxes.front().Style, each.Style);
        EXPECT_EQ(run.Boxes.front().Caption, "Brindlex");
        ASSERT_NE(form->ActiveControl(), nullptr);
        EXPECT_EQ(form->ActiveControl()->Name(), each.Focus);
        EXPECT_EQ(form->Frame1.Text3.Text(), each.SizeAfter);
        run.Boxes.clear();
    }
    EXPECT_EQ(run.Beeps, 8);
    EXPECT_EQ(form->Work.Entities.EntNum, 0);
    EXPECT_EQ(Drawing(), "");
    EXPECT_FALSE(form->RemoveIt.Enabled());
}

TEST_F(Create, ANumberBeyondADoubleIsNoDiameter) {
    PlaceCircle("0", "0", "1e400");
    EXPECT_EQ(Messages(), (std::vector<std::string>{"What is the Diameter?"}));
}

TEST_F(Create, ALineAndAPointAreStoredAsTyped) {
    Tool("Line");
    PlaceLine("0", "-0.50", ".25", "1.0");
    Tool("Point");
    PlacePoint("007", "-.5");
    EXPECT_EQ(Drawing(), LineLine(1, "0", "-0.50", ".25", "1.0") + End + PointLine(2, "007", "-.5") + End);
    EXPECT_EQ(form->Work.Entities.PointArr[2], 2);
}

TEST_F(Create, ChainedLinesJoinTextForText) {
    Tool("Line");
    form->Frame2.Text6.Text("0");
    form->Frame2.Text7.Text("0");
    form->Frame2.Check1.Value(1);
    PlaceLine("0", "0", "1.50", "02");
    EXPECT_EQ(form->Frame2.Text6.Text(), "1.50");
    EXPECT_EQ(form->Frame2.Text7.Text(), "02");
    EXPECT_EQ(form->Frame2.Text8.Text(), "");
    EXPECT_EQ(form->Frame2.Text9.Text(), "");
    EXPECT_EQ(form->ActiveControl(), &form->Frame2.Text8);
}

TEST_F(Create, EntriesTakeNoMoreThanTheirField) {
    for (TextBox* const box : {&form->Frame1.Text1, &form->Frame1.Text2, &form->Frame1.Text3, &form->Frame2.Text6,
                               &form->Frame2.Text9, &form->Frame3.Text10, &form->Frame3.Text11, &form->Frame8.Text4}) {
        EXPECT_EQ(box->MaxLength(), 27) << box->Name();
    }
}

TEST_F(Create, TheLimitsComeFirstAndClearTheEntries) {
    for (int i = 0; i < 12; ++i) {
        PlaceCircle("0", "0", "1");
    }
    EXPECT_TRUE(Messages().empty());
    PlaceCircle("1", "", "");
    EXPECT_EQ(Messages(), (std::vector<std::string>{"Sorry. Only 12 Circles Can Be Created!"}));
    EXPECT_EQ(form->Frame1.Text1.Text(), "");
    Tool("Line");
    for (int i = 0; i < 14; ++i) {
        PlaceLine("0", "0", "1", "1");
    }
    EXPECT_TRUE(Messages().empty());
    PlaceLine("1", "", "", "");
    EXPECT_EQ(Messages(), (std::vector<std::string>{"Sorry. Only 14 Lines Can Be Created!"}));
    EXPECT_EQ(form->Frame2.Text6.Text(), "");
    Tool("Point");
    for (int i = 0; i < 14; ++i) {
        PlacePoint("0", "0");
    }
    EXPECT_TRUE(Messages().empty());
    PlacePoint("1", "");
    EXPECT_EQ(Messages(), (std::vector<std::string>{"Sorry. Only 14 Points Can Be Created!"}));
    EXPECT_EQ(form->Frame3.Text10.Text(), "");
    EXPECT_EQ(form->Work.Entities.EntNum, 40);
}

TEST_F(Create, TheNumberOfADeletedHighestEntityIsGivenOutAgainAfterAReload) {
    PlaceCircle("0", "0", "1");
    PlaceCircle("1", "0", "1");
    folder.Put("geometry.dat", CircleLine(1, " 1", "0", "0") + End);
    EXPECT_EQ(form->Work.Entities.EntNum, 2);
    Tool("Zoom");
    EXPECT_EQ(form->Work.Entities.EntNum, 1);
}

}  // namespace
}  // namespace brindlex::geometry
