// Gauge-block buildups: the order of the checks, and buildups worked out by hand and by another formula.
// Units: degrees; spacing in inches, buildups in inches or millimeters.
#include "faultof.h"
#include "radians.h"
#include "sineplate/solver.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace brindlex::sineplate {
namespace {

constexpr double Inch = 1;
constexpr double Millimeter = 25.4;

struct CheckRow {
    PlateEntries Entries;
    PlateRefusal Expected;
};

void ExpectRefusals(const std::vector<CheckRow>& rows) {
    for (const CheckRow& row : rows) {
        EXPECT_EQ(CheckPlate(row.Entries), row.Expected)
            << row.Entries.FirstAngle << " | " << row.Entries.SecondAngle << " | " << row.Entries.SecondShown << " | "
            << row.Entries.Spacing;
    }
}

TEST(SinePlateChecks, EntriesHaveToBeThere) {
    ExpectRefusals({
        {{"30", "", false, "5\""}, PlateRefusal::None},
        {{"30", "20", true, "5\""}, PlateRefusal::None},
        {{"", "", false, "5\""}, PlateRefusal::FirstAngleMissing},
        {{"0", "", false, "5\""}, PlateRefusal::FirstAngleMissing},
        {{"30", "", true, "5\""}, PlateRefusal::SecondAngleMissing},
        {{"30", "0", true, "5\""}, PlateRefusal::SecondAngleMissing},
        {{"30", "0", false, "5\""}, PlateRefusal::SecondAngleMissing},  // hidden, and refused all the same
        {{"30", "", false, ""}, PlateRefusal::SpacingMissing},
    });
}

TEST(SinePlateChecks, BeyondTheRangeOfADoubleTheSignDecides) {
    ExpectRefusals({
        {{"1E309", "", false, "5"}, PlateRefusal::FirstAngleTooLarge},
        {{"  1E309", "", false, "5"}, PlateRefusal::FirstAngleTooLarge},
        {{"-1E309", "", false, "5"}, PlateRefusal::None},
        {{"  -1E309", "", false, "5"}, PlateRefusal::None},
        {{"30", " 1E309", true, "5"}, PlateRefusal::SecondAngleTooLarge},
    });
}

TEST(SinePlateChecks, OnlyTheTextOfAZeroIsRefused) {
    ExpectRefusals({
        {{"0.0", "", false, "5\""}, PlateRefusal::None},
        {{"00", "", false, "5\""}, PlateRefusal::None},
        {{".", "", false, "5\""}, PlateRefusal::None},
        {{"30", "0.0", true, "5\""}, PlateRefusal::None},
        {{"thirty", "", false, "five"}, PlateRefusal::None},
    });
}

TEST(SinePlateChecks, AnglesGoUpToNinety) {
    ExpectRefusals({
        {{"90", "", false, "5\""}, PlateRefusal::None},
        {{"90.0001", "", false, "5\""}, PlateRefusal::FirstAngleTooLarge},
        {{"30", "90", true, "5\""}, PlateRefusal::None},
        {{"30", "91", true, "5\""}, PlateRefusal::SecondAngleTooLarge},
        {{"30", "91", false, "5\""}, PlateRefusal::SecondAngleTooLarge},
        {{"-30", "", false, "5\""}, PlateRefusal::None},
        {{"91\xB0  0'  0\"", "", false, "5\""}, PlateRefusal::FirstAngleTooLarge},
    });
}

TEST(SinePlateChecks, NumbersBeyondADoubleAreAboveTheLimitUnlessNegative) {
    const std::string digits(400, '9');
    ExpectRefusals({
        {{digits, "", false, "5\""}, PlateRefusal::FirstAngleTooLarge},
        {{"1E400", "", false, "5\""}, PlateRefusal::FirstAngleTooLarge},
        {{"  1E400", "", false, "5\""}, PlateRefusal::FirstAngleTooLarge},
        {{"-1E400", "", false, "5\""}, PlateRefusal::None},
        {{"30", digits, true, "5\""}, PlateRefusal::SecondAngleTooLarge},
        {{"30", "", false, digits}, PlateRefusal::None},
    });
}

TEST(SinePlateChecks, TheFirstFaultInTheirOrderCounts) {
    ExpectRefusals({
        {{"", "", true, ""}, PlateRefusal::FirstAngleMissing},
        {{"91", "", true, ""}, PlateRefusal::SecondAngleMissing},
        {{"91", "91", true, ""}, PlateRefusal::SpacingMissing},
        {{"91", "91", true, "5\""}, PlateRefusal::FirstAngleTooLarge},
    });
}

TEST(SinePlateSolver, RegularPlates) {
    EXPECT_NEAR(SolveRegular(30, 5, Inch, Rad).Bottom, 2.5, 1e-14);
    EXPECT_NEAR(SolveRegular(30, 5, Millimeter, Rad).Bottom, 63.5, 1e-12);
    EXPECT_NEAR(SolveRegular(45, 10, Inch, Rad).Bottom, 7.07106781186548, 1e-13);  // 10 / sqrt 2
    EXPECT_NEAR(SolveRegular(60, 20, Inch, Rad).Bottom, 17.3205080756888, 1e-12);  // 10 * sqrt 3
    EXPECT_EQ(SolveRegular(90, 5, Inch, Rad).Bottom, 5);
    EXPECT_EQ(SolveRegular(0, 5, Inch, Rad).Bottom, 0);
    EXPECT_NEAR(SolveRegular(-30, 5, Inch, Rad).Bottom, -2.5, 1e-14);
    EXPECT_EQ(SolveRegular(30, 5, Inch, Rad).Top, 0);
}

TEST(SinePlateSolver, CompoundPlateOfSixtyOverFortyFive) {
    // cos 60 * tan 45 = 1/2, and the sine of the angle whose tangent is 1/2 is 1 / sqrt 5.
    const Buildup inches = SolveCompound(60, 45, 10, Inch, Rad);
    EXPECT_NEAR(inches.Top, 8.66025403784439, 1e-13);
    EXPECT_NEAR(inches.Bottom, 4.47213595499958, 1e-13);
    const Buildup millimeters = SolveCompound(60, 45, 10, Millimeter, Rad);
    EXPECT_NEAR(millimeters.Top, 219.970452561247, 1e-11);
    EXPECT_NEAR(millimeters.Bottom, 113.592253256989, 1e-11);
}

TEST(SinePlateSolver, CompoundPlatesByTheSineDirectly) {
    // sin(atan x) = x / sqrt(1 + x * x) needs no angle at all.
    for (double top = 0; top <= 89; top += 8.9) {
        for (double bottom = 1; bottom <= 89; bottom += 8.8) {
            const Buildup stack = SolveCompound(top, bottom, 5, Inch, Rad);
            const double x = std::cos(top * Pi / 180) * std::tan(bottom * Pi / 180);
            EXPECT_NEAR(stack.Bottom, 5 * x / std::sqrt(1 + x * x), 1e-12) << top << " over " << bottom;
            EXPECT_NEAR(stack.Top, 5 * std::sin(top * Pi / 180), 1e-12) << top;
        }
    }
}

TEST(SinePlateSolver, CompoundPlatesAtTheEnds) {
    const Buildup flat = SolveCompound(0, 30, 5, Inch, Rad);
    EXPECT_EQ(flat.Top, 0);
    EXPECT_NEAR(flat.Bottom, 2.5, 1e-13);
    const Buildup upright = SolveCompound(30, 90, 5, Inch, Rad);
    EXPECT_NEAR(upright.Top, 2.5, 1e-13);
    EXPECT_NEAR(upright.Bottom, 5, 1e-13);
    EXPECT_LE(upright.Bottom, 5);
}

TEST(SinePlateSolver, ResultsBeyondADoubleAreFaults) {
    EXPECT_EQ(FaultOf([] { static_cast<void>(SolveRegular(90, 1e308, Millimeter, Rad)); }), FaultNumber::Overflow);
    EXPECT_EQ(FaultOf([] { static_cast<void>(SolveCompound(90, 45, 1e308, Millimeter, Rad)); }), FaultNumber::Overflow);
    EXPECT_EQ(FaultOf([] { static_cast<void>(SolveRegular(90, 1e308, Inch, Rad)); }), std::nullopt);
}

}  // namespace
}  // namespace brindlex::sineplate
