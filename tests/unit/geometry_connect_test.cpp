// Connecting two entities: each row of the tables, what skipped steps leave behind, and truth by distance.
#include "geometry/connect.h"

#include "unit/geometryrecords.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>
#include <random>
#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

using Lines = std::vector<std::string>;

const Named FirstCircle{Kind::Circle, "1"};
const Named SecondCircle{Kind::Circle, "2"};
const Named SecondPoint{Kind::Point, "2"};
const Named SecondLine{Kind::Line, "2"};

std::string CircleAt(int number, Position centre, double radius) {
    return CircleTangentRecord(number, 2 * radius, centre, "", {}, {});
}
std::string LineOf(int number, const Segment& line) {
    return ExtendedLineRecord(number, line);
}
std::string PointAt(int number, const std::string& x, const std::string& y) {
    return PointRecord(number, x, y);
}

void ExpectAt(Position found, Position expected, const std::string& what) {
    EXPECT_NEAR(found.X, expected.X, 1e-12) << what;
    EXPECT_NEAR(found.Y, expected.Y, 1e-12) << what;
}
void ExpectLine(const Segment& found, const Segment& expected, const std::string& what = {}) {
    ExpectAt(found.Start, expected.Start, what + " start");
    ExpectAt(found.End, expected.End, what + " end");
}

double Radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}
double ArcSineDegrees(double w) {
    return std::asin(w) * 180 / std::numbers::pi;
}
double SignOf(char c) {
    return c == '-' ? -1 : 1;
}

// Two circles.

struct CirclesCase {
    Position Second;
    double Theta;                      ///< as the ruled steps leave it: 0 on a vertical
    std::array<const char*, 4> Signs;  ///< lines 1 to 4: of the sine, of the cosine
};

constexpr CirclesCase CirclesCases[] = {
    {{5, 0}, 0, {"-+", "-+", "+-", "+-"}},
    {{-5, 0}, 0, {"+-", "+-", "+-", "-+"}},
    {{0, 5}, 0, {"-+", "-+", "+-", "+-"}},
    {{0, -5}, 0, {"--", "+-", "++", "-+"}},
    {{3, 4}, 53.13010235415598, {"-+", "-+", "+-", "+-"}},
    {{-3, 4}, 53.13010235415598, {"++", "++", "--", "--"}},
    {{-3, -4}, 53.13010235415598, {"+-", "+-", "-+", "-+"}},
    {{3, -4}, 53.13010235415598, {"--", "--", "++", "++"}},
};

void CheckCircles(const CirclesCase& c, double r1, double r2) {
    const Lines store{CircleAt(1, {0, 0}, r1), CircleAt(2, c.Second, r2)};
    const std::vector<Segment> found = Connect(store, FirstCircle, SecondCircle, Tangents::AsRuled);
    ASSERT_EQ(found.size(), 4U);
    const double same = ArcSineDegrees(std::fabs(r1 - r2) / 5) * (r2 <= r1 ? 1 : -1);
    const double across = ArcSineDegrees((r1 + r2) / 5);
    const double angles[] = {c.Theta - same, c.Theta - across, c.Theta + same, c.Theta + across};
    for (std::size_t i = 0; i < 4; ++i) {
        const double x = SignOf(c.Signs.at(i)[0]) * std::sin(Radians(angles[i]));
        const double y = SignOf(c.Signs.at(i)[1]) * std::cos(Radians(angles[i]));
        const double far = i % 2 == 0 ? r2 : -r2;
        ExpectLine(found[i], {{r1 * x, r1 * y}, {c.Second.X + far * x, c.Second.Y + far * y}},
                   std::to_string(c.Second.X) + "," + std::to_string(c.Second.Y) + " line " + std::to_string(i + 1));
    }
}

TEST(GeometryConnect, EveryRowOfTwoCircles) {
    for (const CirclesCase& c : CirclesCases) {
        CheckCircles(c, 1.5, 1.5);
        CheckCircles(c, 2, 1);
        CheckCircles(c, .5, 2.25);
    }
}

TEST(GeometryConnect, BeltAndCrossedBeltByHand) {
    // Radii 1 and 1, five apart: the outer tangents are level; the inner ones meet the circles at sine .4, and its
    // cosine is the root of .84.
    const Lines store{CircleLine(1, " 2", "0", "0"), CircleLine(2, " 2", "5", "0")};
    const auto found = Connect(store, FirstCircle, SecondCircle, Tangents::AsRuled);
    const double cosine = std::sqrt(.84);
    ASSERT_EQ(found.size(), 4U);
    ExpectLine(found[0], {{0, 1}, {5, 1}});
    ExpectLine(found[1], {{.4, cosine}, {4.6, -cosine}});
    ExpectLine(found[2], {{0, -1}, {5, -1}});
    ExpectLine(found[3], {{.4, -cosine}, {4.6, cosine}});
}

TEST(GeometryConnect, TouchingCirclesLeaveTheCrossingAnglesAtZero) {
    const Lines store{CircleAt(1, {0, 0}, 1.25), CircleAt(2, {2, 0}, .75)};
    const auto found = Connect(store, FirstCircle, SecondCircle, Tangents::AsRuled);
    ASSERT_EQ(found.size(), 4U);
    ExpectLine(found[1], {{0, 1.25}, {2, -.75}});
    ExpectLine(found[3], {{0, -1.25}, {2, .75}});
    // The exact arc sine of 1 is 90 degrees: both ends are the point where the circles touch.
    ExpectLine(Connect(store, FirstCircle, SecondCircle, Tangents::Exact)[1], {{1.25, 0}, {1.25, 0}});
}

TEST(GeometryConnect, ExactTouchingCirclesTouchInAPoint) {
    const Lines store{CircleAt(1, {0, 0}, 2), CircleAt(2, {3, 4}, 3)};
    const auto exact = Connect(store, FirstCircle, SecondCircle, Tangents::Exact);
    ExpectLine(exact[1], {{1.2, 1.6}, {1.2, 1.6}});
    ExpectLine(exact[3], {{1.2, 1.6}, {1.2, 1.6}});
    EXPECT_TRUE(EveryLineTouches(store, FirstCircle, SecondCircle, exact));
    EXPECT_FALSE(EveryLineTouches(store, FirstCircle, SecondCircle,
                                  Connect(store, FirstCircle, SecondCircle, Tangents::AsRuled)));
}

TEST(GeometryConnect, OneCircleInsideTheOtherLeavesAllAnglesAtZero) {
    // Theta is 53.13 degrees, yet each angle keeps 0 and not theta.
    const Lines store{CircleAt(1, {0, 0}, 10), CircleAt(2, {.3, .4}, 1)};
    const auto found = Connect(store, FirstCircle, SecondCircle, Tangents::AsRuled);
    ASSERT_EQ(found.size(), 4U);
    ExpectLine(found[0], {{0, 10}, {.3, 1.4}});
    ExpectLine(found[1], {{0, 10}, {.3, -.6}});
    ExpectLine(found[2], {{0, -10}, {.3, -.6}});
    ExpectLine(found[3], {{0, -10}, {.3, 1.4}});
    EXPECT_FALSE(EveryLineTouches(store, FirstCircle, SecondCircle, found));
}

TEST(GeometryConnect, ConcentricCirclesMakeFourLinesAtTheOrigin) {
    const Lines store{CircleAt(1, {7, 3}, 2), CircleAt(2, {7, 3}, 1)};
    for (const Tangents mode : {Tangents::AsRuled, Tangents::Exact}) {
        const auto found = Connect(store, FirstCircle, SecondCircle, mode);
        ASSERT_EQ(found.size(), 4U);
        for (const Segment& line : found) {
            ExpectLine(line, {});
        }
    }
}

TEST(GeometryConnect, OverflowIsASkippedStep) {
    // The square of 1E200 is beyond a double: D, u and v stay 0 and so do the angles; the row is still the first.
    const Lines store{CircleAt(1, {0, 0}, 1), CircleLine(2, " 2", "1E200", "0")};
    const auto found = Connect(store, FirstCircle, SecondCircle, Tangents::AsRuled);
    ExpectAt(found[0].Start, {0, 1}, "start");
    EXPECT_EQ(found[0].End.X, 1e200);
    EXPECT_EQ(found[0].End.Y, 1);
}

// A circle and a point.

struct PointCase {
    const char* X;
    const char* Y;
    double Theta;
    const char* First;
    const char* Second;
    bool OtherAngle;
};

constexpr PointCase PointCases[] = {
    {"5", "0", 0, "-+", "--", false},
    {"-5", "0", 0, "+-", "++", false},
    {"0", "5", 0, "++", "-+", false},
    {"0", "-5", 0, "+-", "--", false},
    {"3", "4", 53.13010235415598, "-+", "+-", true},
    {"-3", "-4", 53.13010235415598, "+-", "-+", true},
    {"3", "-4", 53.13010235415598, "--", "++", true},
    {"-3", "4", 53.13010235415598, "++", "--", true},
};

TEST(GeometryConnect, EveryRowOfCircleAndPoint) {
    const double r = 1.75;
    for (const PointCase& c : PointCases) {
        const Lines store{CircleAt(1, {0, 0}, r), PointAt(2, c.X, c.Y)};
        const std::string what = std::string(c.X) + "," + c.Y;
        const Position point{std::stod(c.X), std::stod(c.Y)};
        const double angle = c.Theta - ArcSineDegrees(r / 5);
        const double other = c.OtherAngle ? c.Theta + ArcSineDegrees(r / 5) : angle;
        const auto on = [&](double degrees, const char* signs) {
            return Position{SignOf(signs[0]) * r * std::sin(Radians(degrees)),
                            SignOf(signs[1]) * r * std::cos(Radians(degrees))};
        };
        const auto found = Connect(store, FirstCircle, SecondPoint, Tangents::AsRuled);
        ASSERT_EQ(found.size(), 2U);
        ExpectLine(found[0], {on(angle, c.First), point}, what);
        ExpectLine(found[1], {on(other, c.Second), point}, what);
        const auto back = Connect(store, SecondPoint, FirstCircle, Tangents::AsRuled);
        ASSERT_EQ(back.size(), 2U);
        ExpectLine(back[0], {point, on(angle, c.First)}, what);
        ExpectLine(back[1], {point, on(other, c.Second)}, what);
    }
}

TEST(GeometryConnect, CircleAndPointByHand) {
    // Radius 3, distance 5: a 3-4-5 triangle; the points of tangency are (9/5, +-12/5).
    const Lines store{CircleLine(1, " 6", "0", "0"), PointLine(2, "5", "0")};
    const auto found = Connect(store, FirstCircle, SecondPoint, Tangents::AsRuled);
    ExpectLine(found[0], {{1.8, 2.4}, {5, 0}});
    ExpectLine(found[1], {{1.8, -2.4}, {5, 0}});
    // On a vertical theta stays 0 and the lines miss; the exact tangents are the same triangle turned.
    const Lines upright{CircleLine(1, " 6", "0", "0"), PointLine(2, "0", "5")};
    const auto missing = Connect(upright, FirstCircle, SecondPoint, Tangents::AsRuled);
    ExpectLine(missing[0], {{-1.8, 2.4}, {0, 5}});
    EXPECT_FALSE(EveryLineTouches(upright, FirstCircle, SecondPoint, missing));
    const auto exact = Connect(upright, FirstCircle, SecondPoint, Tangents::Exact);
    ExpectLine(exact[0], {{2.4, 1.8}, {0, 5}});
    ExpectLine(exact[1], {{-2.4, 1.8}, {0, 5}});
    EXPECT_TRUE(EveryLineTouches(upright, FirstCircle, SecondPoint, exact));
}

TEST(GeometryConnect, PointOnInsideAndAtTheCentreOfACircle) {
    const auto connect = [](const char* x, const char* y) {
        return Connect({CircleLine(1, " 10", "0", "0"), PointLine(2, x, y)}, FirstCircle, SecondPoint,
                       Tangents::AsRuled);
    };
    // Both angles stay 0, so that the sine is 0 and the cosine 1.
    ExpectLine(connect("3", "4")[0], {{0, 5}, {3, 4}}, "on");
    ExpectLine(connect("3", "4")[1], {{0, -5}, {3, 4}}, "on");
    ExpectLine(connect(".3", ".4")[0], {{0, 5}, {.3, .4}}, "inside");
    ExpectLine(connect("0", "0")[0], {{0, 0}, {0, 0}}, "centre");
    ExpectLine(connect("0", "0")[1], {{0, 0}, {0, 0}}, "centre");
}

// A circle and a line.

TEST(GeometryConnect, TheSecondPassSeesTheFirstOnesRatio) {
    // Start (3, 4) gives theta 53.13; the end (0, 5) stands on a vertical, so that theta comes out of the start's
    // ratio. With a of sine .2: sin A = .8 cos a - .6 sin a, cos A = .6 cos a + .8 sin a.
    const Lines store{CircleLine(1, " 2", "0", "0"), LineLine(2, "3", "4", "0", "5")};
    const auto found = Connect(store, FirstCircle, SecondLine, Tangents::AsRuled);
    ASSERT_EQ(found.size(), 4U);
    const double cosine = std::sqrt(.96);
    const double sinA = .8 * cosine - .6 * .2;
    const double cosA = .6 * cosine + .8 * .2;
    ExpectLine(found[0], {{-sinA, cosA}, {3, 4}}, "start, row 5");
    ExpectLine(found[2], {{sinA, cosA}, {0, 5}}, "end, row 3");
    ExpectLine(found[3], {{-sinA, cosA}, {0, 5}}, "end, row 3");
}

TEST(GeometryConnect, TheFirstPassOnAVerticalSeesZero) {
    const Lines store{CircleLine(1, " 2", "0", "0"), LineLine(2, "0", "5", "3", "4")};
    const auto found = Connect(store, FirstCircle, SecondLine, Tangents::AsRuled);
    ASSERT_EQ(found.size(), 4U);
    const double cosine = std::sqrt(.96);
    ExpectLine(found[0], {{-.2, cosine}, {0, 5}}, "theta 0: sine -.2");
    ExpectLine(found[1], {{.2, cosine}, {0, 5}}, "theta 0");
    ExpectLine(found[2], {{-(.8 * cosine - .6 * .2), .6 * cosine + .8 * .2}, {3, 4}}, "its own theta");
    const auto back = Connect(store, SecondLine, FirstCircle, Tangents::AsRuled);
    for (std::size_t i = 0; i < 4; ++i) {
        ExpectLine(back[i], {found[i].End, found[i].Start}, "reversed");
    }
}

TEST(GeometryConnect, TheSecondPassSeesTheFirstOnesAngles) {
    // The start is outside (u = .2), the end inside: its angles fault and keep the start's; row 5 again.
    const Lines store{CircleLine(1, " 2", "0", "0"), LineLine(2, "3", "4", ".5", ".5")};
    const auto found = Connect(store, FirstCircle, SecondLine, Tangents::AsRuled);
    ExpectLine(found[2], {found[0].Start, {.5, .5}});
    ExpectLine(found[3], {found[1].Start, {.5, .5}});
}

// Lines and points.

TEST(GeometryConnect, LinesAndPoints) {
    const Lines store{LineLine(1, "1", "2", "3", "4"), LineLine(2, "5", "6", "7", "8"), PointLine(3, "9", "10"),
                      PointLine(4, "11.50", "12")};
    const auto connect = [&](Kind a, const char* first, Kind b, const char* second) {
        return Connect(store, {a, first}, {b, second}, Tangents::AsRuled);
    };
    const auto lines = connect(Kind::Line, "1", Kind::Line, "2");
    ASSERT_EQ(lines.size(), 4U);
    ExpectLine(lines[0], {{1, 2}, {5, 6}});
    ExpectLine(lines[1], {{1, 2}, {7, 8}});
    ExpectLine(lines[2], {{3, 4}, {5, 6}});
    ExpectLine(lines[3], {{3, 4}, {7, 8}});
    const auto pointLine = connect(Kind::Point, "3", Kind::Line, "1");
    ASSERT_EQ(pointLine.size(), 2U);
    ExpectLine(pointLine[0], {{9, 10}, {1, 2}});
    ExpectLine(pointLine[1], {{9, 10}, {3, 4}});
    const auto linePoint = connect(Kind::Line, "1", Kind::Point, "3");
    ASSERT_EQ(linePoint.size(), 2U);
    ExpectLine(linePoint[0], {{1, 2}, {9, 10}});
    ExpectLine(linePoint[1], {{3, 4}, {9, 10}});
    const auto points = connect(Kind::Point, "3", Kind::Point, " 4");
    ASSERT_EQ(points.size(), 1U);
    ExpectLine(points[0], {{9, 10}, {11.5, 12}});
    EXPECT_TRUE(EveryLineTouches(store, {Kind::Line, "1"}, {Kind::Line, "2"}, lines));
}

TEST(GeometryConnect, NumbersThatNameNothingLeaveZeros) {
    const Lines store{PointLine(1, "1", "2"), CircleLine(2, " 2", "0", "0")};
    const auto found = Connect(store, {Kind::Point, "1"}, {Kind::Point, "9"}, Tangents::AsRuled);
    ASSERT_EQ(found.size(), 1U);
    ExpectLine(found[0], {{1, 2}, {0, 0}});
    // A number of another kind names nothing of this one.
    ExpectLine(Connect(store, {Kind::Point, "1"}, {Kind::Point, "2"}, Tangents::AsRuled)[0], {{1, 2}, {0, 0}});
    EXPECT_TRUE(Connect(store, {}, {Kind::Point, "1"}, Tangents::AsRuled).empty());
    EXPECT_EQ(Connect({}, FirstCircle, SecondCircle, Tangents::AsRuled).size(), 4U);
}

TEST(GeometryConnect, CentresAndRadiiAreCutToFifteenDigits) {
    const Lines store{CircleLine(1, " 2", "1.23456789012345678", "0"), PointLine(2, "1.23456789012345678", "0")};
    const auto found = Connect(store, FirstCircle, SecondPoint, Tangents::AsRuled);
    // The point keeps all its digits and so stands beside the centre: not the row of equal places.
    EXPECT_EQ(found[0].End.X, 1.23456789012345678);
    EXPECT_EQ(found[0].Start.X, 1.23456789012346);
    EXPECT_EQ(found[0].Start.Y, -1);
}

TEST(GeometryConnect, ALaterBoxNames) {
    EXPECT_EQ(NamedBy("1", "", "").Shape, Kind::Circle);
    EXPECT_EQ(NamedBy("1", " 2", "").NumberText, " 2");
    EXPECT_EQ(NamedBy("1", "2", "03").Shape, Kind::Point);
    EXPECT_EQ(NamedBy("1", "2", "03").NumberText, "03");
    EXPECT_EQ(NamedBy("", "", "").Shape, Kind::None);
}

TEST(GeometryConnect, Limits) {
    Board board;
    board.CircleTop = 44;
    board.LineTop = 50;
    board.PointTop = 39;
    EXPECT_EQ(TestConnectLimits(board, true), ConnectLimit::None);
    board.PointTop = 42;
    EXPECT_EQ(TestConnectLimits(board, true), ConnectLimit::Points);
    EXPECT_EQ(ConnectLimitMessage(board, ConnectLimit::Points), "Sorry. Only 14 Points Can Be Created!");
    board.LineTop = 70;
    EXPECT_EQ(TestConnectLimits(board, true), ConnectLimit::Lines);
    EXPECT_EQ(TestConnectLimits(board, false), ConnectLimit::Points);
    EXPECT_EQ(ConnectLimitMessage(board, ConnectLimit::Lines),
              "Sorry. Only 14 Lines Can Be Created.\r\nThis Operation Would Require\r\n 18 Lines.");
    board.CircleTop = 48;
    EXPECT_EQ(TestConnectLimits(board, true), ConnectLimit::Circles);
    EXPECT_EQ(ConnectLimitMessage(board, ConnectLimit::Circles), "Sorry. Only 12 Circles Can Be Created!");
    EXPECT_EQ(ConnectLimitMessage(board, ConnectLimit::None), "");
}

// Truth by a second method: the distance of a centre from a line, by the area of a triangle over its base.

double DistanceOf(Position centre, const Segment& line) {
    const double ax = line.End.X - line.Start.X;
    const double ay = line.End.Y - line.Start.Y;
    return std::fabs(ax * (line.Start.Y - centre.Y) - ay * (line.Start.X - centre.X)) / std::sqrt(ax * ax + ay * ay);
}

class Places {
public:
    explicit Places(bool onGrid) : onGrid_(onGrid) {}
    double Next() {
        const double value = std::uniform_real_distribution<double>(-10, 10)(random_);
        return onGrid_ ? std::round(value) : value;
    }
    Position Place() { return {Next(), Next()}; }
    double Radius() { return std::fabs(Next()) / 4 + .05; }

private:
    std::mt19937 random_{11};
    bool onGrid_;
};

double Apart(Position a, Position b) {
    return std::hypot(a.X - b.X, a.Y - b.Y);
}

/// Every candidate of two circles clear of each other, as far off the radius as the worst one.
void CheckCirclesAreTrue(bool onGrid, Tangents mode, double tolerance) {
    Places places(onGrid);
    int checked = 0;
    for (int i = 0; checked < 20000; ++i) {
        const Position a = places.Place();
        const Position b = places.Place();
        const double r1 = places.Radius();
        const double r2 = i % 3 == 0 ? r1 : places.Radius();
        if (Apart(a, b) <= (r1 + r2) * 1.001) {
            continue;
        }
        ++checked;
        const Lines store{CircleAt(1, a, r1), CircleAt(2, b, r2)};
        const auto found = Connect(store, FirstCircle, SecondCircle, mode);
        ASSERT_EQ(found.size(), 4U);
        for (const Segment& line : found) {
            ASSERT_NEAR(DistanceOf(a, line), r1, tolerance) << store[0] << '\n' << store[1];
            ASSERT_NEAR(DistanceOf(b, line), r2, tolerance) << store[0] << '\n' << store[1];
        }
        ASSERT_TRUE(EveryLineTouches(store, FirstCircle, SecondCircle, found));
        for (std::size_t j = 1; j < 4; ++j) {  // four different lines
            ASSERT_GT(Apart(found[0].Start, found[j].Start) + Apart(found[0].End, found[j].End), 1e-6);
        }
    }
}

void CheckCircleAndLineAreTrue(bool onGrid, Tangents mode, double tolerance) {
    Places places(onGrid);
    for (int checked = 0; checked < 20000;) {
        const Position centre = places.Place();
        const double r = places.Radius();
        const Segment ends{places.Place(), places.Place()};
        if (std::min(Apart(centre, ends.Start), Apart(centre, ends.End)) <= r * 1.001) {
            continue;
        }
        ++checked;
        const Lines store{CircleAt(1, centre, r), LineOf(2, ends)};
        const auto found = Connect(store, FirstCircle, SecondLine, mode);
        ASSERT_EQ(found.size(), 4U);
        for (const Segment& line : found) {
            ASSERT_NEAR(DistanceOf(centre, line), r, tolerance) << store[0] << '\n' << store[1];
            ASSERT_NEAR(Apart(centre, line.Start), r, tolerance) << store[0] << '\n' << store[1];
        }
    }
}

TEST(GeometryConnect, OrdinaryPositionsAreTrue) {
    CheckCirclesAreTrue(false, Tangents::AsRuled, 1e-9);
    CheckCircleAndLineAreTrue(false, Tangents::AsRuled, 1e-9);
}

TEST(GeometryConnect, ExactTangentsAreTrueInEveryPosition) {
    CheckCirclesAreTrue(false, Tangents::Exact, 1e-9);
    CheckCircleAndLineAreTrue(false, Tangents::Exact, 1e-9);
    CheckCirclesAreTrue(true, Tangents::Exact, 1e-9);  // a coarse grid: every third pair or so is parallel to an axis
    CheckCircleAndLineAreTrue(true, Tangents::Exact, 1e-9);
}

TEST(GeometryConnect, ExactTangentsChangeNothingInOrdinaryPositions) {
    Places places(false);
    for (int i = 0; i < 2000; ++i) {
        const Lines store{CircleAt(1, places.Place(), places.Radius()), CircleAt(2, places.Place(), places.Radius())};
        const auto ruled = Connect(store, FirstCircle, SecondCircle, Tangents::AsRuled);
        const auto exact = Connect(store, FirstCircle, SecondCircle, Tangents::Exact);
        for (std::size_t j = 0; j < 4; ++j) {
            ASSERT_EQ(ruled[j].Start.X, exact[j].Start.X);
            ASSERT_EQ(ruled[j].End.Y, exact[j].End.Y);
        }
    }
}

TEST(GeometryConnect, EveryLineMustTouchBothCircles) {
    const Lines store{CircleAt(1, {0, 0}, 1), CircleAt(2, {5, 0}, 1)};
    const auto touches = [&](const Segment& line) {
        return EveryLineTouches(store, FirstCircle, SecondCircle, {{{0, 1}, {5, 1}}, line});
    };
    EXPECT_TRUE(touches({{0, -1}, {5, -1}}));
    EXPECT_FALSE(touches({{1, 0}, {1, 5}})) << "the first circle alone";
    EXPECT_FALSE(touches({{4, 0}, {4, 5}})) << "the second circle alone";
    EXPECT_FALSE(touches({{0, -1.00001}, {5, -1}})) << "by more than a millionth of the radius";
    EXPECT_TRUE(touches({{0, -1.0000005}, {5, -1.0000005}})) << "by less";
}

TEST(GeometryConnect, TheKnownMisses) {
    const auto touches = [](Position second, double r2, Tangents mode) {
        const Lines store{CircleAt(1, {0, 0}, 1), CircleAt(2, second, r2)};
        return EveryLineTouches(store, FirstCircle, SecondCircle, Connect(store, FirstCircle, SecondCircle, mode));
    };
    for (const Tangents mode : {Tangents::AsRuled, Tangents::Exact}) {
        const bool exact = mode == Tangents::Exact;
        EXPECT_TRUE(touches({5, 0}, 2, mode));
        EXPECT_TRUE(touches({-5, 0}, 1, mode));
        EXPECT_EQ(touches({-5, 0}, 2, mode), exact);  // the second row breaks the pattern
        EXPECT_EQ(touches({0, 5}, 1, mode), exact);
        EXPECT_EQ(touches({0, -5}, 2, mode), exact);
    }
}

}  // namespace
}  // namespace brindlex::geometry
