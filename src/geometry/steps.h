// Steps that are skipped when they fault, and ratios whose arc tangent is wanted.
// Units: degrees. Includes no control, form or runtime.
#pragma once

#include "frame/checked.h"
#include "frame/fault.h"

#include <utility>

namespace brindlex::geometry {

/// How the solvers take a ratio whose divisor is 0.
enum class Tangents {
    AsRuled,  ///< the step that divides is skipped
    Exact,    ///< with another dividend than 0 it counts as infinite, and positions that still miss are mended
};

/// One assignment: where its right side faults, the target keeps its value, and that is part of the results.
template <class Value>
void Step(Checked& target, Value&& value) {
    Guarded([&] { target = std::forward<Value>(value)(); });
}

/// Degrees per radian, as far as it is carried here: not the same as 180 / pi, and intended so.
inline constexpr double DegreesPerRadian = 57.2957795130824;

/// A quotient that can be infinite.
struct Ratio {
    Checked Value;
    int Infinite = 0;  ///< the sign, 0 for a finite one
};

inline Ratio Divide(Checked dividend, Checked divisor, Tangents tangents) {
    if (tangents == Tangents::Exact && divisor == 0.0 && dividend != 0.0) {
        return {0.0, dividend < 0.0 ? -1 : 1};
    }
    return {dividend / divisor, 0};
}

/// The arc tangent in degrees; 90 or -90 of an infinite ratio.
inline Checked ArcTangent(Ratio ratio, Checked degreesPerRadian) {
    constexpr double RightAngle = 90;
    return ratio.Infinite != 0 ? Checked(RightAngle * ratio.Infinite) : Atn(ratio.Value) * degreesPerRadian;
}

}  // namespace brindlex::geometry
