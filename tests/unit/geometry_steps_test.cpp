// Steps that are skipped, and ratios without a divisor.
#include "geometry/steps.h"

#include <gtest/gtest.h>

namespace brindlex::geometry {
namespace {

double DegreesOf(double dividend, double divisor, Tangents tangents) {
    Checked degrees = 7;
    Step(degrees, [&] { return ArcTangent(Divide(dividend, divisor, tangents), DegreesPerRadian); });
    return degrees.Value();
}

TEST(GeometrySteps, ARatioWithoutADivisorIsSkippedOrInfinite) {
    EXPECT_EQ(DegreesOf(3, 0, Tangents::AsRuled), 7) << "the target keeps its value";
    EXPECT_EQ(DegreesOf(3, 0, Tangents::Exact), 90);
    EXPECT_EQ(DegreesOf(-3, 0, Tangents::Exact), -90);
    EXPECT_EQ(DegreesOf(0, 0, Tangents::Exact), 7) << "nothing by nothing is no direction";
    for (const Tangents tangents : {Tangents::AsRuled, Tangents::Exact}) {
        EXPECT_NEAR(DegreesOf(-2, 2, tangents), -45, 1e-12);
        EXPECT_EQ(DegreesOf(0, 5, tangents), 0);
    }
}

TEST(GeometrySteps, OverflowIsSkippedToo) {
    EXPECT_EQ(DegreesOf(1e300, 1e-300, Tangents::AsRuled), 7);
    EXPECT_EQ(DegreesOf(1e300, 1e-300, Tangents::Exact), 7);
}

TEST(GeometrySteps, DegreesAreNotQuiteThoseOfPi) {
    EXPECT_EQ(DegreesPerRadian, 57.2957795130824);
}

}  // namespace
}  // namespace brindlex::geometry
