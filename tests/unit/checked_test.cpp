// Arithmetic that notices its faults.
#include "frame/checked.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <optional>

namespace brindlex {
namespace {

using Limits = std::numeric_limits<double>;

/// The number of the fault that a calculation ends in, if any.
std::optional<FaultNumber> FaultIn(const std::function<Checked()>& calculation) {
    try {
        static_cast<void>(calculation());
    } catch (const Fault& fault) {
        return fault.Number();
    }
    return std::nullopt;
}

TEST(Checked, CalculatesAsDoublesDo) {
    const Checked a = 7.5;
    const Checked b = -2.5;
    EXPECT_EQ((a + b).Value(), 5.0);
    EXPECT_EQ((a - b).Value(), 10.0);
    EXPECT_EQ((a * b).Value(), -18.75);
    EXPECT_EQ((a / b).Value(), -3.0);
    EXPECT_EQ((-a).Value(), -7.5);
    EXPECT_EQ((2.0 * a + 1.0).Value(), 16.0);
    EXPECT_EQ(static_cast<double>(a), 7.5);
    EXPECT_EQ(Checked().Value(), 0.0);
}

TEST(Checked, AssignsInPlace) {
    Checked x = 10.0;
    x += 2.0;
    EXPECT_EQ(x.Value(), 12.0);
    x -= 4.0;
    EXPECT_EQ(x.Value(), 8.0);
    x *= 0.5;
    EXPECT_EQ(x.Value(), 4.0);
    x /= 8.0;
    EXPECT_EQ(x.Value(), 0.5);
}

TEST(Checked, Compares) {
    EXPECT_TRUE(Checked(1.0) < 2.0);
    EXPECT_TRUE(Checked(2.0) >= 2.0);
    EXPECT_TRUE(Checked(2.0) == 2.0);
    EXPECT_TRUE(Checked(2.0) != 2.5);
    EXPECT_TRUE(Checked(0.0) == Checked(-0.0));
    EXPECT_FALSE(Checked(3.0) <= 2.0);
}

TEST(Checked, DivisionTellsItsTwoFaultsApart) {
    EXPECT_EQ(FaultIn([] { return Checked(1.0) / 0.0; }), FaultNumber::DivisionByZero);
    EXPECT_EQ(FaultIn([] { return Checked(-1e-300) / -0.0; }), FaultNumber::DivisionByZero);
    EXPECT_EQ(FaultIn([] { return Checked(0.0) / 0.0; }), FaultNumber::Overflow);
    EXPECT_EQ(FaultIn([] { return Checked(-0.0) / 0.0; }), FaultNumber::Overflow);
    EXPECT_EQ(FaultIn([] { return Checked(0.0) / 5.0; }), std::nullopt);
}

TEST(Checked, NoticesOverflow) {
    EXPECT_EQ(FaultIn([] { return Checked(1e308) * 10.0; }), FaultNumber::Overflow);
    EXPECT_EQ(FaultIn([] { return Checked(Limits::max()) + Limits::max(); }), FaultNumber::Overflow);
    EXPECT_EQ(FaultIn([] { return Checked(Limits::lowest()) - Limits::max(); }), FaultNumber::Overflow);
    EXPECT_EQ(FaultIn([] { return Checked(1e300) / 1e-300; }), FaultNumber::Overflow);
    EXPECT_EQ(FaultIn([] { return Checked(Limits::infinity()); }), FaultNumber::Overflow);
    EXPECT_EQ(FaultIn([] { return Checked(Limits::quiet_NaN()); }), FaultNumber::Overflow);
}

TEST(Checked, UnderflowIsNoFault) {
    EXPECT_EQ((Checked(1e-300) * 1e-300).Value(), 0.0);
    EXPECT_EQ((Checked(Limits::min()) / 2.0).Value(), Limits::min() / 2.0);
}

TEST(Checked, AFaultLeavesTheNumberAlone) {
    Checked x = 1e308;
    EXPECT_FALSE(Guarded([&] { x *= 100.0; }));
    EXPECT_EQ(x.Value(), 1e308);
    EXPECT_FALSE(Guarded([&] { x /= 0.0; }));
    EXPECT_EQ(x.Value(), 1e308);
}

TEST(Checked, SquareRoot) {
    EXPECT_EQ(Sqr(6.25).Value(), 2.5);
    EXPECT_EQ(Sqr(0.0).Value(), 0.0);
    EXPECT_EQ(Sqr(-0.0).Value(), 0.0);
    EXPECT_EQ(FaultIn([] { return Sqr(-1e-300); }), FaultNumber::BadArgument);
}

TEST(Checked, Functions) {
    const double third = std::acos(-1.0) / 3.0;
    EXPECT_NEAR(Sin(third / 2.0).Value(), 0.5, 1e-15);
    EXPECT_NEAR(Cos(third).Value(), 0.5, 1e-15);
    EXPECT_NEAR(Tan(third * 0.75).Value(), 1.0, 1e-15);
    EXPECT_NEAR(Atn(1.0).Value() * 4.0, 3.141592653589793, 1e-15);
    EXPECT_EQ(Abs(-3.5).Value(), 3.5);
    EXPECT_EQ(Abs(3.5).Value(), 3.5);
}

}  // namespace
}  // namespace brindlex
