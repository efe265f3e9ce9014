// Bolt circles: the spacing of the holes, the chord between two neighbours, and where every hole lies.
// Holes run counter-clockwise from the start angle, which is measured from the positive X axis.
// Units: lengths in any one unit, angles in decimal degrees. Includes no control, form or runtime.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brindlex::boltcircle {

/// The most holes that a pattern can have: the counter of the holes has 16 bits.
inline constexpr int MostHoles = 32767;

/// The five entries as texts, and whether only angles are asked for.
struct Entries {
    std::string CenterX;
    std::string CenterY;
    std::string Diameter;
    std::string Holes;
    std::string StartAngle;
    bool AnglesOnly = false;
};

/// Why a pattern was not worked out.
enum class Refusal {
    None,
    NotCompleted,  ///< an entry but the start angle is empty; with angles only the number of holes may be
    ZeroDiameter,  ///< the diameter is the text "0"; not looked at with angles only
    ZeroHoles,     ///< the number of holes is the text "0"; not looked at with angles only
};

/// Looks at the texts and not at their numbers, so that "0.0" passes: intended.
[[nodiscard]] Refusal Validate(const Entries& entries);

/// Replaces degree text in the entries by its decimal number, the five in their order. An entry without minutes or
/// seconds takes those of the entry before: intended. Throws Fault where a text can't be taken apart; the entries
/// before it are replaced then.
void Normalize(Entries& entries);

struct Hole {
    double Angle = 0;  ///< from the positive X axis, counted on past 360
    double X = 0;
    double Y = 0;
};

/// A pattern as the report shows it: with coordinates all lengths and the spacing are rounded by the mask, with angles
/// only nothing is. The angles of the holes are never rounded.
struct Pattern {
    bool AnglesOnly = false;
    double Holes = 0;  ///< as entered; may be a fraction
    double StartAngle = 0;
    double Diameter = 0;
    double Radius = 0;  ///< never rounded
    double AngleSpacing = 0;
    double ChordDist = 0;
    double CenterX = 0;
    double CenterY = 0;
    double HoleX = 0;  ///< hole 1; with a start angle of 0 the centre, to which the report adds the radius
    double HoleY = 0;
    std::vector<Hole> Further;  ///< hole 2 and so on
};

/// Works the pattern out from entries that are accepted and normalised. `mask` is a point followed by a zero for each
/// decimal, `rad` is radians per degree. A number of holes that is a fraction is rounded, less 1, to the even
/// neighbour. Throws Fault: DivisionByZero for a number of 0 holes, Overflow for more than MostHoles and for values
/// beyond the range, BadArgument for a chord that has no root.
[[nodiscard]] Pattern SolveBoltCircle(const Entries& entries, std::string_view mask, double rad);

}  // namespace brindlex::boltcircle
