// Fonts and colours of the surface as the window system has them.
// Units: font sizes in points of the surface, of which a point is 20 twips.
#pragma once

#include "frame/place.h"

#include <QColor>
#include <QFont>

#include <string>

class QPalette;

namespace brindlex {

/// A font for the screen. The families are chosen to fit the frame's table of character widths.
[[nodiscard]] QFont ScreenFont(const std::string& name, double points, bool bold);
/// The same font where a unit of the painter is a twip.
[[nodiscard]] QFont TwipFont(const std::string& name, double points, bool bold);
/// The colours of boxes and labels on a picture, which is white in every theme; only the mark of a selection is the
/// theme's.
[[nodiscard]] QPalette PaperPalette(const QPalette& around);
[[nodiscard]] QColor ToQt(Colour colour);
/// Whether windows are dark.
[[nodiscard]] bool IsDark(const QPalette& palette);
/// The ink of text on a window's ground. Black, which is the surface's default, becomes the palette's own text colour,
/// and on a dark ground a dark colour becomes a light one of the same hue, so that all can be read.
[[nodiscard]] QColor InkOn(const QPalette& palette, Colour colour);

}  // namespace brindlex
