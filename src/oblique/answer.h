// A solved oblique triangle as it is shown: rounded, and as texts.
// Units: angles in decimal degrees, sides in any one unit. Includes no control, form or runtime.
#pragma once

#include "frame/shared.h"
#include "oblique/solver.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace brindlex::oblique {

using ElementTexts = std::array<std::string, ElementCount>;

/// A triangle ready to be shown.
struct Answer {
    Triangle Shown;  ///< the working values are the rounded ones
    ElementTexts Texts;
    std::array<double, 3> Seconds{};  ///< of the angles, where they are shown in minutes and seconds
};

/// With the angles as decimal degrees, rounded to the places of `shared`. Throws Fault for what is out of range.
[[nodiscard]] Answer InDegrees(const Triangle& accepted, SharedState& shared);
/// With the angles in degrees, minutes and seconds; the working angles stay unrounded: intended. Throws likewise.
[[nodiscard]] Answer InMinutes(const Triangle& accepted, SharedState& shared);

/// The lines of a document: the case and its three entries.
inline constexpr std::size_t DocumentLines = 4;
/// Whether lines can be a document: they begin with what entries are named by, or there are none.
[[nodiscard]] bool IsDocument(const std::vector<std::string>& lines);

}  // namespace brindlex::oblique
