// Numbers of exported files: as short as they read back the same, or with a fixed number of decimals.
// Nothing here looks at the locale: a point is a point everywhere.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brindlex::cli {

/// Throws Failure (BadInput) for an infinity and a not-a-number.
void RefuseUnlessFinite(double number);

/// The fewest digits that read back as the very same double: "0.1", "-2.5", "100". In exponent form below 1e-6 and from
/// 1e16 on. Negative zero reads "0". Throws as RefuseUnlessFinite.
[[nodiscard]] std::string ShortestText(double number);

/// The number rounded to at most `places` decimals (0 to 9), without trailing zeros, always with a point and a digit
/// behind it: "12.0", "-0.125". No minus sign when nothing but zeros remain. Throws as RefuseUnlessFinite.
[[nodiscard]] std::string DecimalText(double number, int places);

/// The number that a whole text is; blanks around it do not count. Nothing for any other text, so that "1,5" is not
/// taken for 1, and for what is beyond the range of a double.
[[nodiscard]] std::optional<double> WholeNumberText(std::string_view text);

}  // namespace brindlex::cli
