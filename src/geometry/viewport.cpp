// Scale, zoom, extents, scroll ranges, fit.
#include "geometry/viewport.h"

#include "frame/text.h"
#include "services/units.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace brindlex::geometry {

namespace {

constexpr double InchCross = 0.0884;
constexpr int LeastScroll = 20;
constexpr double SmallestView = 0.002;
constexpr double LargestView = 31000;

/// A whole scroll value of 16 bits.
int ScrollValue(double value) {
    using Short = std::numeric_limits<std::int16_t>;
    const double least = Short::min();
    const double most = Short::max();
    return std::isnan(value) ? 0 : static_cast<int>(Round(std::clamp(value, least, most)));
}

/// Takes a box into the extents. One beyond the range of a double is left out.
void Take(Extents& extents, bool& first, const Extents& box) {
    if (!std::isfinite(box.MinX + box.MaxX) || !std::isfinite(box.MinY + box.MaxY)) {
        return;
    }
    if (first) {
        extents = box;
        first = false;
        return;
    }
    extents.MinX = std::min(extents.MinX, box.MinX);
    extents.MaxX = std::max(extents.MaxX, box.MaxX);
    extents.MinY = std::min(extents.MinY, box.MinY);
    extents.MaxY = std::max(extents.MaxY, box.MaxY);
}

template <std::size_t Bound>
const double* At(const std::array<double, Bound>& values, int entity, int width) {
    return &values[static_cast<std::size_t>(entity) * static_cast<std::size_t>(width)];
}

}  // namespace

Scale FirstView(Unit unit) {
    return unit == Unit::Inch ? Scale{4.475, -2.391667} : Scale{113.665, -60.7483418};
}

double CrossSize(Unit unit) {
    return unit == Unit::Inch ? InchCross : InchCross * MillimetersPerInch;
}

void GetExtents(Extents& extents, const Board& board, Unit unit) {
    bool first = true;
    for (int i = 0; i < board.Count(Kind::Circle); ++i) {
        const double* const circle = At(board.CircleArr, i, CircleWidth);
        const double radius = circle[2];
        if (first || radius != 0) {
            Take(extents, first, {circle[0] - radius, circle[0] + radius, circle[1] - radius, circle[1] + radius});
        }
    }
    for (int i = 0; i < board.Count(Kind::Line); ++i) {
        const double* const line = At(board.LineArr, i, LineWidth);
        Take(extents, first,
             {std::min(line[0], line[2]), std::max(line[0], line[2]), std::min(line[1], line[3]),
              std::max(line[1], line[3])});
    }
    const double size = CrossSize(unit);
    for (int i = 0; i < board.Count(Kind::Point); ++i) {
        const double* const point = At(board.PointArr, i, PointWidth);
        Take(extents, first, {point[0] - size, point[0] + size, point[1] - size, point[1] + size});
    }
}

ScrollRanges ScrollRangesFor(const Extents& extents, const Scale& scale) {
    const double halfWidth = scale.Width / 2;
    const double halfHeight = scale.Height / 2;
    return {std::max(ScrollValue(extents.MaxY - halfHeight), LeastScroll),
            std::min(ScrollValue(extents.MinY - halfHeight), -LeastScroll),
            std::min(ScrollValue(extents.MinX - halfWidth), -LeastScroll),
            std::max(ScrollValue(extents.MaxX - halfWidth), LeastScroll)};
}

std::optional<Fit> FitTo(const Extents& extents, const Scale& scale) {
    // What is as high as wide must not count as lower by the last bit of a sum.
    constexpr double Noise = 1e-9;
    double height = extents.MaxY - extents.MinY;
    double width = extents.MaxX - extents.MinX;
    if (height < width * (1 - Noise)) {
        height = width * HeightOverWidth;
    } else {
        width = height * WidthOverHeight;
    }
    if (!(width > SmallestView && width < LargestView)) {
        return std::nullopt;
    }
    const double middleX = extents.MaxX - (extents.MaxX - extents.MinX) / 2;
    const double middleY = extents.MaxY - (extents.MaxY - extents.MinY) / 2;
    return Fit{{width, -height}, ScrollValue(middleY - scale.Height / 2), ScrollValue(middleX - scale.Width / 2)};
}

std::optional<Scale> ZoomedIn(const Scale& scale) {
    if (SmallestView >= scale.Width / 2) {
        return std::nullopt;
    }
    return Scale{scale.Width / 2, scale.Height / 2};
}

std::optional<Scale> ZoomedOut(const Scale& scale) {
    if (scale.Width + scale.Width >= LargestView) {
        return std::nullopt;
    }
    return Scale{scale.Width * 2, scale.Height * 2};
}

}  // namespace brindlex::geometry
