// The four circles of one size that touch two crossing lines, one in each sector.
// A step that faults is skipped and its target keeps its value; the results are built on that.
// Units: drawing coordinates, degrees. Includes no control, form or runtime.
#pragma once

#include "geometry/crossings.h"
#include "geometry/record.h"
#include "geometry/steps.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::geometry {

/// The smallest entry of a size, diameter or radius alike.
inline constexpr double SmallestSize = 0.002;

struct TangentCircle {
    Position Centre;
    Position OnA;  ///< the point of tangency on the first line of the pair
    Position OnB;  ///< on the second
};

/// The two lines of a chosen pair.
struct LinePair {
    Segment A;
    Segment B;
};
/// Looked up by the first 3 characters of their records; a line that is not there leaves its ends 0.
[[nodiscard]] LinePair FindLinePair(const std::vector<std::string>& lineRecords, const PairItem& item);

/// The circles in their order of creation, by angles and sign tables alone: not each is a true tangent.
[[nodiscard]] std::array<TangentCircle, 4> CirclesByTables(const LinePair& lines, Position crossing, double radius,
                                                           Tangents tangents);

/// The same for the chosen pair `item` of the store's line records, mended where tangents are exact.
[[nodiscard]] std::array<TangentCircle, 4> FindTangentCircles(const std::vector<std::string>& lineRecords,
                                                              std::string_view item, double radius, Tangents tangents);

/// Whether every circle's distance from both lines is its radius, and its points of tangency lie on their lines and on
/// the circle, all within 1e-6 of the radius.
[[nodiscard]] bool EveryCircleTouches(const std::vector<std::string>& lineRecords, std::string_view item, double radius,
                                      const std::array<TangentCircle, 4>& circles);

}  // namespace brindlex::geometry
