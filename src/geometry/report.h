// The report of a drawing: a block of derived values for each of its records.
// Units: those of the drawing, degrees. Includes no control, form or runtime.
#pragma once

#include "geometry/unit.h"

#include <string>
#include <vector>

namespace brindlex::geometry {

/// The unit line and the blocks of the store's lines, in their order. `crossings` are the pairs of lines that cross.
/// A value beyond the range of a double reads 0.
[[nodiscard]] std::string ReportText(const std::vector<std::string>& lines, Unit unit,
                                     const std::vector<std::string>& crossings);

}  // namespace brindlex::geometry
