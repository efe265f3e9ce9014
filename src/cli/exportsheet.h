// What an export holds, as plain values, from the lines of a document.
// Units: lengths in the unit of the sheet, angles in decimal degrees, Y upward.
#pragma once

#include "geometry/record.h"
#include "geometry/unit.h"

#include <string>
#include <string_view>
#include <vector>

namespace brindlex::cli {

/// What a shape is there for; each stands on a layer of its own.
enum class Layer { Circles, Lines, Points, BoltCircle, Holes };

struct Shape {
    Layer On = Layer::Points;
    int Number = 0;           ///< 0 for a shape that has none
    geometry::Record Record;  ///< kind and values
};

struct Hole {
    int Number = 0;
    geometry::Position Place;
    double Angle = 0;  ///< from the positive X axis, 0 up to below 360
};

/// A bolt circle with its holes, none of its values rounded.
struct HolePattern {
    geometry::Position Centre;
    double Diameter = 0;
    double StartAngle = 0;
    std::vector<Hole> Holes;
};

struct Sheet {
    geometry::Unit Measure = geometry::Unit::Inch;
    std::vector<Shape> Shapes;
};

/// Two lines that are not parallel.
struct LinePair {
    int First = 0;
    int Second = 0;
    geometry::Position Crossing;
    double Angle = 0;   ///< between the lines, above 0 up to 90; on the other side of each it is 180 less this
    bool Cross = true;  ///< or they would, if they were longer
};

/// The entities of a drawing's records, in their order; lines that are no records are passed over. The whole number is
/// read, where the board reads its first two digits. Throws Failure (BadInput): no entity at all, a circle without a
/// diameter.
[[nodiscard]] Sheet SheetOf(const std::vector<std::string>& records, geometry::Unit unit);

/// The pairs of lines as the board lists them, those that cross first. Throws Failure (BadInput) for more than
/// MostPairedLines lines.
[[nodiscard]] std::vector<LinePair> PairsOf(const std::vector<std::string>& records);
inline constexpr std::size_t MostPairedLines = 500;

/// The pattern of a bolt circle document: center X, center Y, diameter, number of holes, start angle, and what is
/// behind. Throws Failure (BadInput): an entry that is missing or no number, a diameter that is not above 0, no holes
/// or no whole number of them, more holes than the calculator works out, a start angle above a million degrees.
[[nodiscard]] HolePattern PatternOf(const std::vector<std::string>& lines);

/// The bolt circle and its holes as shapes: points, or circles where their diameter is above 0.
[[nodiscard]] Sheet SheetOf(const HolePattern& pattern, geometry::Unit unit, double holeDiameter);

[[nodiscard]] std::string_view UnitPlural(geometry::Unit unit);  ///< "inches", "millimeters"
/// "CIRCLES", "LINES", "POINTS", "BOLT_CIRCLE", "HOLES".
[[nodiscard]] std::string_view LayerName(Layer layer);

}  // namespace brindlex::cli
