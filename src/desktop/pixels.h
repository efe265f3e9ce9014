// Twips become pixels here and nowhere else. A pixel is the window system's logical one, 15 twips.
#pragma once

#include "frame/place.h"

#include <QRect>

namespace brindlex {

/// The nearest whole pixel; what no screen can hold is cut.
[[nodiscard]] int Pixels(double twips);
[[nodiscard]] double Twips(double pixels);
[[nodiscard]] QRect PixelRect(const Place& twips);

}  // namespace brindlex
