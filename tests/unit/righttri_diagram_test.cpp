// The sketch of the right triangle, item by item.
#include "drawingtext.h"
#include "fakeruntime.h"
#include "faultof.h"
#include "frame/program.h"
#include "righttri/diagram.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace brindlex::righttri {
namespace {

using Lines = std::vector<std::string>;

class RightTriangleDiagram : public ::testing::Test {
protected:
    DrivenRun run;
    FakeRuntime runtime{run};
    Program program{runtime, Folder(".")};
    Form form{program, "Sheet", 7296, 5436};
    PictureBox picture{form, "Picture1", {360, 1560, 6612, 3612}};
};

const Lines Sketch{
    "line 1600 2750 1600 600 blue",
    "line 1600 600 3750 2750 blue",
    "line 3750 2750 1600 2750 blue",
};

// A and b, c as given: side b and side c.
const KnownParts LegsKnown = KnownFrom("Length of side b", "Length of side c");

TEST_F(RightTriangleDiagram, SketchIsDrawnFromCornerARound) {
    DrawTriangle(picture);
    EXPECT_EQ(DrawingText(picture), Sketch);
    EXPECT_TRUE(picture.AutoRedraw());
    EXPECT_EQ(picture.CurrentX(), 1600);
    EXPECT_EQ(picture.CurrentY(), 2750);
}

TEST_F(RightTriangleDiagram, SketchIsWipedInWhite) {
    DrawTriangle(picture, White);
    EXPECT_EQ(DrawingText(picture), (Lines{"line 1600 2750 1600 600 white", "line 1600 600 3750 2750 white",
                                           "line 3750 2750 1600 2750 white"}));
}

TEST_F(RightTriangleDiagram, KnownPartsFollowTheLabels) {
    using Row = KnownParts;
    // A, B, C, a, b, c
    EXPECT_EQ(KnownFrom("Length of side a", "Length of side b"), (Row{true, false, false, true, true, false}));
    EXPECT_EQ(KnownFrom("Length of side a", "Length of side c"), (Row{true, false, false, true, false, true}));
    EXPECT_EQ(KnownFrom("Length of side b", "Length of side c"), (Row{true, false, false, false, true, true}));
    EXPECT_EQ(KnownFrom("Length of side a", "Angle B"), (Row{true, true, false, true, false, false}));
    EXPECT_EQ(KnownFrom("Length of side b", "Angle B"), (Row{true, true, false, false, true, false}));
    EXPECT_EQ(KnownFrom("Length of side c", "Angle C"), (Row{true, false, true, false, false, true}));
    EXPECT_EQ(KnownFrom("", ""), (Row{true, false, false, false, false, false}));
}

TEST_F(RightTriangleDiagram, LettersStandAtTheirCornersAndSides) {
    PlaceLetters(picture, KnownFrom("Length of side a", "Length of side b"));
    EXPECT_EQ(DrawingText(picture),
              (Lines{"text A 1500 2750 red bold", "text B 1500 400 black", "text C 3750 2750 black",
                     "text c 1450 1575 black", "text b 2575 2750 red bold", "text a 2675 1475 red bold"}));
}

TEST_F(RightTriangleDiagram, KnownAnglesAreBoldRedToo) {
    PlaceLetters(picture, KnownFrom("Length of side c", "Angle B"));
    EXPECT_EQ(DrawingText(picture),
              (Lines{"text A 1500 2750 red bold", "text B 1500 400 red bold", "text C 3750 2750 black",
                     "text c 1450 1575 red bold", "text b 2575 2750 black", "text a 2675 1475 black"}));
}

TEST_F(RightTriangleDiagram, LettersMoveWithinToLeaveRoomForBoxes) {
    PlaceLetters2(picture, KnownFrom("Length of side a", "Angle C"));
    EXPECT_EQ(DrawingText(picture),
              (Lines{"text A 1625 2575 red bold", "text B 1610 700 black", "text C 3500 2575 red bold",
                     "text a 2650 1475 red bold", "text b 2600 2575 black", "text c 1625 1575 black"}));
}

TEST_F(RightTriangleDiagram, ResultsStandBehindTheirLetters) {
    PlaceResults(picture, {"not shown", " 53\xB0", " 37\xB0", " 5", " 4", " 3"}, LegsKnown);
    EXPECT_EQ(DrawingText(picture), (Lines{"text A= 90\xB0 1500 2750 red bold", "text B= 53\xB0 1500 400 black",
                                           "text C= 37\xB0 3750 2750 black", "text a= 5 2850 1475 black",
                                           "text b= 4 2675 2950 red bold", "text c= 3 500 1575 red bold"}));
}

TEST_F(RightTriangleDiagram, LongerLegBKeepsItsLengthAndLegCShrinks) {
    // c / b = 1 / 2: the left leg is 1075 long.
    SmallTriangle(picture, *ProportionsOf(4, 2), false);
    EXPECT_EQ(DrawingText(picture),
              (Lines{"line 1600 1675 1600 600 grey", "line 1600 600 3750 2750 grey", "line 1600 2750 1600 1675 blue",
                     "line 1600 1675 3750 2750 blue", "line 3750 2750 1600 2750 blue"}));
    EXPECT_EQ(picture.DrawMode(), 13);
}

TEST_F(RightTriangleDiagram, LongerLegCKeepsItsLengthAndLegBShrinks) {
    // b / c = 1 / 4: the bottom leg is 537.5 long.
    SmallTriangle(picture, *ProportionsOf(1, 4), false);
    EXPECT_EQ(DrawingText(picture),
              (Lines{"line 1600 600 3750 2750 grey", "line 3750 2750 2137.5 2750 grey", "line 1600 2750 1600 600 blue",
                     "line 1600 600 2137.5 2750 blue", "line 2137.5 2750 1600 2750 blue"}));
}

TEST_F(RightTriangleDiagram, EqualLegsAreTheSketchWithoutGrey) {
    SmallTriangle(picture, *ProportionsOf(7, 7), false);
    EXPECT_EQ(DrawingText(picture), Sketch);
}

TEST_F(RightTriangleDiagram, WipedProportionsEndInWhite) {
    SmallTriangle(picture, *ProportionsOf(4, 2), true);
    EXPECT_EQ(DrawingText(picture),
              (Lines{"line 1600 1675 1600 600 grey", "line 1600 600 3750 2750 grey", "line 1600 2750 1600 1675 blue",
                     "line 1600 1675 3750 2750 blue", "line 3750 2750 1600 2750 blue", "line 1600 2750 1600 1675 white",
                     "line 1600 1675 3750 2750 white", "line 3750 2750 1600 2750 white"}));
}

TEST_F(RightTriangleDiagram, ProportionsComeFromThreePlacesButGreyFromTheLegsAsTheyAre) {
    // Both read .333 through the mask, so the triangle is the sketch, yet leg b counts as the longer one.
    const auto proportions = ProportionsOf(0.3334, 0.3333);
    ASSERT_TRUE(proportions.has_value());
    EXPECT_EQ(proportions->LegBEnd, 3750);
    EXPECT_EQ(proportions->LegCTop, 600);
    EXPECT_TRUE(proportions->LegBLonger);
    EXPECT_FALSE(proportions->LegCLonger);
    // .001 / .002 through the mask, though .0006 / .0024 is a quarter.
    EXPECT_EQ(ProportionsOf(0.0006, 0.0024)->LegBEnd, 1600 + 2150 * 0.5);
}

TEST_F(RightTriangleDiagram, LegsTooSmallForThreePlacesAreTakenAsTheyAre) {
    EXPECT_EQ(ProportionsOf(0.0001, 0.0004)->LegBEnd, 1600 + 2150 * 0.25);
    EXPECT_EQ(ProportionsOf(0.0004, 0.0002)->LegCTop, 2750 - 2150 * 0.5);
    EXPECT_EQ(ProportionsOf(0, 0.0002)->LegBEnd, 1600);
}

TEST_F(RightTriangleDiagram, OneTinyLegShrinksToNothing) {
    EXPECT_EQ(ProportionsOf(0.0001, 5)->LegBEnd, 1600);
    EXPECT_EQ(ProportionsOf(5, 0.0001)->LegCTop, 2750);
}

TEST_F(RightTriangleDiagram, LegsWithoutLengthHaveNoProportions) {
    EXPECT_FALSE(ProportionsOf(0, 0).has_value());
    EXPECT_FALSE(ProportionsOf(0, -1).has_value());
}

TEST_F(RightTriangleDiagram, ProportionsOutOfRangeAreAFault) {
    EXPECT_EQ(FaultOf([] { (void)ProportionsOf(-1e308, 0.001); }), FaultNumber::Overflow);
}

TEST_F(RightTriangleDiagram, PlainPenIsNeitherBoldNorRed) {
    PlaceCornerA(picture);
    EXPECT_TRUE(picture.FontBold());
    PlainPen(picture);
    EXPECT_FALSE(picture.FontBold());
    EXPECT_EQ(picture.ForeColor(), Black);
}

}  // namespace
}  // namespace brindlex::righttri
