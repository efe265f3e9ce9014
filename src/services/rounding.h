// Rounding for display: masks of a point and zeros, trailing zeros dropped.
// Includes no control, form or runtime.
#pragma once

#include "frame/shared.h"

#include <string>
#include <string_view>

namespace brindlex {

/// "." followed by as many zeros as the text's Val, rounded to an integer, says. `loop` is the shared counter that
/// runs meanwhile.
[[nodiscard]] std::string RoundingMask(std::string_view digits, SharedState& shared);

/// From the last character, zeros go; the first character that is none stays, a point too: "12.3400" gives "12.34",
/// "12.0000" gives "12.", ".0000" gives ".".
[[nodiscard]] std::string DropTrailingZeros(std::string text);

/// The rounding procedure of the triangles: takes NumIn, gives NumOut. NumIn stays as it is.
void RoundThroughSlots(SharedState& shared, std::string_view digits);

/// A number rounded for display: Str into NumIn, the procedure, Val of NumOut.
[[nodiscard]] double RoundedForDisplay(double number, SharedState& shared, std::string_view digits);

/// The rounding as a settings file holds it, or "4" where it can't be used. Compared with "1" and "15" as texts,
/// character by character, so that 2 to 9 fall back to "4" as well: intended. What passes but is no whole number from
/// 1 to 15 becomes "4" too.
[[nodiscard]] std::string AcceptedDigits(const std::string& stored);

}  // namespace brindlex
