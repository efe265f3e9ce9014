// Whether a circle is tangent to two lines, and what makes it so: by distances and feet, no angles.
// Units: drawing coordinates. Includes no control, form or runtime.
#pragma once

#include "geometry/record.h"
#include "geometry/tangentcircles.h"

#include <array>

namespace brindlex::geometry {

/// Distance of a position from the whole line through both ends; from the ends where they are one.
[[nodiscard]] double DistanceFrom(Position place, const Segment& line);

/// Whether the centre's distance from both lines is the radius; `tolerance` is a part of the radius.
[[nodiscard]] bool TouchesLines(const TangentCircle& circle, const LinePair& lines, double radius, double tolerance);
/// Whether both points of tangency lie on their line and on the circle.
[[nodiscard]] bool PointsTouch(const TangentCircle& circle, const LinePair& lines, double radius, double tolerance);

/// Leaves the circles that touch and puts the others into the sectors at the crossing that have none; points of
/// tangency that miss become the feet of the perpendiculars. Does nothing for lines that have no length or are
/// parallel.
void MendCircles(std::array<TangentCircle, 4>& circles, const LinePair& lines, Position crossing, double radius);

}  // namespace brindlex::geometry
