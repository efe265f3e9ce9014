// Documents as plain values for exports.
#include "cli/exportsheet.h"

#include "geometry/crossings.h"
#include "unit/cli_exportfixture.h"
#include "unit/geometryrecords.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <tuple>
#include <vector>

namespace brindlex::cli {
namespace {

using geometry::CircleLine;
using geometry::LineLine;
using geometry::Unit;
using Lines = std::vector<std::string>;

TEST(CliExportSheet, EntitiesOfADrawing) {
    const Sheet sheet = SheetOf({"M", CircleLine(1, "2.5", "1", "-.25"), "a note", LineLine(123, "0", "0", "3", "4"),
                                 geometry::At({{1, " 12"}, {15, "7"}, {43, "8"}, {71, "Point"}})},
                                Unit::Millimeter);
    EXPECT_EQ(sheet.Measure, Unit::Millimeter);
    ASSERT_EQ(sheet.Shapes.size(), 3U);
    EXPECT_EQ(sheet.Shapes[0].On, Layer::Circles);
    EXPECT_EQ(sheet.Shapes[0].Record.Diameter(), 2.5);
    EXPECT_EQ(sheet.Shapes[0].Record.Centre().Y, -.25);
    EXPECT_EQ(sheet.Shapes[1].On, Layer::Lines);
    EXPECT_EQ(sheet.Shapes[1].Number, 123);  // where the board reads 12
    EXPECT_EQ(sheet.Shapes[1].Record.Ends().End.Y, 4);
    EXPECT_EQ(sheet.Shapes[2].On, Layer::Points);
    EXPECT_EQ(sheet.Shapes[2].Record.Place().X, 7);
}

TEST(CliExportSheet, RefusedDrawings) {
    EXPECT_EQ(ExportFailureOf([] { (void)SheetOf(Lines{"I", "a note"}, Unit::Inch); }), "3 the drawing is empty");
    for (const char* const diameter : {"0", "-2", "x"}) {
        EXPECT_EQ(ExportFailureOf([&] { (void)SheetOf({CircleLine(4, diameter, "0", "0")}, Unit::Inch); }),
                  "3 circle 4 has no diameter");
    }
}

using PairValues = std::tuple<int, int, double, double, bool>;

std::vector<PairValues> ValuesOf(const std::vector<LinePair>& pairs) {
    std::vector<PairValues> values;
    for (const LinePair& pair : pairs) {
        values.emplace_back(pair.First, pair.Second, pair.Crossing.X, pair.Crossing.Y, pair.Cross);
    }
    return values;
}

TEST(CliExportSheet, Pairs) {
    // 1 and 2 cross at a right angle, 103 would meet both at 45 degrees, 104 is parallel to 103.
    const auto pairs = PairsOf({LineLine(1, "0", "0", "2", "2"), LineLine(2, "0", "2", "2", "0"),
                                LineLine(103, "0", "3", "1", "3"), LineLine(104, "0", "-5", "1", "-5")});
    EXPECT_EQ(ValuesOf(pairs), (std::vector<PairValues>{{1, 2, 1, 1, true},
                                                        {1, 103, 3, 3, false},
                                                        {1, 104, -5, -5, false},
                                                        {2, 103, -1, 3, false},
                                                        {2, 104, 7, -5, false}}));
    EXPECT_DOUBLE_EQ(pairs[0].Angle, 90);
    EXPECT_DOUBLE_EQ(pairs[1].Angle, 45);
    EXPECT_DOUBLE_EQ(pairs[3].Angle, 45);
    // Legs of 3 and 4 against the X axis: the arc tangent of 3/4, whichever way the lines are walked.
    const auto legs = PairsOf({LineLine(5, "4", "3", "0", "0"), LineLine(6, "0", "0", "9", "0")});
    ASSERT_EQ(legs.size(), 1U);
    EXPECT_TRUE(legs[0].Cross);
    EXPECT_NEAR(legs[0].Angle, 36.8698976458440, 1e-12);
}

TEST(CliExportSheet, PairsAreThoseOfTheBoard) {
    // On a small grid many lines are parallel, upright, without length, or meet at their ends.
    std::mt19937 random(3);
    const auto value = [&] { return std::to_string(static_cast<int>(random() % 7) - 3); };
    for (int drawing = 0; drawing < 100; ++drawing) {
        Lines lines;
        for (int number = 1; number <= 14; ++number) {
            lines.push_back(LineLine(number, value(), value(), value(), value()));
        }
        const geometry::Crossings lists = geometry::FindCrossings(lines);
        std::vector<PairValues> wanted;
        for (const auto* const list : {&lists.Crossing, &lists.Potential}) {
            for (const std::string& item : *list) {
                const geometry::PairItem pair = geometry::ReadPair(item);
                wanted.emplace_back(pair.NumberA, pair.NumberB, pair.Crossing.X, pair.Crossing.Y,
                                    list == &lists.Crossing);
            }
        }
        EXPECT_EQ(ValuesOf(PairsOf(lines)), wanted);
    }
}

TEST(CliExportSheet, ManyLinesArePairedAndTooManyRefused) {
    // 250 upright lines and one level line through all of them: more than the board's own lists look at.
    Lines lines{LineLine(1, "0", "0", "300", "0")};
    for (int i = 1; i <= 250; ++i) {
        lines.push_back(LineLine(i + 1, std::to_string(i), "-1", std::to_string(i), "1"));
    }
    const auto pairs = PairsOf(lines);
    ASSERT_EQ(pairs.size(), 250U);
    EXPECT_EQ(pairs.back().Second, 251);
    EXPECT_EQ(pairs.back().Crossing.X, 250);
    EXPECT_EQ(ExportFailureOf([] { (void)PairsOf(Lines(501, LineLine(1, "0", "0", "1", "0"))); }),
              "3 the drawing has more than 500 lines");
}

TEST(CliExportSheet, HolesAreNotRounded) {
    // Three holes from 30 degrees: 30, 150, 270. cos 30 = .8660254037844386...
    const HolePattern pattern = PatternOf({"1", "-2", "10", "3", "30", "0"});
    ASSERT_EQ(pattern.Holes.size(), 3U);
    EXPECT_EQ(pattern.Diameter, 10);
    EXPECT_EQ(pattern.StartAngle, 30);
    EXPECT_NEAR(pattern.Holes[0].Place.X, 1 + 4.330127018922193, 1e-14);
    EXPECT_NEAR(pattern.Holes[0].Place.Y, .5, 1e-14);
    EXPECT_NEAR(pattern.Holes[1].Place.X, 1 - 4.330127018922193, 1e-14);
    EXPECT_NEAR(pattern.Holes[2].Place.Y, -7, 1e-14);
    EXPECT_EQ(pattern.Holes[2].Number, 3);
    EXPECT_EQ(pattern.Holes[2].Angle, 270);
}

TEST(CliExportSheet, HolesFromZeroAndAcrossTheTurn) {
    const HolePattern pattern = PatternOf({"1", "2", "10", "1", ""});
    ASSERT_EQ(pattern.Holes.size(), 1U);
    EXPECT_EQ(pattern.Holes[0].Place.X, 6);
    EXPECT_EQ(pattern.Holes[0].Place.Y, 2);
    const HolePattern turned = PatternOf({"0", "0", "10", "4", "300", "1"});
    EXPECT_EQ(turned.Holes[0].Angle, 300);
    EXPECT_EQ(turned.Holes[1].Angle, 30);
    EXPECT_EQ(turned.Holes[3].Angle, 210);
}

TEST(CliExportSheet, RefusedBoltCircles) {
    const struct {
        Lines lines;
        const char* failure;
    } rows[] = {
        {{}, "3 the center's X is missing"},
        {{"0", "0", "10"}, "3 the number of holes is missing"},
        {{"0", "", "10", "4", "0"}, "3 the center's Y is missing"},
        {{"0", "0", "1,5", "4", "0"}, "3 the diameter is no number: 1,5"},
        {{"0", "0", "10", "4", "x"}, "3 the start angle is no number: x"},
        {{"0", "0", "10", "4", "12 30'"}, "3 the start angle is no number: 12 30'"},
        {{"0", "0", "1e999", "4", "0"}, "3 the diameter is no number: 1e999"},
        {{"0", "0", "0.0", "4", "0"}, "3 the diameter is not above 0: 0.0"},
        {{"0", "0", "-3", "4", "0"}, "3 the diameter is not above 0: -3"},
        {{"0", "0", "10", "0", "0"}, "3 there are no holes: 0"},
        {{"0", "0", "10", "2.5", "0"}, "3 the number of holes is no whole number: 2.5"},
        {{"0", "0", "10", "32768", "0"}, "3 there are more than 32767 holes: 32768"},
        {{"0", "0", "10", "3", "1000000.5"}, "3 the start angle is too large: 1000000.5"},
        {{"1e308", "0", "1.7e308", "3", "0"}, "3 a value is too large to be worked with"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ExportFailureOf([&] { (void)PatternOf(row.lines); }), row.failure);
    }
}

TEST(CliExportSheet, ShapesOfABoltCircle) {
    const Sheet points = SheetOf(FourHoles(), Unit::Inch, 0);
    ASSERT_EQ(points.Shapes.size(), 5U);
    EXPECT_EQ(points.Shapes[0].On, Layer::BoltCircle);
    EXPECT_EQ(points.Shapes[0].Number, 0);
    EXPECT_EQ(points.Shapes[0].Record.Diameter(), 10);
    EXPECT_EQ(points.Shapes[2].Record.Shape, geometry::Kind::Point);
    EXPECT_EQ(points.Shapes[2].Record.Place().X, -4);
    const Sheet circles = SheetOf(FourHoles(), Unit::Inch, .25);
    EXPECT_EQ(circles.Shapes[4].Record.Shape, geometry::Kind::Circle);
    EXPECT_EQ(circles.Shapes[4].Record.Diameter(), .25);
    EXPECT_EQ(circles.Shapes[4].Record.Centre().X, 6);
    EXPECT_EQ(LayerName(circles.Shapes[4].On), "HOLES");
}

}  // namespace
}  // namespace brindlex::cli
