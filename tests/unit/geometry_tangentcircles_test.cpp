// The four circles tangent to two crossing lines: by hand, against the rules written out plainly, and by distance.
#include "geometry/tangentcircles.h"

#include "frame/text.h"
#include "geometry/tangentmend.h"
#include "radians.h"
#include "unit/geometryrecords.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

using Lines = std::vector<std::string>;
using Circles = std::array<TangentCircle, 4>;

Lines RecordsOf(const Segment& a, const Segment& b) {
    return {ExtendedLineRecord(1, a), ExtendedLineRecord(2, b)};
}
std::string ItemAt(Position crossing) {
    return PairText(" 1 ", " 2 ", Str(crossing.X), Str(crossing.Y));
}

void ExpectPlace(Position found, Position expected, const std::string& what) {
    EXPECT_NEAR(found.X, expected.X, 1e-12) << what;
    EXPECT_NEAR(found.Y, expected.Y, 1e-12) << what;
}
void ExpectCircle(const TangentCircle& found, const TangentCircle& expected, const std::string& what) {
    ExpectPlace(found.Centre, expected.Centre, what + " centre");
    ExpectPlace(found.OnA, expected.OnA, what + " on A");
    ExpectPlace(found.OnB, expected.OnB, what + " on B");
}

// By hand.

TEST(GeometryTangentCircles, DiagonalsByHand) {
    // y = x and y = -x, radius 1: the centres lie root 2 from the crossing on the axes, the points of tangency half of
    // root 2 out on both axes. The third centre is level with the crossing.
    const double far = std::sqrt(2.0);
    const double half = far / 2;
    const Segment a{{-2, -2}, {2, 2}};
    const Segment b{{-2, 2}, {2, -2}};
    const Lines lines = RecordsOf(a, b);
    const Circles found = FindTangentCircles(lines, ItemAt({0, 0}), 1, Tangents::AsRuled);
    ExpectCircle(found[0], {{0, -far}, {-half, -half}, {half, -half}}, "1");
    ExpectCircle(found[1], {{0, far}, {half, half}, {-half, half}}, "2");
    ExpectCircle(found[2], {{far, 0}, {half, half}, {half, -half}}, "3");
    ExpectCircle(found[3], {{-far, 0}, {-half, -half}, {-half, half}}, "4");
    EXPECT_TRUE(EveryCircleTouches(lines, ItemAt({0, 0}), 1, found));
}

TEST(GeometryTangentCircles, LevelCentresNegateTheHeight) {
    const double far = std::sqrt(2.0);
    const double half = far / 2;
    const Lines lines = RecordsOf({{1, -1}, {5, 3}}, {{1, 3}, {5, -1}});  // crossing in (3, 1)
    const Circles ruled = FindTangentCircles(lines, ItemAt({3, 1}), 1, Tangents::AsRuled);
    ExpectCircle(ruled[2], {{3 + far, 1}, {3 + half, 1 + half}, {3 + half, -(1 + half)}}, "3");
    ExpectCircle(ruled[3], {{3 - far, 1}, {3 - half, 1 - half}, {3 - half, -(1 - half)}}, "4");
    EXPECT_FALSE(EveryCircleTouches(lines, ItemAt({3, 1}), 1, ruled));
    const Circles exact = FindTangentCircles(lines, ItemAt({3, 1}), 1, Tangents::Exact);
    ExpectCircle(exact[2], {{3 + far, 1}, {3 + half, 1 + half}, {3 + half, 1 - half}}, "3");
    ExpectCircle(exact[3], {{3 - far, 1}, {3 - half, 1 - half}, {3 - half, 1 + half}}, "4");
    EXPECT_TRUE(EveryCircleTouches(lines, ItemAt({3, 1}), 1, exact));
}

TEST(GeometryTangentCircles, FarUpTheFirstCentresAreLevelWithTheCrossing) {
    // At 1E17 a radius of 1 is lost in the height, so that none of the rows for the first two centres fits.
    const Segment a{{0, 0}, {1, 2}};
    const Segment b{{0, 0}, {2, -1}};
    const Circles found = FindTangentCircles(RecordsOf(a, b), ItemAt({0, 1e17}), 1, Tangents::AsRuled);
    EXPECT_GT(found[0].Centre.X, 0);
    EXPECT_EQ(found[0].Centre.Y, 1e17);
    for (const std::size_t i : {0U, 1U}) {
        ExpectPlace(found[i].OnA, {0, 0}, "on A");
        ExpectPlace(found[i].OnB, {0, 0}, "on B");
    }
}

TEST(GeometryTangentCircles, AnUprightLineRunsDownFromItsUpperEnd) {
    // x = 0 and y = x, radius 1. Psi is 0 and 45, phi 90 and 45: they lean alike, and the bisectors are 22.5 and 67.5.
    // Beside the upright line all centres lie 1 to the left or right; above and below, at 1 / tan 22.5 and tan 22.5.
    const double far = 1 + std::sqrt(2.0);
    const double near = std::sqrt(2.0) - 1;
    for (const Segment& upright : {Segment{{0, -5}, {0, 5}}, Segment{{0, 5}, {0, -5}}}) {
        const Circles found =
            FindTangentCircles(RecordsOf(upright, {{-5, -5}, {5, 5}}), ItemAt({0, 0}), 1, Tangents::Exact);
        ExpectPlace(found[0].Centre, {-1, -far}, "1");
        ExpectPlace(found[1].Centre, {1, far}, "2");
        ExpectPlace(found[2].Centre, {-1, near}, "3");
        ExpectPlace(found[3].Centre, {1, -near}, "4");
    }
}

TEST(GeometryTangentCircles, AxesByHand) {
    // On the level line psi fails and phi is 0, on the upright one psi is 0 and phi fails: P is 0, Q 180, Dk and Tk
    // are skipped and 0. Two centres stay in the crossing, the others go straight up and down, without points.
    const Lines lines = RecordsOf({{0, 1}, {5, 1}}, {{2, -3}, {2, 4}});
    const Circles ruled = FindTangentCircles(lines, ItemAt({2, 1}), .5, Tangents::AsRuled);
    ExpectCircle(ruled[0], {{2, 1}, {2, 1}, {2, 1}}, "1");
    ExpectCircle(ruled[1], {{2, 1}, {2, 1}, {2, 1}}, "2");
    ExpectCircle(ruled[2], {{2, 1.5}, {0, 0}, {0, 0}}, "3");
    ExpectCircle(ruled[3], {{2, .5}, {0, 0}, {0, 0}}, "4");
    EXPECT_FALSE(EveryCircleTouches(lines, ItemAt({2, 1}), .5, ruled));
    // Exact: one circle in each quadrant.
    const Circles exact = FindTangentCircles(lines, ItemAt({2, 1}), .5, Tangents::Exact);
    for (const double x : {1.5, 2.5}) {
        for (const double y : {.5, 1.5}) {
            int there = 0;
            for (const TangentCircle& circle : exact) {
                if (std::hypot(circle.Centre.X - x, circle.Centre.Y - y) < 1e-9) {
                    ++there;
                    ExpectPlace(circle.OnA, {x, 1}, "on the level line");
                    ExpectPlace(circle.OnB, {2, y}, "on the upright line");
                }
            }
            EXPECT_EQ(there, 1) << x << "," << y;
        }
    }
}

TEST(GeometryTangentCircles, UprightAndSlantedByHand) {
    // x = 0 and y = x, radius 1: the half angles are 67.5 and 22.5 degrees. The third centre is (-1, t) with t the
    // tangent of 22.5, root 2 less 1.
    const double t = std::sqrt(2.0) - 1;
    const double half = std::sqrt(.5);
    const Circles found =
        FindTangentCircles(RecordsOf({{0, -2}, {0, 2}}, {{-2, -2}, {2, 2}}), ItemAt({0, 0}), 1, Tangents::AsRuled);
    ExpectCircle(found[2], {{-1, t}, {0, t}, {-1 + half, t - half}}, "3");
    ExpectCircle(found[3], {{1, -t}, {0, -t}, {1 - half, -t + half}}, "4");
}

TEST(GeometryTangentCircles, LinesThatAreGoneGiveZeros) {
    const Circles found = FindTangentCircles({}, ItemAt({3, 4}), 1, Tangents::AsRuled);
    ExpectPlace(found[0].Centre, {3, 4}, "1");
    ExpectPlace(found[1].Centre, {3, 4}, "2");
    // All angles 0: Q is 180 and Dh the radius.
    ExpectPlace(found[2].Centre, {3, 5}, "3");
    ExpectPlace(found[3].Centre, {3, 3}, "4");
    EXPECT_FALSE(EveryCircleTouches({}, ItemAt({3, 4}), 1, found));
    for (const TangentCircle& circle : FindTangentCircles({}, "", 1, Tangents::Exact)) {
        EXPECT_TRUE(std::isfinite(circle.Centre.X + circle.OnA.X + circle.OnB.Y));
    }
}

TEST(GeometryTangentCircles, LinesAreLookedUpByThreeCharacters) {
    const Lines lines{LineLine(10, "1", "2", "3", "4"), LineLine(100, "5", "6", "7", "8"),
                      LineLine(2, "9", "9", "8", "8")};
    const LinePair pair = FindLinePair(lines, ReadPair(PairText(" 10", " 2 ", " 0", " 0")));
    EXPECT_EQ(pair.A.Start.X, 5);  // 100 reads as 10 and stands later: intended
    EXPECT_EQ(pair.B.End.Y, 8);
}

// The rules written out plainly, with a not-a-number for a step that fails.

constexpr double Factor = 57.2957795130824;

void Set(double& target, double value) {
    if (std::isfinite(value)) {
        target = value;
    }
}

struct Angles {
    double psi = 0;
    double phi = 0;
    double dx = 0;
    double dy = 0;
    void Take(double x, double y, Tangents tangents) {
        dx = x;
        dy = y;
        Set(psi, Between(dx, dy, tangents));
        Set(phi, Between(dy, dx, tangents));
    }

private:
    static double Between(double over, double under, Tangents tangents) {
        if (under != 0) {
            return std::atan(over / under) * Factor;
        }
        const bool skipped = over == 0 || tangents == Tangents::AsRuled;
        return skipped ? std::numeric_limits<double>::quiet_NaN() : std::copysign(90, over);
    }
};

Segment LargerFirst(Segment line) {
    if (line.Start.X < line.End.X || (line.Start.X == line.End.X && line.Start.Y < line.End.Y)) {
        std::swap(line.Start, line.End);
    }
    return line;
}

Circles PlainRules(const Segment& lineA, const Segment& lineB, Position p, double R,
                   Tangents tangents = Tangents::AsRuled) {
    Angles A;
    Angles B;
    const Segment oa = LargerFirst(lineA);
    const Segment ob = LargerFirst(lineB);
    A.Take(oa.Start.X - oa.End.X, oa.Start.Y - oa.End.Y, tangents);
    B.Take(ob.Start.X - ob.End.X, ob.Start.Y - ob.End.Y, tangents);
    double P = std::fabs(A.psi) + std::fabs(B.psi);
    double Q = std::fabs(A.phi) + std::fabs(B.phi);
    const bool flag = std::fabs(std::fabs(Q / 2) - std::fabs((A.phi + B.phi) / 2)) < 5e-11 &&
                      std::fabs(std::fabs(P / 2) - std::fabs((A.psi + B.psi) / 2)) < 5e-11;
    if (flag) {
        P = std::fabs(std::fabs(A.psi) - std::fabs(B.psi));
        Q = 180 - P;
    }
    const double h = Q / 2;
    const double k = P / 2;
    double Dh = 0;
    double Dk = 0;
    double Tk = 0;
    Set(Dh, R / std::sin(h * Rad));
    Set(Dk, R / std::sin(k * Rad));
    Set(Tk, R / std::tan(k * Rad));
    const double m = (A.psi + B.psi) / 2;
    const double n = (A.phi + B.phi) / 2;
    const double a1 = Dh * std::cos(m * Rad);
    const double a2 = Dh * std::sin(m * Rad);
    const double b1 = Dk * std::cos(n * Rad);
    const double b2 = Dk * std::sin(n * Rad);
    Circles c{};
    if (!flag) {
        c[0].Centre = {p.X + b2, p.Y - b1};
        c[1].Centre = {p.X - b2, p.Y + b1};
        c[2].Centre = {p.X + a1, p.Y - a2};
        c[3].Centre = {p.X - a1, p.Y + a2};
    } else {
        c[0].Centre = {p.X - b1, p.Y - b2};
        c[1].Centre = {p.X + b1, p.Y + b2};
        if (m + n == 0) {
            c[2].Centre = {p.X + a2, p.Y + a1};
            c[3].Centre = {p.X - a2, p.Y - a1};
        } else {
            c[2].Centre = {p.X - a1, p.Y + a2};
            c[3].Centre = {p.X + a1, p.Y - a2};
        }
    }
    A.Take(lineA.Start.X - lineA.End.X, lineA.Start.Y - lineA.End.Y, tangents);
    B.Take(lineB.Start.X - lineB.End.X, lineB.Start.Y - lineB.End.Y, tangents);
    const double u1 = Tk * std::sin(A.psi * Rad);
    const double v1 = Tk * std::cos(A.psi * Rad);
    const double u2 = Tk * std::sin(B.psi * Rad);
    const double v2 = Tk * std::cos(B.psi * Rad);
    const double c1x = c[0].Centre.X;
    const double c1y = c[0].Centre.Y;
    const auto ahead = [&] {
        c[0].OnA = {p.X + u1, p.Y + v1};
        c[0].OnB = {p.X + u2, p.Y + v2};
        c[1].OnA = {p.X - u1, p.Y - v1};
        c[1].OnB = {p.X - u2, p.Y - v2};
    };
    const auto back = [&] {
        c[0].OnA = {p.X - u1, p.Y - v1};
        c[0].OnB = {p.X - u2, p.Y - v2};
        c[1].OnA = {p.X + u1, p.Y + v1};
        c[1].OnB = {p.X + u2, p.Y + v2};
    };
    if (c1x < p.X && c1y > p.Y) {
        ahead();
    }
    if (c1x > p.X && c1y < p.Y) {
        back();
    }
    if (c1x < p.X && c1y < p.Y) {
        back();
        if (std::fabs(A.psi + 90) < 5e-13) {
            c[0].OnA = {p.X + u1, p.Y - v1};
            c[1].OnA = {p.X - u1, p.Y + v1};
        }
        if (std::fabs(B.psi + 90) < 5e-13) {
            c[0].OnA = {p.X - u1, p.Y - v1};
            c[0].OnB = {p.X + u2, p.Y - v2};
            c[1].OnA = {p.X + u1, p.Y + v1};
            c[1].OnB = {p.X - u2, p.Y + v2};
        }
    }
    if (c1x == p.X) {
        back();
    }
    const double ca = R * std::cos(A.psi * Rad);
    const double sa = R * std::sin(A.psi * Rad);
    const double cb = R * std::cos(B.psi * Rad);
    const double sb = R * std::sin(B.psi * Rad);
    const Position c3 = c[2].Centre;
    const Position c4 = c[3].Centre;
    const auto caseI = [&] {
        c[2].OnA = {c3.X + ca, c3.Y - sa};
        c[2].OnB = {c3.X + cb, c3.Y - sb};
        c[3].OnA = {c4.X - ca, c4.Y + sa};
        c[3].OnB = {c4.X - cb, c4.Y + sb};
    };
    const auto caseII = [&] {
        c[2].OnA = {c3.X - ca, c3.Y + sa};
        c[2].OnB = {c3.X - cb, c3.Y + sb};
        c[3].OnA = {c4.X + ca, c4.Y - sa};
        c[3].OnB = {c4.X + cb, c4.Y - sb};
    };
    if (c3.X < p.X && c3.Y < p.Y) {
        caseI();
    } else if (c3.X > p.X && c3.Y > p.Y) {
        caseII();
        if (A.dx != 0 && B.dx == 0) {
            c[2].OnB = {c3.X - R, c3.Y};
            c[3].OnB = {c4.X + R, c4.Y};
        }
    } else if (c3.X > p.X && c3.Y < p.Y) {
        caseII();
        if (A.dy != 0 && B.dy == 0) {
            c[2].OnB = {c3.X, c3.Y + R};
            c[3].OnB = {c4.X, c4.Y - R};
        }
        if (A.dy == 0 && B.dy != 0) {
            c[2].OnA = {c3.X, c3.Y + R};
            c[3].OnA = {c4.X, c4.Y - R};
        }
    } else if (c3.X < p.X && c3.Y > p.Y) {
        caseI();
        if (A.dx == 0 && B.dy == 0) {
            caseI();
            c[2].OnA = {c3.X + R, c3.Y};
            c[2].OnB = {c3.X, c3.Y - R};
            c[3].OnA = {c4.X - R, c4.Y};
            c[3].OnB = {c4.X, c4.Y + R};
        }
        if (A.dx != 0 && B.dy == 0) {
            caseI();
            c[2].OnB = {c3.X, c3.Y - R};
            c[3].OnB = {c4.X, c4.Y + R};
        }
        if (A.dy != 0 && B.dx == 0) {
            caseI();
            c[2].OnB = {c3.X + R, c3.Y - sb};
            c[3].OnB = {c4.X - R, c4.Y + sb};
        }
        if (A.dx == 0 && B.dy != 0) {
            caseI();
            c[2].OnA = {c3.X + R, c3.Y};
            c[3].OnA = {c4.X - R, c4.Y};
        }
        if (A.dy == 0 && B.dx != 0) {
            caseI();
            c[2].OnA = {c3.X, c3.Y - R};
            c[3].OnA = {c4.X, c4.Y + R};
        }
        if (A.dy == 0 && B.dx == 0) {
            caseI();
            c[2].OnA = {c3.X, c3.Y - R};
            c[3].OnA = {c4.X, c4.Y + R};
        }
    } else if (c3.Y == p.Y) {
        c[2].OnA = {c3.X - ca, c3.Y + sa};
        c[3].OnA = {c4.X + ca, c4.Y - sa};
        c[2].OnB = {c[2].OnA.X, -c[2].OnA.Y};
        c[3].OnB = {c[3].OnA.X, -c[3].OnA.Y};
    }
    return c;
}

/// Lines through a common crossing; on a coarse grid of directions, so that the axes and mirrored pairs come often.
class Pairs {
public:
    struct Pair {
        Segment A;
        Segment B;
        Position Crossing;
        double Radius;
    };
    Pair Next(bool onGrid) {
        const Position p{std::round(Place() * 4) / 4, std::round(Place() * 4) / 4};
        Position a = Direction(onGrid);
        Position b = Direction(onGrid);
        while (std::fabs(a.X * b.Y - a.Y * b.X) < .05 * std::hypot(a.X, a.Y) * std::hypot(b.X, b.Y)) {
            b = Direction(onGrid);
        }
        return {{{p.X - a.X, p.Y - a.Y}, {p.X + a.X, p.Y + a.Y}},
                {{p.X - b.X, p.Y - b.Y}, {p.X + b.X, p.Y + b.Y}},
                p,
                .05 + std::fabs(Place()) / 4};
    }

private:
    double Place() { return std::uniform_real_distribution<double>(-10, 10)(random_); }
    Position Direction(bool onGrid) {
        const double step = onGrid ? 2.5 : 1.0 / 1024;  // dyadic steps, so that both ends are exact
        Position direction;
        do {
            direction = {std::round(Place() / step) * step, std::round(Place() / step) * step};
        } while (direction.X == 0 && direction.Y == 0);
        return direction;
    }

    std::mt19937 random_{12};
};

TEST(GeometryTangentCircles, FollowTheRulesInEveryPosition) {
    Pairs pairs;
    int checked = 0;
    for (int i = 0; i < 40000; ++i) {
        const Pairs::Pair pair = pairs.Next(i % 2 == 0);
        const Circles found =
            FindTangentCircles(RecordsOf(pair.A, pair.B), ItemAt(pair.Crossing), pair.Radius, Tangents::AsRuled);
        const Circles plain = PlainRules(pair.A, pair.B, pair.Crossing, pair.Radius);
        for (std::size_t j = 0; j < 4; ++j) {
            const std::string what = RecordsOf(pair.A, pair.B)[0] + '\n' + RecordsOf(pair.A, pair.B)[1];
            const double slack = 1e-11 * (1 + std::hypot(plain[j].Centre.X, plain[j].Centre.Y));
            ASSERT_NEAR(found[j].Centre.X, plain[j].Centre.X, slack) << what;
            ASSERT_NEAR(found[j].Centre.Y, plain[j].Centre.Y, slack) << what;
            ASSERT_NEAR(found[j].OnA.X, plain[j].OnA.X, slack) << what << j;
            ASSERT_NEAR(found[j].OnA.Y, plain[j].OnA.Y, slack) << what << j;
            ASSERT_NEAR(found[j].OnB.X, plain[j].OnB.X, slack) << what << j;
            ASSERT_NEAR(found[j].OnB.Y, plain[j].OnB.Y, slack) << what << j;
            ++checked;
        }
    }
    EXPECT_EQ(checked, 160000);
}

/// Directions on the axes, beside them and between them, and none: a line that is gone. The hairs are within the
/// twelve decimals of a right angle, within the ten of an angle's equality, and outside both.
std::vector<Position> Directions() {
    std::vector<Position> found{{0, 0}, {1, 1}, {1, -1}, {3, 4}, {4, -3}, {-5, 2}, {2, 5}};
    for (const double hair : {0.0, 8e-15, 2e-13, 1e-11}) {
        for (const double sign : {1.0, -1.0}) {
            found.push_back({5, 5 * hair * sign});
            found.push_back({5 * hair * sign, 5});
        }
    }
    return found;
}

/// The same line from either end.
std::array<Segment, 2> BothWays(Position direction) {
    const Position back{-direction.X, -direction.Y};
    return {Segment{back, direction}, Segment{direction, back}};
}

TEST(GeometryTangentCircles, TablesAreFollowedOnAndBesideTheAxes) {
    // Only the directions of the lines count. Far out a radius is lost beside the crossing, in one coordinate or both.
    const auto expectNear = [](Position found, Position expected) {
        ASSERT_NEAR(found.X, expected.X, 1e-15 + 1e-13 * std::fabs(expected.X));
        ASSERT_NEAR(found.Y, expected.Y, 1e-15 + 1e-13 * std::fabs(expected.Y));
    };
    const auto expectRules = [&](const LinePair& lines, Position crossing, Tangents tangents) {
        constexpr double Radius = .75;
        const Circles found = CirclesByTables(lines, crossing, Radius, tangents);
        const Circles plain = PlainRules(lines.A, lines.B, crossing, Radius, tangents);
        for (std::size_t i = 0; i < 4; ++i) {
            SCOPED_TRACE(i + 1);
            ASSERT_NO_FATAL_FAILURE(expectNear(found[i].Centre, plain[i].Centre));
            ASSERT_NO_FATAL_FAILURE(expectNear(found[i].OnA, plain[i].OnA));
            ASSERT_NO_FATAL_FAILURE(expectNear(found[i].OnB, plain[i].OnB));
        }
    };
    const std::vector<Position> directions = Directions();
    for (const Position a : directions) {
        for (const Position b : directions) {
            for (std::size_t ends = 0; ends < 4; ++ends) {
                const LinePair lines{BothWays(a)[ends / 2], BothWays(b)[ends % 2]};
                for (const Position crossing : {Position{0, 0}, {3, 1}, {-2, -7}, {0, 1e17}, {1e17, 0}, {1e17, 1e17}}) {
                    for (const Tangents tangents : {Tangents::AsRuled, Tangents::Exact}) {
                        ASSERT_NO_FATAL_FAILURE(expectRules(lines, crossing, tangents))
                            << a.X << ',' << a.Y << " and " << b.X << ',' << b.Y << ", ends " << ends << ", crossing "
                            << crossing.X << ',' << crossing.Y
                            << (tangents == Tangents::Exact ? " exact" : " as ruled");
                    }
                }
            }
        }
    }
}

// Truth by a second method.

double DistanceTo(Position place, const Segment& line) {
    const double ax = line.End.X - line.Start.X;
    const double ay = line.End.Y - line.Start.Y;
    return std::fabs(ax * (line.Start.Y - place.Y) - ay * (line.Start.X - place.X)) / std::sqrt(ax * ax + ay * ay);
}

void ExpectTrue(const Circles& found, const Pairs::Pair& pair) {
    for (const TangentCircle& circle : found) {
        ASSERT_NEAR(DistanceTo(circle.Centre, pair.A), pair.Radius, 1e-9);
        ASSERT_NEAR(DistanceTo(circle.Centre, pair.B), pair.Radius, 1e-9);
        ASSERT_NEAR(DistanceTo(circle.OnA, pair.A), 0, 1e-9);
        ASSERT_NEAR(DistanceTo(circle.OnB, pair.B), 0, 1e-9);
        ASSERT_NEAR(std::hypot(circle.OnA.X - circle.Centre.X, circle.OnA.Y - circle.Centre.Y), pair.Radius, 1e-9);
        ASSERT_NEAR(std::hypot(circle.OnB.X - circle.Centre.X, circle.OnB.Y - circle.Centre.Y), pair.Radius, 1e-9);
    }
    for (std::size_t i = 0; i < 4; ++i) {  // one circle in each sector
        for (std::size_t j = 0; j < i; ++j) {
            ASSERT_GT(std::hypot(found[i].Centre.X - found[j].Centre.X, found[i].Centre.Y - found[j].Centre.Y),
                      pair.Radius);
        }
    }
}

bool ParallelToAnAxis(const Segment& line) {
    return line.Start.X == line.End.X || line.Start.Y == line.End.Y;
}

double Steepness(const Segment& line) {
    return std::fabs((line.End.Y - line.Start.Y) / (line.End.X - line.Start.X));
}

/// The quadrants of the centres around the crossing, and each point straight above, below or beside its centre.
void ExpectOneInEachQuadrant(const Circles& found, Position crossing, double radius, bool levelIsA) {
    std::array<int, 4> inQuadrant{};
    for (const TangentCircle& circle : found) {
        const double x = circle.Centre.X < crossing.X ? -radius : radius;
        const double y = circle.Centre.Y < crossing.Y ? -radius : radius;
        ++inQuadrant[(x < 0 ? 1U : 0U) + (y < 0 ? 2U : 0U)];
        ExpectPlace(circle.Centre, {crossing.X + x, crossing.Y + y}, "centre");
        ExpectPlace(levelIsA ? circle.OnA : circle.OnB, {crossing.X + x, crossing.Y}, "on the level line");
        ExpectPlace(levelIsA ? circle.OnB : circle.OnA, {crossing.X, crossing.Y + y}, "on the upright line");
    }
    EXPECT_EQ(inQuadrant, (std::array{1, 1, 1, 1}));
}

TEST(GeometryTangentCircles, TablesAreTrueForLevelAndUprightOnceRatiosMayBeInfinite) {
    for (std::size_t ends = 0; ends < 4; ++ends) {
        const Segment level = BothWays({5, 0})[ends / 2];
        const Segment upright = BothWays({0, 5})[ends % 2];
        for (const Position crossing : {Position{0, 0}, {2, 1}, {-2, 1}, {-2, -1}, {2, -1}}) {
            SCOPED_TRACE(ends);
            ExpectOneInEachQuadrant(CirclesByTables({level, upright}, crossing, .5, Tangents::Exact), crossing, .5,
                                    true);
            ExpectOneInEachQuadrant(CirclesByTables({upright, level}, crossing, .5, Tangents::Exact), crossing, .5,
                                    false);
        }
    }
}

TEST(GeometryTangentCircles, AHairOffTheAxesTheFirstTwoCirclesStayTrue) {
    // Level falls to the right and upright leans to the right, by less than the angles' decimals: they count as leaning
    // alike, and the first centre is to the lower left, where a point's own angle has the wrong sign.
    const Segment level{{-5, 4e-14}, {5, -4e-14}};
    const Segment upright{{-4e-14, -5}, {4e-14, 5}};
    const Circles levelFirst = CirclesByTables({level, upright}, {2, 1}, .5, Tangents::AsRuled);
    ExpectCircle(levelFirst[0], {{1.5, .5}, {1.5, 1}, {2, .5}}, "1");
    ExpectCircle(levelFirst[1], {{2.5, 1.5}, {2.5, 1}, {2, 1.5}}, "2");
    const Circles uprightFirst = CirclesByTables({upright, level}, {2, 1}, .5, Tangents::AsRuled);
    ExpectCircle(uprightFirst[0], {{1.5, .5}, {2, .5}, {1.5, 1}}, "1");
    ExpectCircle(uprightFirst[1], {{2.5, 1.5}, {2, 1.5}, {2.5, 1}}, "2");
}

TEST(GeometryTangentCircles, OrdinaryPositionsAreTrue) {
    Pairs pairs;
    int checked = 0;
    while (checked < 20000) {
        const Pairs::Pair pair = pairs.Next(checked % 2 == 0);
        if (ParallelToAnAxis(pair.A) || ParallelToAnAxis(pair.B) || Steepness(pair.A) == Steepness(pair.B)) {
            continue;
        }
        ++checked;
        const Lines lines = RecordsOf(pair.A, pair.B);
        const Circles found = FindTangentCircles(lines, ItemAt(pair.Crossing), pair.Radius, Tangents::AsRuled);
        ASSERT_NO_FATAL_FAILURE(ExpectTrue(found, pair)) << lines[0] << '\n' << lines[1];
        ASSERT_TRUE(EveryCircleTouches(lines, ItemAt(pair.Crossing), pair.Radius, found));
    }
}

TEST(GeometryTangentCircles, ExactTangentsAreTrueInEveryPosition) {
    Pairs pairs;
    for (int i = 0; i < 40000; ++i) {
        const Pairs::Pair pair = pairs.Next(i % 2 == 0);
        const Lines lines = RecordsOf(pair.A, pair.B);
        const Circles found = FindTangentCircles(lines, ItemAt(pair.Crossing), pair.Radius, Tangents::Exact);
        ASSERT_NO_FATAL_FAILURE(ExpectTrue(found, pair)) << lines[0] << '\n' << lines[1];
        ASSERT_TRUE(EveryCircleTouches(lines, ItemAt(pair.Crossing), pair.Radius, found));
    }
}

TEST(GeometryTangentCircles, ALineParallelToAnAxisMissesAsRuled) {
    const auto touches = [](const Segment& a, const Segment& b) {
        const Lines lines = RecordsOf(a, b);
        return EveryCircleTouches(lines, ItemAt({0, 0}), 1,
                                  FindTangentCircles(lines, ItemAt({0, 0}), 1, Tangents::AsRuled));
    };
    const Segment level{{-5, 0}, {5, 0}};
    const Segment upright{{0, -5}, {0, 5}};
    const Segment slanted{{-5, -2}, {5, 2}};
    const Segment steep{{-1, -5}, {1, 5}};
    EXPECT_FALSE(touches(level, upright));
    EXPECT_FALSE(touches(upright, level));
    EXPECT_FALSE(touches(slanted, upright));
    EXPECT_FALSE(touches(level, slanted));
    EXPECT_TRUE(touches(slanted, steep));
}

}  // namespace
}  // namespace brindlex::geometry
