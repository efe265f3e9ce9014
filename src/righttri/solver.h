// Right triangles: three sides and two acute angles from two known values.
// The right angle is corner A, so side a is the hypotenuse; b lies opposite angle B, c opposite angle C.
// Units: lengths in any one unit, angles in decimal degrees. Includes no control, form or runtime.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace brindlex::righttri {

struct Triangle {
    double SideA = 0;
    double SideB = 0;
    double SideC = 0;
    double AngleB = 0;
    double AngleC = 0;
};

/// A case as a person chooses it, with the names of its two entries.
struct CaseLabels {
    std::string_view Name;
    std::string_view InputLabel1;
    std::string_view InputLabel2;
};

/// The nine cases in the order of the list.
[[nodiscard]] std::span<const CaseLabels> Cases();
/// The case of that name; nothing where there is none.
[[nodiscard]] std::optional<CaseLabels> FindCase(std::string_view name);

/// Why a triangle was not solved.
enum class Refusal {
    None,
    Text1Missing,   ///< the first entry is empty; asked for even when the second is no good either
    Text2Missing,   ///< the second entry is empty
    InvalidValues,  ///< an entry reads as 0, a leg is not below the hypotenuse, an angle is above 89.99999, no such
                    ///< case
};

/// The two entries as texts. The first is always a side, the second a side or an angle.
struct Entries {
    std::string Text1;
    std::string Text2;
};

struct Solution {
    Refusal Refused = Refusal::None;
    Triangle Found;  ///< only where nothing was refused
};

/// Checks and solves. Degree text in an entry is replaced there by its decimal number, also where the solve refuses or
/// faults afterwards. `rad` is radians per degree. Values that the formulas can't take come out as Fault.
[[nodiscard]] Solution Solve(std::string_view caseName, Entries& entries, double rad);

}  // namespace brindlex::righttri
