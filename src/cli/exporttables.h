// Tables for spreadsheets (CSV by RFC 4180) and values for programs (JSON).
// Numbers read back as the very same doubles and have a point in every country.
#pragma once

#include "cli/exportsheet.h"

#include <string>
#include <vector>

namespace brindlex::cli {

// CSV: a head line, then a line for each item, all of as many fields and ended by carriage return and line feed. A
// field that does not apply is empty.

/// number, kind, x, y, x2, y2, diameter, unit: the center of a circle, both ends of a line, the place of a point.
[[nodiscard]] std::string EntitiesCsv(const Sheet& sheet);
/// first, second, meet, x, y, angle, unit: meet is "crossing", or "extended" where the lines would have to be longer.
[[nodiscard]] std::string PairsCsv(const std::vector<LinePair>& pairs, geometry::Unit unit);
/// hole, x, y, angle, unit.
[[nodiscard]] std::string HolesCsv(const HolePattern& pattern, geometry::Unit unit);

// JSON: one object, indented, ended by a line feed.

/// unit, entities and pairs.
[[nodiscard]] std::string DrawingJson(const Sheet& sheet, const std::vector<LinePair>& pairs);
/// unit, center, diameter, startAngle and holes.
[[nodiscard]] std::string HolesJson(const HolePattern& pattern, geometry::Unit unit);

}  // namespace brindlex::cli
