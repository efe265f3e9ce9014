// Extending two lines to the point where they would meet, or cutting one of them back to it.
// Units: drawing coordinates. Includes no control, form or runtime.
#pragma once

#include "geometry/record.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::geometry {

/// The store's lines after the extension of the chosen potential pair: both lines end in the meeting point, keep their
/// numbers and are computed records no more. A line that is to be cut and whose two pieces are equal is dropped
/// without a word: intended. Nothing where a line of the pair is not there or the two are parallel.
[[nodiscard]] std::optional<std::vector<std::string>> Extend(const std::vector<std::string>& lines,
                                                             std::string_view item);

}  // namespace brindlex::geometry
