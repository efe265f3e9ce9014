// A solved right triangle as it is shown: rounded, and as texts.
// Units: lengths in any one unit, angles in decimal degrees. Includes no control, form or runtime.
#pragma once

#include "frame/shared.h"
#include "righttri/solver.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace brindlex::righttri {

/// What can be named in a triangle, in the order in which results are shown.
enum class Part { CornerA, AngleB, AngleC, SideA, SideB, SideC };
inline constexpr std::size_t PartCount = 6;
[[nodiscard]] constexpr std::size_t IndexOf(Part part) {
    return static_cast<std::size_t>(part);
}

using PartTexts = std::array<std::string, PartCount>;

/// A triangle ready to be shown.
struct Answer {
    Triangle Rounded;
    PartTexts Texts;
    double SecondsB = 0;  ///< of the angles, where they are shown in minutes and seconds
    double SecondsC = 0;
};

/// With the angles as decimal degrees, rounded to the places of `shared`. Throws Fault for what is out of range.
[[nodiscard]] Answer InDegrees(const Triangle& found, SharedState& shared);
/// With the angles in degrees, minutes and seconds; the rounded angles stay 0. Throws likewise.
[[nodiscard]] Answer InMinutes(const Triangle& found, SharedState& shared);

/// Half the product of the legs. Throws Overflow.
[[nodiscard]] double AreaOf(double sideB, double sideC);

/// The lines of a document: the case and its two entries.
inline constexpr std::size_t DocumentLines = 3;
/// Whether lines can be a document: they begin with a case, or there are none.
[[nodiscard]] bool IsDocument(const std::vector<std::string>& lines);

}  // namespace brindlex::righttri
