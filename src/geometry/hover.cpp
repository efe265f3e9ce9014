// The pointer on circles, lines and points.
#include "geometry/hover.h"

#include "frame/text.h"
#include "geometry/steps.h"

#include <algorithm>
#include <string_view>

namespace brindlex::geometry {

namespace {

bool SameText(double a, double b, std::string_view mask) {
    return Format(a, mask) == Format(b, mask);
}

bool Between(double value, double a, double b) {
    return std::min(a, b) < value && value < std::max(a, b);
}

}  // namespace

bool HoversCircle(Position pointer, Position centre, double radius, Unit unit) {
    Checked distance = -1;
    Guarded([&] {
        const Checked dx = Checked(pointer.X) - centre.X;
        const Checked dy = Checked(pointer.Y) - centre.Y;
        distance = Sqr(dx * dx + dy * dy);
    });
    return distance >= 0.0 && SameText(radius, distance.Value(), unit == Unit::Inch ? ".0" : "0.");
}

bool HoversPoint(Position pointer, Position place, Unit unit) {
    const std::string_view mask = unit == Unit::Inch ? ".0" : "0";
    return SameText(pointer.X, place.X, mask) && SameText(pointer.Y, place.Y, mask);
}

bool LineHover::Hovers(Position pointer, const Segment& line) {
    const auto slope = [](Checked x1, Checked y1, Checked x2, Checked y2) {
        return Atn((y1 - y2) / (x1 - x2)) * DegreesPerRadian;
    };
    Step(ofLine_, [&] { return slope(line.Start.X, line.Start.Y, line.End.X, line.End.Y); });
    Step(toPointer_, [&] { return slope(line.Start.X, line.Start.Y, pointer.X, pointer.Y); });
    const bool across = Between(pointer.X, line.Start.X, line.End.X);
    const bool along = Between(pointer.Y, line.Start.Y, line.End.Y);
    if (!across && !along) {
        return false;
    }
    return SameText(ofLine_.Value(), toPointer_.Value(), "0") ||
           (across && line.Start.Y == line.End.Y && SameText(pointer.Y, line.Start.Y, "0.0"));
}

}  // namespace brindlex::geometry
