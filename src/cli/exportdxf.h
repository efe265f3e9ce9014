// Drawing exchange files (DXF of the year 2000), written by dxflib.
#pragma once

#include "cli/exportsheet.h"

#include <string>

namespace brindlex::cli {

/// The whole file: the unit in $INSUNITS and $MEASUREMENT, a layer for each kind of shape, coordinates that read back
/// as the very same numbers. Throws Failure (BadInput) for a value that is not finite.
[[nodiscard]] std::string DxfText(const Sheet& sheet);

}  // namespace brindlex::cli
