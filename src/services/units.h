// Lengths: what an inch is. Includes no control, form or runtime.
#pragma once

namespace brindlex {

/// Exact by definition: the international inch of 1959.
inline constexpr double MillimetersPerInch = 25.4;

}  // namespace brindlex
