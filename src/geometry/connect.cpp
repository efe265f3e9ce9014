// Tangents and joining lines, with the sign tables as data.
#include "geometry/connect.h"

#include "frame/text.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <optional>

namespace brindlex::geometry {

namespace {

struct Circle {
    Position Centre;
    double Radius = 0;
};

/// What the store holds of a named entity, whatever its kind; the kind that was named picks.
struct Entity {
    Circle Round;
    Segment Line;
    Position Point;
};

/// Cut to 15 digits, as it goes through text.
double ThroughText(double value) {
    return ValueOf(Str(value));
}

Entity ReadEntity(const std::vector<std::string>& lines, std::string_view numberText) {
    Entity entity;
    const double number = ValueOf(numberText);
    for (const std::string& line : lines) {
        const Record record = ReadRecord(line);
        if (record.Number != number) {
            continue;
        }
        if (record.Shape == Kind::Circle) {
            const Position centre = record.Centre();
            entity.Round = {{ThroughText(centre.X), ThroughText(centre.Y)}, ThroughText(record.Diameter() / 2)};
        } else if (record.Shape == Kind::Line) {
            entity.Line = record.Ends();
        } else if (record.Shape == Kind::Point) {
            entity.Point = record.Place();
        }
    }
    return entity;
}

/// The arc sine in degrees. At 1 the division faults, above 1 the root.
Checked ArcSine(Checked w, Checked pi, Tangents tangents) {
    return ArcTangent(Divide(w, Sqr(1.0 - w * w), tangents), 180.0 / pi);
}

/// The steps that all branches with a circle share; the targets last through a run.
struct CentreGeometry {
    explicit CentreGeometry(Tangents mode) : Mode(mode) {}

    Tangents Mode;
    Checked Pi = Atn(1.0) * 4.0;
    Checked Rad = Pi / 180.0;
    Checked Dx, Dy, D, Theta;
    Ratio T;

    void Measure(Position a, Position b) {
        Step(Dx, [&] { return Abs(Checked(b.X) - a.X); });
        Step(Dy, [&] { return Abs(Checked(b.Y) - a.Y); });
        Step(D, [&] { return Sqr(Dx * Dx + Dy * Dy); });
        Guarded([&] { T = Divide(Dy, Dx, Mode); });
        Step(Theta, [&] { return ArcTangent(T, DegreesPerRadian); });
    }
};

/// A sign for the sine, on X, and one for the cosine, on Y.
struct Signs {
    double X;
    double Y;
};
constexpr Signs MinusPlus{-1, 1};
constexpr Signs PlusMinus{1, -1};
constexpr Signs PlusPlus{1, 1};
constexpr Signs MinusMinus{-1, -1};

/// Where the second entity stands: above (1), below (-1), or at no distance (0).
struct Side {
    int X;
    int Y;
    friend bool operator==(const Side&, const Side&) = default;
};

int Compare(double value, double with) {
    return (value > with ? 1 : 0) - (value < with ? 1 : 0);
}

/// The first row that fits of a chain of rows; a chain tests one position, so the second chain's row wins.
template <class Table, class Fits>
auto FindRow(const Table& table, Fits fits) -> const typename Table::value_type* {
    constexpr std::size_t Chain = 4;
    const typename Table::value_type* found = nullptr;
    for (std::size_t start = 0; start < table.size(); start += Chain) {
        for (std::size_t i = start; i < start + Chain; ++i) {
            if (fits(table[i].Second)) {
                found = &table[i];
                break;
            }
        }
    }
    return found;
}

// Circle to circle.

struct CirclesRow {
    Side Second;                 ///< the second centre against the first
    std::array<Signs, 4> Lines;  ///< of angles A, B, C, E
};

// Rows 2 and 4 break the pattern of the others: intended.
constexpr std::array CirclesTable{
    CirclesRow{{1, 0}, {MinusPlus, MinusPlus, PlusMinus, PlusMinus}},
    CirclesRow{{-1, 0}, {PlusMinus, PlusMinus, PlusMinus, MinusPlus}},
    CirclesRow{{0, 1}, {MinusPlus, MinusPlus, PlusMinus, PlusMinus}},
    CirclesRow{{0, -1}, {MinusMinus, PlusMinus, PlusPlus, MinusPlus}},
    CirclesRow{{1, 1}, {MinusPlus, MinusPlus, PlusMinus, PlusMinus}},
    CirclesRow{{-1, 1}, {PlusPlus, PlusPlus, MinusMinus, MinusMinus}},
    CirclesRow{{-1, -1}, {PlusMinus, PlusMinus, MinusPlus, MinusPlus}},
    CirclesRow{{1, -1}, {MinusMinus, MinusMinus, PlusPlus, PlusPlus}},
};
/// The second row as the exact tangents need it where the radii differ.
constexpr CirclesRow ExactSecondRow{{-1, 0}, {PlusMinus, PlusMinus, MinusPlus, MinusPlus}};

const CirclesRow* FindCirclesRow(const Circle& first, const Circle& second, const CentreGeometry& g) {
    const Side side{Compare(second.Centre.X, first.Centre.X), Compare(second.Centre.Y, first.Centre.Y)};
    const CirclesRow* row = FindRow(CirclesTable, [&](Side wanted) {
        return (wanted.X == 0 ? g.Dx == 0.0 : wanted.X == side.X) && (wanted.Y == 0 ? g.Dy == 0.0 : wanted.Y == side.Y);
    });
    return row == &CirclesTable[1] && g.Mode == Tangents::Exact ? &ExactSecondRow : row;
}

struct CircleAngles {
    Checked A, B, C, E;
};

CircleAngles AnglesBetween(const Circle& first, const Circle& second, const CentreGeometry& g) {
    const Checked r1 = first.Radius;
    const Checked r2 = second.Radius;
    Checked u;
    Checked v;
    Step(u, [&] { return Abs(r1 - r2) / g.D; });
    Step(v, [&] { return Abs(r1 + r2) / g.D; });
    CircleAngles angles;
    const bool swapped = r2 > r1;
    Step(swapped ? angles.C : angles.A, [&] { return g.Theta - ArcSine(u, g.Pi, g.Mode); });
    Step(swapped ? angles.A : angles.C, [&] { return g.Theta + ArcSine(u, g.Pi, g.Mode); });
    Step(angles.B, [&] { return g.Theta - ArcSine(v, g.Pi, g.Mode); });
    Step(angles.E, [&] { return g.Theta + ArcSine(v, g.Pi, g.Mode); });
    return angles;
}

/// centre + sign * radius * (sin, cos) of an angle.
void PlaceOnCircle(const Circle& circle, Checked angle, Signs signs, Checked rad, Position& place) {
    Checked sine;
    Checked cosine;
    Step(sine, [&] { return Sin(angle * rad) * circle.Radius; });
    Step(cosine, [&] { return Cos(angle * rad) * circle.Radius; });
    Guarded([&] { place.X = (sine * signs.X + circle.Centre.X).Value(); });
    Guarded([&] { place.Y = (cosine * signs.Y + circle.Centre.Y).Value(); });
}

std::vector<Segment> CircleToCircle(const Circle& first, const Circle& second, CentreGeometry& g) {
    std::vector<Segment> lines(4);
    g.Measure(first.Centre, second.Centre);
    const CircleAngles angles = AnglesBetween(first, second, g);
    const CirclesRow* const row = FindCirclesRow(first, second, g);
    if (row == nullptr) {
        return lines;  // equal centres: four lines at the origin, intended
    }
    const std::array order{angles.A, angles.B, angles.C, angles.E};
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Signs signs = row->Lines[i];
        const bool crossing = i % 2 == 1;
        const Signs far = crossing ? Signs{-signs.X, -signs.Y} : signs;
        PlaceOnCircle(first, order[i], signs, g.Rad, lines[i].Start);
        PlaceOnCircle(second, order[i], far, g.Rad, lines[i].End);
    }
    return lines;
}

// Circle to point.

struct PointRow {
    Side Second;      ///< the circle's centre against the point
    Signs First;      ///< T1, always of angle A
    Signs Other;      ///< T2
    bool OtherAngle;  ///< T2 takes the second angle
};

constexpr std::array PointTable{
    PointRow{{-1, 0}, MinusPlus, MinusMinus, false}, PointRow{{1, 0}, PlusMinus, PlusPlus, false},
    PointRow{{0, -1}, PlusPlus, MinusPlus, false},   PointRow{{0, 1}, PlusMinus, MinusMinus, false},
    PointRow{{-1, -1}, MinusPlus, PlusMinus, true},  PointRow{{1, 1}, PlusMinus, MinusPlus, true},
    PointRow{{-1, 1}, MinusMinus, PlusPlus, true},   PointRow{{1, -1}, PlusPlus, MinusMinus, true},
};

/// Both angles last through a run, as what the centre geometry holds.
struct PointGeometry {
    explicit PointGeometry(Tangents mode) : Centre(mode) {}

    CentreGeometry Centre;
    Checked U, A, C;
};

std::array<Position, 2> TangentPoints(const Circle& circle, Position point, PointGeometry& g) {
    std::array<Position, 2> points{};
    g.Centre.Measure(circle.Centre, point);
    Step(g.U, [&] { return Checked(circle.Radius) / g.Centre.D; });
    Step(g.A, [&] { return g.Centre.Theta - ArcSine(g.U, g.Centre.Pi, g.Centre.Mode); });
    Step(g.C, [&] { return g.Centre.Theta + ArcSine(g.U, g.Centre.Pi, g.Centre.Mode); });
    const Side side{Compare(circle.Centre.X, point.X), Compare(circle.Centre.Y, point.Y)};
    const PointRow* const row = FindRow(PointTable, [&](Side wanted) { return wanted == side; });
    if (row != nullptr) {
        PlaceOnCircle(circle, g.A, row->First, g.Centre.Rad, points[0]);
        PlaceOnCircle(circle, row->OtherAngle ? g.C : g.A, row->Other, g.Centre.Rad, points[1]);
    }
    return points;
}

std::vector<Segment> Reversed(std::vector<Segment> lines) {
    for (Segment& line : lines) {
        std::swap(line.Start, line.End);
    }
    return lines;
}

std::vector<Segment> CircleToPoint(const Circle& circle, Position point, PointGeometry& g) {
    const std::array<Position, 2> points = TangentPoints(circle, point, g);
    return {{points[0], point}, {points[1], point}};
}

std::vector<Segment> CircleToLine(const Circle& circle, const Segment& line, PointGeometry& g) {
    std::vector<Segment> lines = CircleToPoint(circle, line.Start, g);
    // The second pass sees what the first one left where a step of its own is skipped: intended.
    const std::vector<Segment> more = CircleToPoint(circle, line.End, g);
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

/// Distance of a circle's centre from a line; from its start where the line is as good as a point.
double Distance(const Circle& circle, const Segment& line) {
    constexpr double AsGoodAsNone = 1e-9;
    const double dx = line.End.X - line.Start.X;
    const double dy = line.End.Y - line.Start.Y;
    const double x = circle.Centre.X - line.Start.X;
    const double y = circle.Centre.Y - line.Start.Y;
    const double length = std::hypot(dx, dy);
    return length <= AsGoodAsNone * circle.Radius ? std::hypot(x, y) : std::fabs((dx * y - dy * x) / length);
}

}  // namespace

Named NamedBy(std::string_view circle, std::string_view line, std::string_view point) {
    Named named;
    const auto take = [&](Kind kind, std::string_view text) {
        if (!text.empty()) {
            named = {kind, std::string(text)};
        }
    };
    take(Kind::Circle, circle);
    take(Kind::Line, line);
    take(Kind::Point, point);
    return named;
}

ConnectLimit TestConnectLimits(const Board& board, bool panelShown) {
    if (board.CircleTop + CircleWidth > CircleBound) {
        return ConnectLimit::Circles;
    }
    if (panelShown && board.LineTop + 4 * LineWidth > LineBound) {
        return ConnectLimit::Lines;
    }
    return board.PointTop + PointWidth > PointBound ? ConnectLimit::Points : ConnectLimit::None;
}

std::string ConnectLimitMessage(const Board& board, ConnectLimit limit) {
    switch (limit) {
        case ConnectLimit::Circles:
            return "Sorry. Only 12 Circles Can Be Created!";
        case ConnectLimit::Lines:
            return "Sorry. Only 14 Lines Can Be Created.\r\nThis Operation Would Require\r\n" +
                   Str((board.LineTop + 4.0 * LineWidth) / LineWidth) + " Lines.";
        case ConnectLimit::Points:
            return "Sorry. Only 14 Points Can Be Created!";
        case ConnectLimit::None:
            break;
    }
    return {};
}

std::vector<Segment> Connect(const std::vector<std::string>& lines, const Named& first, const Named& second,
                             Tangents tangents) {
    const Entity a = ReadEntity(lines, first.NumberText);
    const Entity b = ReadEntity(lines, second.NumberText);
    CentreGeometry centres(tangents);
    PointGeometry points(tangents);
    const auto pair = [&](Kind one, Kind other) { return first.Shape == one && second.Shape == other; };
    if (pair(Kind::Circle, Kind::Circle)) {
        return CircleToCircle(a.Round, b.Round, centres);
    }
    if (pair(Kind::Circle, Kind::Point)) {
        return CircleToPoint(a.Round, b.Point, points);
    }
    if (pair(Kind::Point, Kind::Circle)) {
        return Reversed(CircleToPoint(b.Round, a.Point, points));
    }
    if (pair(Kind::Point, Kind::Point)) {
        return {{a.Point, b.Point}};
    }
    if (pair(Kind::Line, Kind::Line)) {
        return {{a.Line.Start, b.Line.Start},
                {a.Line.Start, b.Line.End},
                {a.Line.End, b.Line.Start},
                {a.Line.End, b.Line.End}};
    }
    if (pair(Kind::Point, Kind::Line)) {
        return {{a.Point, b.Line.Start}, {a.Point, b.Line.End}};
    }
    if (pair(Kind::Line, Kind::Point)) {
        return {{a.Line.Start, b.Point}, {a.Line.End, b.Point}};
    }
    if (pair(Kind::Circle, Kind::Line)) {
        return CircleToLine(a.Round, b.Line, points);
    }
    if (pair(Kind::Line, Kind::Circle)) {
        return Reversed(CircleToLine(b.Round, a.Line, points));
    }
    return {};
}

bool EveryLineTouches(const std::vector<std::string>& lines, const Named& first, const Named& second,
                      const std::vector<Segment>& candidates) {
    constexpr double Tolerance = 1e-6;
    for (const Named& named : {first, second}) {
        if (named.Shape != Kind::Circle) {
            continue;
        }
        const Circle circle = ReadEntity(lines, named.NumberText).Round;
        for (const Segment& line : candidates) {
            if (!(std::fabs(Distance(circle, line) - circle.Radius) <= Tolerance * circle.Radius)) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace brindlex::geometry
