// Double arithmetic that notices its faults, so that formulas still read as formulas.
// No infinity and no not-a-number leaves it: dividing by zero, the root of a negative number and a result
// that overflows throw Fault instead. Underflow to zero or to a denormal is no fault.
#pragma once

#include "frame/fault.h"

#include <cmath>

namespace brindlex {

/// A finite double. Every operation checks its result.
class Checked {
public:
    constexpr Checked() = default;
    /// Takes any double; throws Overflow for an infinity or a not-a-number. Implicit on purpose: literals mix in.
    Checked(double value) : value_(Finite(value)) {}  // NOLINT(google-explicit-constructor)

    /// Takes a value that its maker knows to be finite, unchecked.
    struct Known {};
    constexpr Checked(double value, Known /*known*/) noexcept : value_(value) {}

    [[nodiscard]] constexpr double Value() const noexcept { return value_; }
    constexpr explicit operator double() const noexcept { return value_; }

    friend Checked operator+(Checked a, Checked b) { return {a.value_ + b.value_}; }
    friend Checked operator-(Checked a, Checked b) { return {a.value_ - b.value_}; }
    friend Checked operator*(Checked a, Checked b) { return {a.value_ * b.value_}; }
    /// 0 divided by 0 is Overflow; another number divided by 0 is DivisionByZero.
    friend Checked operator/(Checked a, Checked b) {
        // One test for all: no quotient by 0 is finite.
        const double quotient = a.value_ / b.value_;
        if (!std::isfinite(quotient)) [[unlikely]] {
            ThrowQuotient(a.value_, b.value_);
        }
        return {quotient, Known{}};
    }
    Checked operator-() const { return {-value_, Known{}}; }
    Checked& operator+=(Checked b) { return *this = *this + b; }
    Checked& operator-=(Checked b) { return *this = *this - b; }
    Checked& operator*=(Checked b) { return *this = *this * b; }
    Checked& operator/=(Checked b) { return *this = *this / b; }

    friend constexpr bool operator==(Checked a, Checked b) noexcept { return a.value_ == b.value_; }
    friend constexpr auto operator<=>(Checked a, Checked b) noexcept { return a.value_ <=> b.value_; }

private:
    static double Finite(double value) {
        if (!std::isfinite(value)) [[unlikely]] {
            ThrowOverflow();
        }
        return value;
    }
    // Out of line, so that a formula holds nothing of them but a jump.
    [[noreturn]] static void ThrowOverflow();
    [[noreturn]] static void ThrowQuotient(double dividend, double divisor);

    double value_ = 0.0;
};

/// The fault of a negative number's root.
[[noreturn]] void ThrowRoot();
/// Square root; BadArgument for a negative number.
inline Checked Sqr(Checked x) {
    if (x < 0.0) [[unlikely]] {
        ThrowRoot();
    }
    return {std::sqrt(x.Value()), Checked::Known{}};
}
// All but the tangent are finite for every finite number.
inline Checked Sin(Checked radians) {
    return {std::sin(radians.Value()), Checked::Known{}};
}
inline Checked Cos(Checked radians) {
    return {std::cos(radians.Value()), Checked::Known{}};
}
inline Checked Tan(Checked radians) {
    return {std::tan(radians.Value())};
}
inline Checked Atn(Checked x) {
    return {std::atan(x.Value()), Checked::Known{}};
}
inline Checked Abs(Checked x) {
    return {std::fabs(x.Value()), Checked::Known{}};
}

}  // namespace brindlex
