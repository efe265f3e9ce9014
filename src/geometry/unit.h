// The unit of a drawing, and how a drawing file names it.
// Includes no control, form or runtime.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::geometry {

enum class Unit { Inch, Millimeter };

/// The unit that a line of a drawing file names; nothing for any other line.
[[nodiscard]] std::optional<Unit> UnitOf(std::string_view line);
/// The lines of a drawing file: "I" or "M", then the records.
[[nodiscard]] std::vector<std::string> GeoLines(const std::vector<std::string>& records, Unit unit);

}  // namespace brindlex::geometry
