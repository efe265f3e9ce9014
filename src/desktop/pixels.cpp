// Scale of the screen.
#include "desktop/pixels.h"

#include <algorithm>
#include <cmath>

namespace brindlex {

namespace {

constexpr double FarthestPixel = 100000;

}  // namespace

int Pixels(double twips) {
    if (std::isnan(twips)) {
        return 0;
    }
    return static_cast<int>(std::lround(std::clamp(twips / TwipsPerPixel, -FarthestPixel, FarthestPixel)));
}

double Twips(double pixels) {
    return pixels * TwipsPerPixel;
}

QRect PixelRect(const Place& twips) {
    return {Pixels(twips.Left), Pixels(twips.Top), std::max(Pixels(twips.Width), 0), std::max(Pixels(twips.Height), 0)};
}

}  // namespace brindlex
