// Whether a circle is tangent to two lines, and the mending of those that are not.
#include "geometry/tangentmend.h"

#include "frame/text.h"
#include "unit/geometryrecords.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

constexpr double Slack = 1e-6;
const LinePair Axes{{{-5, 0}, {5, 0}}, {{0, -5}, {0, 5}}};

TEST(GeometryTangentMend, DistanceIsFromTheWholeLine) {
    EXPECT_EQ(DistanceFrom({9, 3}, Axes.A), 3);
    EXPECT_EQ(DistanceFrom({3, 4}, {{0, 0}, {0, 0}}), 5);
}

TEST(GeometryTangentMend, TouchingLinesIsADistanceFromEach) {
    const auto touches = [](Position centre) { return TouchesLines({centre, {}, {}}, Axes, .5, Slack); };
    EXPECT_TRUE(touches({.5, -.5}));
    EXPECT_FALSE(touches({.5, -.50001}));
    EXPECT_FALSE(touches({.50001, -.5}));
    EXPECT_FALSE(touches({0, 0}));
}

TEST(GeometryTangentMend, PointsLieOnTheirLineAndOnTheCircle) {
    const auto touch = [](Position onA, Position onB) { return PointsTouch({{1, 1}, onA, onB}, Axes, 1, Slack); };
    EXPECT_TRUE(touch({1, 0}, {0, 1}));
    EXPECT_FALSE(touch({0, 1}, {1, 0})) << "each on the other's line";
    EXPECT_TRUE(touch({1.001, 0}, {0, 1})) << "off the circle by half a millionth";
    EXPECT_FALSE(touch({1.002, 0}, {0, 1})) << "off the circle by two millionths";
    EXPECT_FALSE(touch({1, 0}, {0, 1.1})) << "off the circle";
    EXPECT_FALSE(touch({1, 2}, {0, 1})) << "on the circle and off the line";
}

TEST(GeometryTangentMend, PointsOfASecantDoNotMakeATangent) {
    // Half a radius from the level line: where the circle cuts it, root .75 aside, is on both, and yet no tangent.
    const TangentCircle secant{{1, .5}, {1 + std::sqrt(.75), 0}, {0, .5}};
    EXPECT_TRUE(PointsTouch(secant, Axes, 1, Slack));
    const std::vector<std::string> lines{ExtendedLineRecord(1, Axes.A), ExtendedLineRecord(2, Axes.B)};
    const std::string item = PairText(" 1 ", " 2 ", " 0", " 0");
    EXPECT_FALSE(EveryCircleTouches(lines, item, 1, {secant, secant, secant, secant}));
    const TangentCircle tangent{{1, 1}, {1, 0}, {0, 1}};
    EXPECT_TRUE(EveryCircleTouches(lines, item, 1, {tangent, tangent, tangent, tangent}));
    EXPECT_FALSE(EveryCircleTouches(lines, item, 1, {tangent, tangent, tangent, secant}));
}

/// How many circles stand in each quadrant about the origin.
std::array<int, 4> Quadrants(const std::array<TangentCircle, 4>& circles) {
    std::array<int, 4> count{};
    for (const TangentCircle& circle : circles) {
        ++count.at((circle.Centre.X > 0 ? 1U : 0U) + (circle.Centre.Y > 0 ? 2U : 0U));
    }
    return count;
}

constexpr std::array<int, 4> OneEach{1, 1, 1, 1};

TEST(GeometryTangentMend, EmptySectorsGetTheCirclesThatDoNotStand) {
    // Two in one quadrant, one that touches nothing, and one that is off by a hundred millionth: all quadrants get one,
    // the one that is true stays.
    const TangentCircle good{{1, 1}, {1, 0}, {0, 1}};
    std::array<TangentCircle, 4> circles{good, good, TangentCircle{}, TangentCircle{{-1.00000001, 1}, {-1, 0}, {0, 1}}};
    MendCircles(circles, Axes, {0, 0}, 1);
    EXPECT_EQ(Quadrants(circles), OneEach);
    EXPECT_EQ(circles[0].Centre.X, 1);
    EXPECT_EQ(circles[0].Centre.Y, 1);
    EXPECT_EQ(circles[3].Centre.X, -1);
    for (const TangentCircle& circle : circles) {
        EXPECT_TRUE(TouchesLines(circle, Axes, 1, 1e-12) && PointsTouch(circle, Axes, 1, 1e-12));
        EXPECT_EQ(circle.OnA.X, circle.Centre.X);
        EXPECT_EQ(circle.OnB.Y, circle.Centre.Y);
    }
}

TEST(GeometryTangentMend, LinesWithoutACornerAreLeft) {
    const TangentCircle circle{{7, 8}, {1, 2}, {3, 4}};
    for (const LinePair& pair : {LinePair{Axes.A, Axes.A}, LinePair{Axes.A, {{1, 1}, {1, 1}}}}) {
        std::array<TangentCircle, 4> circles{circle, circle, circle, circle};
        MendCircles(circles, pair, {0, 0}, 1);
        EXPECT_EQ(circles[2].Centre.X, 7);
        EXPECT_EQ(circles[2].OnB.Y, 4);
    }
}

TEST(GeometryTangentMend, AHairOffTheAxesThereIsOneCircleInEachSector) {
    // The rules take such a pair for one that leans alike, and put two circles into one sector.
    const double hair = std::ldexp(1.0, -38);
    const Segment level{{-8, 0}, {8, 0}};
    const Segment upright{{0, -8}, {0, 8}};
    const std::string item = PairText(" 1 ", " 2 ", " 0", " 0");
    for (const double off : {hair, -hair}) {
        const Segment nearlyUpright{{off, -8}, {-off, 8}};
        const Segment nearlyLevel{{-8, off}, {8, -off}};
        for (const auto& [a, b] : {LinePair{level, nearlyUpright}, LinePair{nearlyUpright, level},
                                   LinePair{upright, nearlyLevel}, LinePair{nearlyLevel, upright}}) {
            const std::vector<std::string> lines{ExtendedLineRecord(1, a), ExtendedLineRecord(2, b)};
            const auto circles = FindTangentCircles(lines, item, 1, Tangents::Exact);
            EXPECT_EQ(Quadrants(circles), OneEach) << lines[0] << '\n' << lines[1];
            EXPECT_TRUE(EveryCircleTouches(lines, item, 1, circles));
        }
    }
}

}  // namespace
}  // namespace brindlex::geometry
