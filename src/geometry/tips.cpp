// Texts of the tips.
#include "geometry/tips.h"

#include "frame/text.h"
#include "geometry/steps.h"
#include "services/degrees.h"

#include <string_view>

namespace brindlex::geometry {

namespace {

constexpr double HalfTurn = 180;
constexpr double QuarterTurn = 90;
constexpr double ThreeQuarters = 270;

/// Four decimals, no zero before the point.
std::string Places(double value) {
    return Format(value, ".0000");
}

Checked Length(const Segment& line) {
    const Checked dx = Checked(line.Start.X) - line.End.X;
    const Checked dy = Checked(line.Start.Y) - line.End.Y;
    return Sqr(dx * dx + dy * dy);
}

}  // namespace

double AngleOf(const Segment& line) {
    Checked dx;
    Checked dy;
    Checked a;
    Step(dx, [&] { return Checked(line.Start.X) - line.End.X; });
    Step(dy, [&] { return Checked(line.Start.Y) - line.End.Y; });
    if (dx == 0.0) {
        return dy < 0.0 ? QuarterTurn : (dy > 0.0 ? ThreeQuarters : 0);
    }
    if (dy == 0.0) {
        return dx > 0.0 ? HalfTurn : 0;
    }
    Step(a, [&] { return Atn(dy / dx) * DegreesPerRadian; });
    if (dx > 0.0) {
        return HalfTurn + a.Value();
    }
    return dy > 0.0 ? FullTurn + a.Value() : a.Value();
}

std::string CircleTip(double number, double radius, Position centre) {
    std::string diameter;
    Guarded([&] { diameter = Places((Checked(radius) + radius).Value()); });
    return "Circle " + Str(number) + "  Diameter = " + diameter + "  X = " + Places(centre.X) +
           "  Y = " + Places(centre.Y);
}

std::string LineTip(double number, const Segment& line) {
    std::string length;
    Guarded([&] { length = Places(Length(line).Value()); });
    return "Line " + Str(number) + "  Length= " + length + " Start X= " + Places(line.Start.X) +
           ", Start Y= " + Places(line.Start.Y) + " - End X= " + Places(line.End.X) + ", End Y= " + Places(line.End.Y) +
           ", Angle= " + Str(AngleOf(line));
}

std::string PointTip(double number, Position place) {
    return "Point " + Str(number) + "  X = " + Places(place.X) + " Y = " + Places(place.Y);
}

}  // namespace brindlex::geometry
