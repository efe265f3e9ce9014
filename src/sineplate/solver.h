// Gauge-block buildups of a sine plate, single or compound.
// Units: angles in decimal degrees, center spacing in inches, buildups in inches or millimeters.
// Source: the stack under one roll is the center spacing times the sine of the angle.
#pragma once

#include <string>

namespace brindlex::sineplate {

enum class PlateType { Regular, Compound };

struct PlateEntries {
    std::string FirstAngle;   ///< the required angle; the bottom angle of a compound setup
    std::string SecondAngle;  ///< the top angle
    bool SecondShown = false;
    std::string Spacing;  ///< a number, an inch mark may follow
};

/// What stops a calculation, in the order of the checks.
enum class PlateRefusal {
    None,
    FirstAngleMissing,   ///< empty or "0"
    SecondAngleMissing,  ///< empty while shown, or "0" whether shown or not
    SpacingMissing,
    FirstAngleTooLarge,  ///< above 90
    SecondAngleTooLarge,
};

[[nodiscard]] PlateRefusal CheckPlate(const PlateEntries& entries);

struct Buildup {
    double Bottom = 0;  ///< the only one of a regular plate
    double Top = 0;
};

/// Angle and spacing in inches times `unit` (1 or 25.4). Throws Fault where a result overflows.
[[nodiscard]] Buildup SolveRegular(double angle, double spacing, double unit, double rad);
/// The compound setup: top angle p, bottom angle q. The top buildup is sin p; the bottom one goes by the angle
/// atan(cos p * tan q), which is taken to degrees and back.
[[nodiscard]] Buildup SolveCompound(double top, double bottom, double spacing, double unit, double rad);

}  // namespace brindlex::sineplate
