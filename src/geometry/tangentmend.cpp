// Tangent circles by vectors: the centre in a sector is the crossing plus R / |a x b| times (+-a +-b), with a and b the
// unit vectors along the lines.
#include "geometry/tangentmend.h"

#include <cmath>
#include <cstddef>

namespace brindlex::geometry {

namespace {

/// Where a circle counts as a true tangent already; a part of the radius.
constexpr double True = 1e-10;

double Apart(Position a, Position b) {
    return std::hypot(a.X - b.X, a.Y - b.Y);
}

/// The unit vector along a line; zeros for one of no length.
Position Along(const Segment& line) {
    const double length = Apart(line.Start, line.End);
    if (length == 0) {
        return {};
    }
    return {(line.End.X - line.Start.X) / length, (line.End.Y - line.Start.Y) / length};
}

Position Foot(Position place, const Segment& line) {
    const Position along = Along(line);
    const double reach = (place.X - line.Start.X) * along.X + (place.Y - line.Start.Y) * along.Y;
    return {line.Start.X + along.X * reach, line.Start.Y + along.Y * reach};
}

bool IsFoot(Position point, Position centre, const Segment& line, double slack, double radius) {
    return DistanceFrom(point, line) <= slack && std::fabs(Apart(point, centre) - radius) <= slack;
}

/// One of the four sectors at the crossing.
struct Sector {
    Position Centre;
    bool Taken = false;
};

/// False for lines that have no length or are parallel.
bool FindSectors(const LinePair& lines, Position crossing, double radius, std::array<Sector, 4>& sectors) {
    const Position a = Along(lines.A);
    const Position b = Along(lines.B);
    const double reach = radius / std::fabs(a.X * b.Y - a.Y * b.X);
    for (std::size_t i = 0; i < sectors.size(); ++i) {
        const double onA = i < 2 ? reach : -reach;
        const double onB = i % 2 == 0 ? reach : -reach;
        sectors[i].Centre = {crossing.X + onA * a.X + onB * b.X, crossing.Y + onA * a.Y + onB * b.Y};
    }
    return std::isfinite(reach);
}

/// The sector whose centre is nearest, of all or of those that are free (one is).
Sector& Nearest(std::array<Sector, 4>& sectors, Position centre, bool ofAll) {
    Sector* nearest = nullptr;
    for (Sector& sector : sectors) {
        const bool counts = ofAll || !sector.Taken;
        if (counts && (nearest == nullptr || Apart(sector.Centre, centre) < Apart(nearest->Centre, centre))) {
            nearest = &sector;
        }
    }
    return *nearest;
}

}  // namespace

double DistanceFrom(Position place, const Segment& line) {
    return Apart(place, Foot(place, line));
}

bool TouchesLines(const TangentCircle& circle, const LinePair& lines, double radius, double tolerance) {
    const double slack = tolerance * radius;
    return std::fabs(DistanceFrom(circle.Centre, lines.A) - radius) <= slack &&
           std::fabs(DistanceFrom(circle.Centre, lines.B) - radius) <= slack;
}

bool PointsTouch(const TangentCircle& circle, const LinePair& lines, double radius, double tolerance) {
    const double slack = tolerance * radius;
    return IsFoot(circle.OnA, circle.Centre, lines.A, slack, radius) &&
           IsFoot(circle.OnB, circle.Centre, lines.B, slack, radius);
}

void MendCircles(std::array<TangentCircle, 4>& circles, const LinePair& lines, Position crossing, double radius) {
    std::array<Sector, 4> sectors{};
    if (!FindSectors(lines, crossing, radius, sectors)) {
        return;
    }
    std::array<bool, 4> stands{};
    for (std::size_t i = 0; i < circles.size(); ++i) {
        Sector& nearest = Nearest(sectors, circles[i].Centre, true);
        stands[i] = !nearest.Taken && TouchesLines(circles[i], lines, radius, True);
        nearest.Taken = nearest.Taken || stands[i];
    }
    for (std::size_t i = 0; i < circles.size(); ++i) {
        if (!stands[i]) {
            Sector& free = Nearest(sectors, circles[i].Centre, false);
            free.Taken = true;
            circles[i].Centre = free.Centre;
        }
        if (!PointsTouch(circles[i], lines, radius, True)) {
            circles[i].OnA = Foot(circles[i].Centre, lines.A);
            circles[i].OnB = Foot(circles[i].Centre, lines.B);
        }
    }
}

}  // namespace brindlex::geometry
