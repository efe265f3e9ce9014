// The draw passes on a picture: colours, hits, picks, filter, numbers.
#include "geometry/drawpass.h"

#include "form17fixture.h"
#include "frame/text.h"
#include "geometry/hover.h"
#include "geometry/tips.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace brindlex::geometry {
namespace {

class Passes : public Form17Test {
protected:
    Passes() {
        // Calls of the form's own panels are no matter here.
        pass.Calls = {};
        picture.Scale(-10, 10, 10, -10);
        const Scale scale{20, -20};
        board.EnterCircle({0, 0}, 2, 1, scale);
        board.EnterLine({{-4, -4}, {4, -4}}, 2, scale);
        board.EnterPoint({5, 5}, 3, scale);
    }
    void All() {
        picture.Cls();
        pass.Marks.Hovered = false;
        pass.CircleStuff();
        pass.LineStuff();
        pass.PointStuff();
    }
    /// A box in drawing coordinates; the picture's are 10 more in X and 10 less in Y.
    void Box(double x1, double y1, double x2, double y2) { pass.View.Box = {x1 + 10, y1 - 10, x2 + 10, y2 - 10}; }
    void Point(double x, double y) {
        pass.View.PointerOver = true;
        pass.View.Pointer = {x, y};
    }
    [[nodiscard]] Colour InkOf(DrawKind kind) const {
        for (const DrawItem& item : picture.Drawn().Items()) {
            if (item.Kind == kind) {
                return item.Ink;
            }
        }
        return White;
    }

    PictureBox& picture = form->Picture1;
    Board board;
    DrawPass pass{picture, board};
};

TEST_F(Passes, DrawPlainWithNumbers) {
    All();
    std::vector<std::string> numbers;
    for (const DrawItem& item : picture.Drawn().Items()) {
        if (item.Kind == DrawKind::Text) {
            numbers.push_back(item.Text);
        } else {
            EXPECT_EQ(item.Ink, ink::Plain);
        }
    }
    EXPECT_EQ(numbers, (std::vector<std::string>{" 1 ", " 2 ", " 3 "}));
    pass.View.Numbers = false;
    All();
    EXPECT_EQ(picture.Drawn().Items().size(), 4U);
}

TEST_F(Passes, SelectingTakesWhatHasItsAnchorInTheBox) {
    pass.View.Selecting = true;
    Box(-1, 1, 1, -1);
    All();
    EXPECT_TRUE(pass.Marks.BoxHit);
    EXPECT_EQ(pass.Marks.Hits.Circles, (std::vector<int>{0}));
    EXPECT_TRUE(pass.Marks.Hits.Lines.empty());
    EXPECT_EQ(InkOf(DrawKind::Circle), ink::Taken);
    EXPECT_EQ(InkOf(DrawKind::Line), ink::Plain);
    // The same corners the other way round, now about the middle of the line.
    pass.Marks = {};
    Box(1, -5, -1, -3);
    All();
    EXPECT_EQ(pass.Marks.Hits.Lines, (std::vector<int>{0}));
    EXPECT_TRUE(pass.Marks.Hits.Circles.empty());
}

TEST_F(Passes, ABoxWithoutAFlagTakesNothing) {
    Box(-9, 9, 9, -9);
    All();
    EXPECT_FALSE(pass.Marks.BoxHit);
    EXPECT_EQ(InkOf(DrawKind::Circle), ink::Plain);
}

TEST_F(Passes, SelectingTakesWhatThePointerIsOn) {
    pass.View.Selecting = true;
    picture.ToolTipText("old");
    Point(2, 0);
    All();
    EXPECT_EQ(pass.Marks.Hits.Circles, (std::vector<int>{0}));
    EXPECT_EQ(InkOf(DrawKind::Circle), ink::Taken);
    EXPECT_EQ(picture.ToolTipText(), "");
    Box(-1, 1, 1, -1);
    pass.Marks = {};
    All();
    EXPECT_EQ(pass.Marks.Hits.Circles, (std::vector<int>{0, 0})) << "once by the box and once by the pointer";
}

TEST_F(Passes, AHoverSetsTheTipUnlessCancelShows) {
    Point(2, 0);
    All();
    EXPECT_EQ(InkOf(DrawKind::Circle), ink::Hovered);
    EXPECT_TRUE(pass.Marks.Hovered);
    EXPECT_EQ(picture.ToolTipText(), "Circle  1  Diameter = 4.0000  X = .0000  Y = .0000");
    picture.ToolTipText("");
    pass.View.Tips = false;
    All();
    EXPECT_EQ(picture.ToolTipText(), "");
}

TEST_F(Passes, NothingIsHoveredWhileThePointerIsElsewhere) {
    Point(2, 0);
    pass.View.PointerOver = false;
    All();
    EXPECT_FALSE(pass.Marks.Hovered);
    EXPECT_EQ(InkOf(DrawKind::Circle), ink::Plain);
}

TEST_F(Passes, ThePickIsReportedOnceAndNamesTheFirstEntityOnly) {
    board.EnterCircle({0.5, 0}, 1, 4, {20, -20});
    std::vector<int> picked;
    pass.Calls.Picked = [&] { picked.push_back(pass.Pick.Number); };
    pass.View.Picking = true;
    Box(-1, 1, 1, -1);
    All();
    EXPECT_EQ(picked, (std::vector<int>{1}));
    EXPECT_EQ(pass.Pick.Shape, Kind::Circle);
    EXPECT_EQ(Count(DrawKind::Circle, ink::Named), 1);
    EXPECT_EQ(Count(DrawKind::Circle, ink::Plain), 1);
    EXPECT_EQ(pass.Marks.Hits.Circles, (std::vector<int>{0, 4}));
}

TEST_F(Passes, WhatAPickAddsIsDrawnInTheSameWalk) {
    pass.Calls.Picked = [&] { board.EnterLine({{0, 0}, {1, 1}}, 9, {20, -20}); };
    pass.View.Picking = true;
    Box(-1, 1, 1, -1);
    All();
    EXPECT_EQ(Count(DrawKind::Line, ink::Plain), 4) << "two lines and the two diagonals of the point";
}

TEST_F(Passes, NamedNumbersAreGreenAndEndTheHover) {
    int named = 0;
    pass.Calls.NamedNumbers = [] { return std::array<double, 6>{0, 2, 0, 0, 0, 1}; };
    pass.Calls.Named = [&] { ++named; };
    Point(2, 0);
    All();
    EXPECT_EQ(InkOf(DrawKind::Circle), ink::Named);
    EXPECT_EQ(InkOf(DrawKind::Line), ink::Named);
    EXPECT_FALSE(pass.Marks.Hovered);
    EXPECT_EQ(named, 0) << "no kind is picked";
    pass.Pick.Shape = Kind::Line;
    All();
    EXPECT_EQ(named, 2);
}

TEST_F(Passes, TheFilterLeavesEntitiesAndTheirNumbersOut) {
    PassFilter filter{PassFilter::Rule::Only, {1, 0, 0, 0, 0, 0}};
    pass.Calls.Filter = [&] { return filter; };
    All();
    EXPECT_EQ(picture.Drawn().Items().size(), 2U);
    filter.Draws = PassFilter::Rule::Hide;
    All();
    EXPECT_EQ(picture.Drawn().Items().size(), 5U);
    filter.Draws = PassFilter::Rule::All;
    All();
    EXPECT_EQ(picture.Drawn().Items().size(), 7U);
}

TEST_F(Passes, TheListsOfHitsDoNotGrowForEver) {
    Point(2, 0);
    for (int i = 0; i < 1000; ++i) {
        All();
    }
    EXPECT_EQ(pass.Marks.Hits.Circles.size(), 48U);
}

TEST_F(Passes, EndlessCoordinatesFaultNothing) {
    board.EnterCircle({1e308, 1e308}, 1e308, 5, {20, -20});
    board.EnterLine({{-1e308, 1e308}, {1e308, -1e308}}, 6, {20, -20});
    board.EnterLine({{1e308, 1e308}, {1.7e308, 1e308}}, 7, {20, -20});
    board.EnterPoint({-1e308, 1e308}, 8, {20, -20});
    Point(2, 0);
    EXPECT_NO_THROW(All());
}

TEST(Hover, ACircleLightsWhereTheDistanceRoundsToItsRadius) {
    for (const auto& [distance, hit] : std::vector<std::pair<double, bool>>{
             {.94, false}, {.95, true}, {1, true}, {1.04, true}, {1.05, false}, {1.06, false}}) {
        EXPECT_EQ(HoversCircle({3 + distance, 4}, {3, 4}, 1, Unit::Inch), hit) << distance;
    }
    EXPECT_TRUE(HoversCircle({10.4, 0}, {0, 0}, 10, Unit::Millimeter));
    EXPECT_FALSE(HoversCircle({10.5, 0}, {0, 0}, 10, Unit::Millimeter));
}

TEST(Hover, APointLightsWhereBothCoordinatesAgree) {
    EXPECT_TRUE(HoversPoint({.34, .26}, {.3, .3}, Unit::Inch));
    EXPECT_FALSE(HoversPoint({.35, .3}, {.3, .3}, Unit::Inch));
    EXPECT_FALSE(HoversPoint({.3, .2}, {.3, .3}, Unit::Inch));
    EXPECT_TRUE(HoversPoint({7.4, 6.6}, {7, 7}, Unit::Millimeter));
}

TEST(Hover, ALineLightsByItsAngleFromTheStartBetweenItsEnds) {
    LineHover hover;
    EXPECT_TRUE(hover.Hovers({1, 1}, {{0, 0}, {2, 2}}));
    EXPECT_TRUE(hover.Hovers({1, 1.008}, {{0, 0}, {2, 2}})) << "45.2 degrees round to 45";
    EXPECT_FALSE(hover.Hovers({1, 1.05}, {{0, 0}, {2, 2}})) << "46.4 degrees do not";
    EXPECT_FALSE(hover.Hovers({3, 3}, {{0, 0}, {2, 2}}));
    EXPECT_FALSE(hover.Hovers({-1, -1}, {{0, 0}, {2, 2}}));
}

TEST(Hover, AHorizontalLineLightsWithinATenth) {
    LineHover hover;
    EXPECT_TRUE(hover.Hovers({.1, 1.04}, {{0, 1}, {2, 1}})) << "22 degrees from the start, but the height rounds";
    EXPECT_FALSE(hover.Hovers({.1, 1.06}, {{0, 1}, {2, 1}}));
    EXPECT_FALSE(hover.Hovers({2, 1}, {{0, 1}, {2, 1}})) << "strictly between";
}

TEST(Hover, AVerticalLineKeepsTheSlopesOfTheLineBefore) {
    const Segment vertical{{0, 0}, {0, 2}};
    LineHover alone;
    EXPECT_FALSE(alone.Hovers({.01, 1}, vertical)) << "0 against 89 degrees";
    LineHover behind;
    EXPECT_TRUE(behind.Hovers({0, 1}, {{-1, 0}, {1, 2}})) << "45 degrees both";
    EXPECT_TRUE(behind.Hovers({0, 1}, vertical)) << "both fault and stay 45";
    EXPECT_FALSE(behind.Hovers({.01, 1}, vertical)) << "45 against 89 degrees";
}

TEST(Tips, TellTheData) {
    EXPECT_EQ(CircleTip(12, .5, {-1.25, 3}), "Circle  12  Diameter = 1.0000  X = -1.2500  Y = 3.0000");
    EXPECT_EQ(PointTip(3, {.00004, -.5}), "Point  3  X = .0000 Y = -.5000");
    EXPECT_EQ(LineTip(4, {{0, 0}, {3, 4}}),
              "Line  4  Length= 5.0000 Start X= .0000, Start Y= .0000 - End X= 3.0000, End Y= 4.0000, Angle=  "
              "53.1301023541561");
}

TEST(Tips, TheAngleGoesRoundTheCircle) {
    const struct {
        double X, Y;
        const char* Angle;
    } cases[] = {{1, 0, " 0"},    {1, 1, " 45.0000000000001"},
                 {0, 1, " 90"},   {-1, 1, " 135"},
                 {-1, 0, " 180"}, {-1, -1, " 225"},
                 {0, -1, " 270"}, {1, -1, " 315"},
                 {0, 0, " 0"}};
    for (const auto& each : cases) {
        EXPECT_EQ(Str(AngleOf({{2, 3}, {2 + each.X, 3 + each.Y}})), each.Angle) << each.X << ", " << each.Y;
    }
}

}  // namespace
}  // namespace brindlex::geometry
