// Sine plate arithmetic.
#include "sineplate/solver.h"

#include "frame/checked.h"
#include "frame/text.h"

namespace brindlex::sineplate {

namespace {

constexpr double DegreesPerRadian = 57.2957795130824;
constexpr double LargestAngle = 90;

bool AboveLimit(const std::string& text) {
    double angle = 0;
    if (Guarded([&] { angle = Val(text); })) {
        return angle > LargestAngle;
    }
    // Beyond the range of a double: above the limit unless it is negative.
    return text[text.find_first_not_of(' ')] != '-';
}

}  // namespace

PlateRefusal CheckPlate(const PlateEntries& entries) {
    if (entries.FirstAngle.empty() || entries.FirstAngle == "0") {
        return PlateRefusal::FirstAngleMissing;
    }
    // A hidden second angle that holds "0" stops a regular plate as well: intended.
    if ((entries.SecondShown && entries.SecondAngle.empty()) || entries.SecondAngle == "0") {
        return PlateRefusal::SecondAngleMissing;
    }
    if (entries.Spacing.empty()) {
        return PlateRefusal::SpacingMissing;
    }
    if (AboveLimit(entries.FirstAngle)) {
        return PlateRefusal::FirstAngleTooLarge;
    }
    if (AboveLimit(entries.SecondAngle)) {
        return PlateRefusal::SecondAngleTooLarge;
    }
    return PlateRefusal::None;
}

Buildup SolveRegular(double angle, double spacing, double unit, double rad) {
    const Checked stack = Sin(Checked(angle) * rad) * spacing * unit;
    return {stack.Value(), 0};
}

Buildup SolveCompound(double top, double bottom, double spacing, double unit, double rad) {
    const Checked topStack = Sin(Checked(top) * rad) * spacing * unit;
    const Checked tilt = Atn(Cos(Checked(top) * rad) * Tan(Checked(bottom) * rad)) * DegreesPerRadian;
    const Checked bottomStack = Sin(tilt * rad) * spacing * unit;
    return {bottomStack.Value(), topStack.Value()};
}

}  // namespace brindlex::sineplate
