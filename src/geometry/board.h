// The drawing in memory: the arrays that the passes draw from, their counters, and the highest number in use.
// Units: picture coordinates, that is drawing coordinates plus half the scale of the picture; radii as they are.
// Includes no control, form or runtime.
#pragma once

#include "geometry/record.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::geometry {

/// ScaleWidth and ScaleHeight of the picture; the height is negative, so that Y grows upward.
struct Scale {
    double Width = 4.475;
    double Height = -2.391667;
};

inline constexpr int CircleWidth = 4;  ///< X, Y, radius, number
inline constexpr int LineWidth = 5;    ///< start X, start Y, end X, end Y, number
inline constexpr int PointWidth = 3;   ///< X, Y, number
inline constexpr int CircleBound = 48;
inline constexpr int LineBound = 70;
inline constexpr int PointBound = 42;

class Board {
public:
    std::array<double, CircleBound> CircleArr{};
    std::array<double, LineBound> LineArr{};
    std::array<double, PointBound> PointArr{};
    /// Values in use. A store with more entities than there is room counts on beyond the bounds.
    int CircleTop = 0;
    int LineTop = 0;
    int PointTop = 0;
    /// The next index to write.
    int CircleIdx = 0;
    int LineIdx = 0;
    int PointIdx = 0;
    /// The highest number in use; it falls only at a reload.
    int EntNum = 0;

    /// Empties the arrays and zeroes the counters; EntNum stays.
    void Erase();
    /// Erase, and EntNum 0.
    void Clear();
    /// Clear, then every record of the lines. What lies beyond a bound is left out, its counter goes on.
    void Reload(const std::vector<std::string>& lines, const Scale& scale);
    /// Erase, then every record; EntNum rises, but is not zeroed first (after a deletion from the lists: intended).
    void ReloadKeepingNumber(const std::vector<std::string>& lines, const Scale& scale);
    /// Enters one record of the store, EntNum rising to its number; a line that is no record is passed over.
    void EnterRecord(std::string_view line, const Scale& scale);

    /// EntNum + 1 as the number of a new entity; at 32767 it stays.
    int NextNumber();
    /// Enter an entity, given in drawing coordinates, under a number, and raise the counters.
    void EnterCircle(Position centre, double radius, double number, const Scale& scale);
    void EnterLine(const Segment& line, double number, const Scale& scale);
    void EnterPoint(Position place, double number, const Scale& scale);

    /// How many entities of a kind stand in the array: never beyond its bound.
    [[nodiscard]] int Count(Kind kind) const;
    /// Whether an entity of that kind has this number.
    [[nodiscard]] bool Has(Kind kind, double number) const;
    /// Whether nothing stands in the arrays.
    [[nodiscard]] bool Empty() const { return CircleTop == 0 && LineTop == 0 && PointTop == 0; }
};

}  // namespace brindlex::geometry
