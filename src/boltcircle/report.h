// The report of a bolt circle: a head, and a line for each hole.
// Units: as the pattern. Includes no control, form or runtime.
#pragma once

#include "boltcircle/solver.h"

#include <string>
#include <string_view>

namespace brindlex::boltcircle {

/// An angle as the report shows it: degrees alone, with minutes, or with minutes and seconds written by the mask,
/// whichever of them are not 0. Seconds are not rounded before they are written, so that they can read 60.0000:
/// intended. Throws Overflow where the degrees pass 16 bits.
[[nodiscard]] std::string ToDegrees(double angle, std::string_view mask);

/// Where hole 1 lies, as the report of coordinates tells it: with a start angle of 0 the radius beside the centre, not
/// rounded: intended.
[[nodiscard]] Hole FirstHole(const Pattern& pattern);

/// An angle with one turn taken off, and no more: intended.
[[nodiscard]] double ShownAngle(double angle);

/// The report, each line ended by carriage return and line feed. `startAngle` is the entry's text. Throws Overflow
/// where an angle passes 16 bits.
[[nodiscard]] std::string ReportText(const Pattern& pattern, std::string_view startAngle, std::string_view mask);

}  // namespace brindlex::boltcircle
