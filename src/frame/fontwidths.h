// Widths of texts by one table of character widths, the same for all runtimes.
// Units: twips; font sizes in points.
#pragma once

#include <string_view>

namespace brindlex {

inline constexpr double TwipsPerPoint = 20.0;
/// Height of a line over the font size.
inline constexpr double LineSpacing = 1.15;

/// The width of a text in the program's sans-serif face, in twips.
[[nodiscard]] double TextWidth(std::string_view text, double points, bool bold);
/// The height of a line, in twips.
[[nodiscard]] double TextHeight(double points);
/// The next whole pixel at or above, in twips: what a label that sizes itself takes.
[[nodiscard]] double PlaceWidthFromTwips(double twips);

}  // namespace brindlex
