// What the tips say of an entity under the pointer, and the angle of a line.
// Units: drawing coordinates, degrees. Includes no control, form or runtime.
#pragma once

#include "geometry/record.h"

#include <string>

namespace brindlex::geometry {

/// The direction from the start to the end, counter-clockwise from the positive X axis, 0 up to below 360. By the arc
/// tangent and its literal factor, so that 45 degrees are 45.0000000000001: intended. 0 for a line of no length.
[[nodiscard]] double AngleOf(const Segment& line);

[[nodiscard]] std::string CircleTip(double number, double radius, Position centre);
[[nodiscard]] std::string LineTip(double number, const Segment& line);
[[nodiscard]] std::string PointTip(double number, Position place);

}  // namespace brindlex::geometry
