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

    [[nodiscard]] constexpr double Value() const noexcept { return value_; }
    constexpr explicit operator double() const noexcept { return value_; }

    friend Checked operator+(Checked a, Checked b) { return {a.value_ + b.value_}; }
    friend Checked operator-(Checked a, Checked b) { return {a.value_ - b.value_}; }
    friend Checked operator*(Checked a, Checked b) { return {a.value_ * b.value_}; }
    /// 0 divided by 0 is Overflow; another number divided by 0 is DivisionByZero.
    friend Checked operator/(Checked a, Checked b) {
        if (b.value_ == 0.0) {
            throw Fault(a.value_ == 0.0 ? FaultNumber::Overflow : FaultNumber::DivisionByZero);
        }
        return {a.value_ / b.value_};
    }
    Checked operator-() const { return {-value_}; }
    Checked& operator+=(Checked b) { return *this = *this + b; }
    Checked& operator-=(Checked b) { return *this = *this - b; }
    Checked& operator*=(Checked b) { return *this = *this * b; }
    Checked& operator/=(Checked b) { return *this = *this / b; }

    friend constexpr bool operator==(Checked a, Checked b) noexcept { return a.value_ == b.value_; }
    friend constexpr auto operator<=>(Checked a, Checked b) noexcept { return a.value_ <=> b.value_; }

private:
    static double Finite(double value) {
        if (!std::isfinite(value)) {
            throw Fault(FaultNumber::Overflow);
        }
        return value;
    }

    double value_ = 0.0;
};

/// Square root; BadArgument for a negative number.
inline Checked Sqr(Checked x) {
    if (x < 0.0) {
        throw Fault(FaultNumber::BadArgument);
    }
    return {std::sqrt(x.Value())};
}
inline Checked Sin(Checked radians) {
    return {std::sin(radians.Value())};
}
inline Checked Cos(Checked radians) {
    return {std::cos(radians.Value())};
}
inline Checked Tan(Checked radians) {
    return {std::tan(radians.Value())};
}
inline Checked Atn(Checked x) {
    return {std::atan(x.Value())};
}
inline Checked Abs(Checked x) {
    return {std::fabs(x.Value())};
}

}  // namespace brindlex
