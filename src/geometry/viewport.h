// The view onto the drawing: scale, zoom, extents, scroll ranges, fit. Plain values; no control is known here.
// Units: picture coordinates, that is drawing coordinates plus half the scale; scroll values are whole drawing units.
#pragma once

#include "geometry/board.h"
#include "geometry/unit.h"

#include <optional>

namespace brindlex::geometry {

/// The view that a new drawing begins with.
[[nodiscard]] Scale FirstView(Unit unit);
/// Half the width of a point's cross.
[[nodiscard]] double CrossSize(Unit unit);

/// The aspect of the picture, as the fit knows it.
inline constexpr double HeightOverWidth = 0.53445068;
inline constexpr double WidthOverHeight = 1.87108004;

/// How far the drawing reaches; all 0 while nobody has asked.
struct Extents {
    double MinX = 0;
    double MaxX = 0;
    double MinY = 0;
    double MaxY = 0;

    friend bool operator==(const Extents&, const Extents&) = default;
};
/// Takes the entities of the board into the extents. The first entity sets them; an empty board leaves them.
void GetExtents(Extents& extents, const Board& board, Unit unit);

/// The ends of the scroll bars: at least 20 to either side of the origin.
struct ScrollRanges {
    int VMin = 20;
    int VMax = -20;
    int HMin = -20;
    int HMax = 20;

    friend bool operator==(const ScrollRanges&, const ScrollRanges&) = default;
};
[[nodiscard]] ScrollRanges ScrollRangesFor(const Extents& extents, const Scale& scale);

/// A view that the extents just fill, without a margin; its centre is rounded to whole scroll values.
struct Fit {
    Scale View;
    int VValue = 0;
    int HValue = 0;
};
/// Nothing where the view would be .002 or less, or 31000 or more across. `scale` is the one of the extents.
[[nodiscard]] std::optional<Fit> FitTo(const Extents& extents, const Scale& scale);

/// Half the view, or twice the view; nothing at the ends of what can be shown.
[[nodiscard]] std::optional<Scale> ZoomedIn(const Scale& scale);
[[nodiscard]] std::optional<Scale> ZoomedOut(const Scale& scale);

}  // namespace brindlex::geometry
