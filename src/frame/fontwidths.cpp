// Character widths of the program's sans-serif face, in thousandths of the font size.
// The widths are those of the common Helvetica metrics, to which the desktop's font is chosen.
#include "frame/fontwidths.h"

#include <array>
#include <cmath>

namespace brindlex {

namespace {

constexpr int FirstCode = 32;
constexpr int Codes = 95;
constexpr int OtherWidth = 556;
constexpr int DegreeWidth = 400;

constexpr std::array<int, Codes> Regular = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584,
};

constexpr std::array<int, Codes> Bold = {
    278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611, 975, 722, 722, 722, 722, 667,
    611, 778, 722, 278, 556, 722, 611, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667,
    667, 611, 333, 278, 333, 584, 556, 333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556,
    278, 889, 611, 611, 611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584,
};

int WidthOf(unsigned char code, const std::array<int, Codes>& widths) {
    if (code >= FirstCode && code < FirstCode + Codes) {
        return widths[static_cast<std::size_t>(code - FirstCode)];
    }
    return code == 0xB0 ? DegreeWidth : OtherWidth;
}

}  // namespace

double TextWidth(std::string_view text, double points, bool bold) {
    const auto& widths = bold ? Bold : Regular;
    long thousandths = 0;
    for (const char character : text) {
        thousandths += WidthOf(static_cast<unsigned char>(character), widths);
    }
    return static_cast<double>(thousandths) / 1000.0 * points * TwipsPerPoint;
}

double TextHeight(double points) {
    return points * TwipsPerPoint * LineSpacing;
}

double PlaceWidthFromTwips(double twips) {
    return std::ceil(twips / 15.0) * 15.0;
}

}  // namespace brindlex
