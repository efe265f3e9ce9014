// Scalable pictures (SVG 1.1) at scale 1:1, with the numbers of the shapes.
#pragma once

#include "cli/exportsheet.h"

#include <string>

namespace brindlex::cli {

/// The whole file. Width and height are in the sheet's unit, so that it prints and converts at its true size; the paper
/// reaches 10 mm beyond the shapes. Throws Failure (BadInput) for values that are not finite.
[[nodiscard]] std::string SvgText(const Sheet& sheet);

}  // namespace brindlex::cli
