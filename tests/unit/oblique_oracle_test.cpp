// Oblique triangles: the nineteen cases against an oracle that only knows the laws of a triangle.
#include "oblique/solver.h"
#include "obliquecase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <random>

namespace brindlex::oblique {
namespace {

using Real = long double;

constexpr Real RadLong = std::numbers::pi_v<Real> / 180;

Real SinDegrees(Real degrees) {
    return std::sin(degrees * RadLong);
}

/// A triangle that was made from two angles and the size of its circumscribed circle.
struct Made {
    std::array<Real, ElementCount> values{};

    Made(Real A, Real B, Real diameter) {
        const Real C = 180 - A - B;
        values = {A, B, C, diameter * SinDegrees(A), diameter * SinDegrees(B), diameter * SinDegrees(C)};
    }
    [[nodiscard]] Real operator[](Element element) const { return values[Index(element)]; }
    [[nodiscard]] double Entry(Element element) const { return static_cast<double>((*this)[element]); }
    [[nodiscard]] Real SmallestSine() const {
        return std::min({SinDegrees(values[0]), SinDegrees(values[1]), SinDegrees(values[2])});
    }
};

/// The largest violation of the laws: angle sum over 180, sines over the longest side, cosines over its square.
Real Violation(const Triangle& t) {
    const std::array<Real, 3> angle = {t.A, t.B, t.C};
    const Real longest = std::max({t.a, t.b, t.c});
    const std::array<Real, 3> side = {t.a / longest, t.b / longest, t.c / longest};
    Real worst = std::fabs(angle[0] + angle[1] + angle[2] - 180) / 180;
    for (std::size_t i = 0; i < 3; ++i) {
        const std::size_t j = (i + 1) % 3;
        const std::size_t k = (i + 2) % 3;
        const Real sines = side[i] * SinDegrees(angle[j]) - side[j] * SinDegrees(angle[i]);
        const Real cosines = side[i] * side[i] - side[j] * side[j] - side[k] * side[k] +
                             2 * side[j] * side[k] * std::cos(angle[i] * RadLong);
        worst = std::max({worst, std::fabs(sines), std::fabs(cosines)});
    }
    return worst;
}

/// What rounding of doubles can do to a triangle: the more the thinner it is, and the more the nearer an arcsine is to
/// a right angle.
Real Tolerance(const Made& made, const Case& row) {
    Real tolerance = 1e-12L + 2e-14L / made.SmallestSine();
    if (row.Kind == Family::Ambiguous) {
        const Real cosine = std::fabs(std::cos(made[row.Found[0]] * RadLong));
        tolerance += std::min(1e-7L, 1e-14L / std::max(cosine, 1e-9L));
    }
    return tolerance;
}

struct Outcome {
    Refusal refusal = Refusal::None;
    Triangle triangle;
};

Outcome SolveMade(const Made& made, const Case& row) {
    const bool obtuse = row.Kind == Family::Ambiguous && made[row.Found[0]] > 90;
    Outcome outcome;
    outcome.refusal = RunCase(outcome.triangle, row.Entry, made.Entry(row.Given[0]), made.Entry(row.Given[1]),
                              made.Entry(row.Given[2]), obtuse != row.ObtuseFirst);
    return outcome;
}

class Triangles {
public:
    Real Between(Real low, Real high) { return std::uniform_real_distribution<Real>(low, high)(random_); }
    /// All angles above one degree, sides of a size that is met on a drawing.
    Made Ordinary() {
        const Real A = Between(1, 177);
        return {A, Between(1, 179 - A), std::pow(10.0L, Between(-3, 4))};
    }
    /// One or two angles down to 1e-9 degrees, sides down to 1e-150 and up to 1e150.
    Made Extreme() {
        const Real thin = std::pow(10.0L, Between(-9, 1));
        const Real other = Between(0, 1) < 0.5L ? std::pow(10.0L, Between(-9, 1)) : Between(1, 160);
        std::array<Real, 3> angles = {thin, other, 180 - thin - other};
        std::shuffle(angles.begin(), angles.end(), random_);
        return {angles[0], angles[1], std::pow(10.0L, Between(-150, 150))};
    }

private:
    std::mt19937_64 random_{20260};
};

TEST(ObliqueOracle, OrdinaryTrianglesComeBackFromEveryCase) {
    Triangles triangles;
    for (int round = 0; round < 2000; ++round) {
        const Made made = triangles.Ordinary();
        for (const Case& row : Cases()) {
            const auto [refusal, found] = SolveMade(made, row);
            ASSERT_EQ(refusal, Refusal::None) << row.Entry << " round " << round;
            const Real tolerance = Tolerance(made, row);
            ASSERT_LT(Violation(found), tolerance) << row.Entry << " round " << round;
            const Real longest = std::max({made[Element::a], made[Element::b], made[Element::c]});
            for (const Element element : AllElements) {
                const Real scale = IsAngle(element) ? 180 : longest;
                ASSERT_NEAR(static_cast<double>(found.Working(element) / scale),
                            static_cast<double>(made[element] / scale), static_cast<double>(tolerance * 100))
                    << row.Entry << " round " << round << " " << LabelOf(element);
            }
        }
    }
}

TEST(ObliqueOracle, ExtremeTrianglesFulfilTheLawsOrAreRefused) {
    Triangles triangles;
    std::array<int, 4> solved{};
    for (int round = 0; round < 5000; ++round) {
        const Made made = triangles.Extreme();
        for (const Case& row : Cases()) {
            const auto [refusal, found] = SolveMade(made, row);
            for (const Element element : AllElements) {
                ASSERT_TRUE(std::isfinite(found.Working(element))) << row.Entry << " round " << round;
            }
            if (row.Kind == Family::TwoAngles) {
                ASSERT_EQ(refusal, Refusal::None) << row.Entry << " round " << round;
            }
            if (refusal == Refusal::None) {
                ++solved[static_cast<std::size_t>(row.Kind)];
                ASSERT_LT(Violation(found), Tolerance(made, row)) << row.Entry << " round " << round;
            }
        }
    }
    // Most of what is not refused for its thinness is solved, so that the laws were really looked at.
    EXPECT_EQ(solved[static_cast<std::size_t>(Family::TwoAngles)], 9 * 5000);
    EXPECT_GT(solved[static_cast<std::size_t>(Family::Ambiguous)], 6 * 2500);
    EXPECT_GT(solved[static_cast<std::size_t>(Family::IncludedAngle)], 3 * 1000);
    EXPECT_GT(solved[static_cast<std::size_t>(Family::ThreeSides)], 1000);
}

TEST(ObliqueOracle, BothSolutionsOfAnAmbiguousCaseFulfilTheLaws) {
    Triangles triangles;
    int both = 0;
    for (int round = 0; round < 2000; ++round) {
        const Made made = triangles.Ordinary();
        for (const Case& row : Cases()) {
            if (row.Kind != Family::Ambiguous) {
                continue;
            }
            std::array<Refusal, 2> refusals{};
            std::array<Triangle, 2> found;
            for (const bool again : {false, true}) {
                refusals[again] = RunCase(found[again], row.Entry, made.Entry(row.Given[0]), made.Entry(row.Given[1]),
                                          made.Entry(row.Given[2]), again);
                if (refusals[again] == Refusal::None) {
                    ASSERT_LT(Violation(found[again]), Tolerance(made, row) * 10) << row.Entry << " round " << round;
                }
            }
            // There is a second triangle exactly when the side opposite the given angle is the shorter entered side.
            const Element wantedSide = AllElements[Index(row.Found[0]) + 3];
            const Element givenSide = AllElements[Index(row.Given[0]) + 3];
            const Real ratio = made[givenSide] / made[wantedSide];
            if (std::fabs(ratio - 1) < 1e-9L) {
                continue;
            }
            const bool second = ratio < 1;
            ASSERT_EQ(refusals[row.ObtuseFirst ? 0 : 1] == Refusal::None, second) << row.Entry << " round " << round;
            ASSERT_EQ(refusals[row.ObtuseFirst ? 1 : 0], Refusal::None) << row.Entry << " round " << round;
            both += second ? 1 : 0;
        }
    }
    EXPECT_GT(both, 2000);
}

}  // namespace
}  // namespace brindlex::oblique
