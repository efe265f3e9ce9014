// Circles tangent to two crossing lines: sector angles, bisectors, centres, points of tangency by sign tables.
#include "geometry/tangentcircles.h"

#include "frame/text.h"
#include "geometry/crossings.h"
#include "geometry/tangentmend.h"

#include <cstddef>
#include <optional>

namespace brindlex::geometry {

namespace {

/// A position whose coordinates are two steps.
struct Place {
    Checked X, Y;
};

/// One sign for each coordinate.
struct AxisSigns {
    double X;
    double Y;
};

void Put(Place& place, const Place& from, AxisSigns signs, Checked x, Checked y) {
    Step(place.X, [&] { return from.X + x * signs.X; });
    Step(place.Y, [&] { return from.Y + y * signs.Y; });
}

/// A line's slope from both axes: psi from Y, phi from X, in degrees.
struct Slope {
    Checked Dx, Dy, Psi, Phi;

    /// A ratio that fails leaves its angle as it was.
    void Measure(Position from, Position to, Tangents tangents) {
        Step(Dx, [&] { return Checked(from.X) - to.X; });
        Step(Dy, [&] { return Checked(from.Y) - to.Y; });
        Step(Psi, [&] { return ArcTangent(Divide(Dx, Dy, tangents), DegreesPerRadian); });
        Step(Phi, [&] { return ArcTangent(Divide(Dy, Dx, tangents), DegreesPerRadian); });
    }
};

/// The end with the larger X first, with equal X the one with the larger Y; nothing but zeros with both equal.
Segment Ordered(const Segment& line) {
    const Position a = line.Start;
    const Position b = line.End;
    if (a.X > b.X || (a.X == b.X && a.Y > b.Y)) {
        return {a, b};
    }
    if (b.X > a.X || b.Y > a.Y) {
        return {b, a};
    }
    return {};
}

struct Points {
    Place OnA, OnB;
};

/// The working numbers of a run.
struct TangentNumbers {
    Place Crossing;
    Checked R, Rad;
    Slope A, B;
    bool Sense = false;      ///< both lines lean the same way
    Checked P, Q;            ///< sector angles
    Checked Tk;              ///< tangent length from the crossing
    Checked A1, A2, B1, B2;  ///< offsets of the centres
    Checked M, N;            ///< bisector directions
    std::array<Place, 4> Centres;
    std::array<Points, 4> Touch;
};

/// The only equality test on angles: to ten decimals.
bool LeanAlike(const TangentNumbers& w) {
    constexpr std::string_view Mask = ".0000000000";
    const auto isZero = [&](Checked whole, Checked one, Checked other) {
        return ValueOf(Format((Abs(whole / 2.0) - Abs((one + other) / 2.0)).Value(), Mask)) == 0;
    };
    return isZero(w.Q, w.A.Phi, w.B.Phi) && isZero(w.P, w.A.Psi, w.B.Psi);
}

void FindSectors(TangentNumbers& w) {
    Step(w.P, [&] { return Abs(w.A.Psi) + Abs(w.B.Psi); });
    Step(w.Q, [&] { return Abs(w.A.Phi) + Abs(w.B.Phi); });
    w.Sense = LeanAlike(w);
    if (w.Sense) {
        Step(w.P, [&] { return Abs(Abs(w.A.Psi) - Abs(w.B.Psi)); });
        Step(w.Q, [&] { return 180.0 - w.P; });
    }
}

void FindOffsets(TangentNumbers& w) {
    const Checked h = w.Q / 2.0;
    const Checked k = w.P / 2.0;
    Checked dh;
    Checked dk;
    Step(dh, [&] { return w.R / Sin(h * w.Rad); });
    Step(dk, [&] { return w.R / Sin(k * w.Rad); });
    Step(w.Tk, [&] { return w.R / Tan(k * w.Rad); });
    Step(w.M, [&] { return (w.A.Psi + w.B.Psi) / 2.0; });
    Step(w.N, [&] { return (w.A.Phi + w.B.Phi) / 2.0; });
    Step(w.A1, [&] { return dh * Cos(w.M * w.Rad); });
    Step(w.A2, [&] { return dh * Sin(w.M * w.Rad); });
    Step(w.B1, [&] { return dk * Cos(w.N * w.Rad); });
    Step(w.B2, [&] { return dk * Sin(w.N * w.Rad); });
}

void FindCentres(TangentNumbers& w) {
    if (w.Sense) {
        Put(w.Centres[0], w.Crossing, {-1, -1}, w.B1, w.B2);
        Put(w.Centres[1], w.Crossing, {1, 1}, w.B1, w.B2);
    } else {
        Put(w.Centres[0], w.Crossing, {1, -1}, w.B2, w.B1);
        Put(w.Centres[1], w.Crossing, {-1, 1}, w.B2, w.B1);
    }
    if (w.Sense && w.M + w.N == 0.0) {
        Put(w.Centres[2], w.Crossing, {1, 1}, w.A2, w.A1);
        Put(w.Centres[3], w.Crossing, {-1, -1}, w.A2, w.A1);
    } else if (w.Sense) {
        Put(w.Centres[2], w.Crossing, {-1, 1}, w.A1, w.A2);
        Put(w.Centres[3], w.Crossing, {1, -1}, w.A1, w.A2);
    } else {
        Put(w.Centres[2], w.Crossing, {1, -1}, w.A1, w.A2);
        Put(w.Centres[3], w.Crossing, {-1, 1}, w.A1, w.A2);
    }
}

// Points of tangency of the first two centres: from the crossing along the lines.

struct AlongRow {
    AxisSigns OnA1, OnB1, OnA2, OnB2;
};
constexpr AlongRow Ahead{{1, 1}, {1, 1}, {-1, -1}, {-1, -1}};
constexpr AlongRow Back{{-1, -1}, {-1, -1}, {1, 1}, {1, 1}};
constexpr AlongRow LevelA{{1, -1}, {-1, -1}, {-1, 1}, {1, 1}};
constexpr AlongRow LevelB{{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};

bool IsMinusRightAngle(Checked angle) {
    constexpr double MinusRightAngle = -90;
    return ValueOf(Format(angle.Value(), ".000000000000")) == MinusRightAngle;
}

void PutAlong(TangentNumbers& w, const AlongRow& row) {
    const auto put = [&](Place& place, AxisSigns signs, const Slope& line) {
        Checked u;
        Checked v;
        Step(u, [&] { return w.Tk * Sin(line.Psi * w.Rad); });
        Step(v, [&] { return w.Tk * Cos(line.Psi * w.Rad); });
        Put(place, w.Crossing, signs, u, v);
    };
    put(w.Touch[0].OnA, row.OnA1, w.A);
    put(w.Touch[0].OnB, row.OnB1, w.B);
    put(w.Touch[1].OnA, row.OnA2, w.A);
    put(w.Touch[1].OnB, row.OnB2, w.B);
}

/// The rows are tested from top to bottom, and a later one that fires writes over an earlier one.
void TouchAlongLines(TangentNumbers& w) {
    const Place c = w.Centres[0];
    const Place& p = w.Crossing;
    const bool lowerLeft = c.X < p.X && c.Y < p.Y;
    if (c.X < p.X && c.Y > p.Y) {
        PutAlong(w, Ahead);
    }
    if ((c.X > p.X && c.Y < p.Y) || lowerLeft) {
        PutAlong(w, Back);
    }
    if (lowerLeft && IsMinusRightAngle(w.A.Psi)) {
        PutAlong(w, LevelA);
    }
    if (lowerLeft && IsMinusRightAngle(w.B.Psi)) {
        PutAlong(w, LevelB);
    }
    if (c.X == p.X) {
        PutAlong(w, Back);
    }
}

// Points of tangency of the other two centres: from the centres, square to the lines.

enum class Case { None, I, II, III, IV, V };

Case CaseOf(const Place& c, const Place& p) {
    if (c.Y == p.Y) {
        return Case::V;
    }
    if (c.X < p.X) {
        return c.Y < p.Y ? Case::I : Case::IV;
    }
    if (c.X > p.X) {
        return c.Y > p.Y ? Case::II : Case::III;
    }
    return Case::None;
}

/// An offset from the third centre, in radii, and less `Sb` times R Sin(psiB) on Y. The fourth takes its negative.
struct Offset {
    double X;
    double Y;
    double Sb = 0;
};

enum class Want { Any, Zero, Other };

/// A correction for lines parallel to an axis: what the line differences must be, and what it puts where.
struct Correction {
    Case For;
    Want DxA, DyA, DxB, DyB;
    std::optional<Offset> OnA, OnB;
};
constexpr std::array Corrections{
    Correction{Case::II, Want::Other, Want::Any, Want::Zero, Want::Any, std::nullopt, Offset{-1, 0}},
    Correction{Case::III, Want::Any, Want::Other, Want::Any, Want::Zero, std::nullopt, Offset{0, 1}},
    Correction{Case::III, Want::Any, Want::Zero, Want::Any, Want::Other, Offset{0, 1}, std::nullopt},
    Correction{Case::IV, Want::Zero, Want::Any, Want::Any, Want::Zero, Offset{1, 0}, Offset{0, -1}},
    Correction{Case::IV, Want::Other, Want::Any, Want::Any, Want::Zero, std::nullopt, Offset{0, -1}},
    Correction{Case::IV, Want::Any, Want::Other, Want::Zero, Want::Any, std::nullopt, Offset{1, 0, 1}},
    Correction{Case::IV, Want::Zero, Want::Any, Want::Any, Want::Other, Offset{1, 0}, std::nullopt},
    Correction{Case::IV, Want::Any, Want::Zero, Want::Other, Want::Any, Offset{0, -1}, std::nullopt},
    Correction{Case::IV, Want::Any, Want::Zero, Want::Zero, Want::Any, Offset{0, -1}, std::nullopt},
};

bool Holds(Want want, Checked difference) {
    return want == Want::Any || (want == Want::Zero) == (difference == 0.0);
}

/// The point square to a line: `side` is 1 in the cases I and IV, -1 in the others.
void PutSquare(TangentNumbers& w, std::size_t centre, double side, Place Points::*on, const Slope& line) {
    Checked cosine;
    Checked sine;
    Step(cosine, [&] { return w.R * Cos(line.Psi * w.Rad); });
    Step(sine, [&] { return w.R * Sin(line.Psi * w.Rad); });
    Put(w.Touch[centre].*on, w.Centres[centre], {side, -side}, cosine, sine);
}

void PutSquare(TangentNumbers& w, double side) {
    PutSquare(w, 2, side, &Points::OnA, w.A);
    PutSquare(w, 2, side, &Points::OnB, w.B);
    PutSquare(w, 3, -side, &Points::OnA, w.A);
    PutSquare(w, 3, -side, &Points::OnB, w.B);
}

void PutOffset(TangentNumbers& w, Place Points::*on, const Offset& offset) {
    Checked sb;
    Step(sb, [&] { return w.R * Sin(w.B.Psi * w.Rad); });
    const Checked x = w.R * offset.X;
    const Checked y = w.R * offset.Y - sb * offset.Sb;
    Put(w.Touch[2].*on, w.Centres[2], {1, 1}, x, y);
    Put(w.Touch[3].*on, w.Centres[3], {-1, -1}, x, y);
}

void Correct(TangentNumbers& w, Case found) {
    for (const Correction& row : Corrections) {
        if (row.For != found || !Holds(row.DxA, w.A.Dx) || !Holds(row.DyA, w.A.Dy) || !Holds(row.DxB, w.B.Dx) ||
            !Holds(row.DyB, w.B.Dy)) {
            continue;
        }
        if (found == Case::IV) {
            PutSquare(w, 1);  // each row of this case writes all four afresh, so that the last one decides
        }
        if (row.OnA) {
            PutOffset(w, &Points::OnA, *row.OnA);
        }
        if (row.OnB) {
            PutOffset(w, &Points::OnB, *row.OnB);
        }
    }
}

void TouchSquare(TangentNumbers& w) {
    const Case found = CaseOf(w.Centres[2], w.Crossing);
    if (found == Case::None) {
        return;
    }
    if (found == Case::V) {
        PutSquare(w, 2, -1, &Points::OnA, w.A);
        PutSquare(w, 3, 1, &Points::OnA, w.A);
        for (const std::size_t centre : {2U, 3U}) {
            Points& points = w.Touch[centre];
            points.OnB = {points.OnA.X, -points.OnA.Y};  // negated and not mirrored at the crossing: intended
        }
        return;
    }
    PutSquare(w, found == Case::I || found == Case::IV ? 1 : -1);
    Correct(w, found);
}

Position Plain(const Place& place) {
    return {place.X.Value(), place.Y.Value()};
}

}  // namespace

LinePair FindLinePair(const std::vector<std::string>& lineRecords, const PairItem& item) {
    LinePair pair;
    for (const std::string& record : lineRecords) {
        const double number = NumberOf(record);
        if (number == item.NumberA) {
            pair.A = ReadRecord(record).Ends();
        }
        if (number == item.NumberB) {
            pair.B = ReadRecord(record).Ends();
        }
    }
    return pair;
}

std::array<TangentCircle, 4> CirclesByTables(const LinePair& lines, Position crossing, double radius,
                                             Tangents tangents) {
    TangentNumbers w;
    w.Crossing = {crossing.X, crossing.Y};
    w.R = radius;
    w.Rad = Atn(1.0) * 4.0 / 180.0;
    const Segment a = Ordered(lines.A);
    const Segment b = Ordered(lines.B);
    w.A.Measure(a.Start, a.End, tangents);
    w.B.Measure(b.Start, b.End, tangents);
    FindSectors(w);
    FindOffsets(w);
    FindCentres(w);
    // The angles anew, from the lines as they were read; where a ratio fails, the ordered line's angle stays.
    w.A.Measure(lines.A.Start, lines.A.End, tangents);
    w.B.Measure(lines.B.Start, lines.B.End, tangents);
    TouchAlongLines(w);
    TouchSquare(w);
    std::array<TangentCircle, 4> circles;
    for (std::size_t i = 0; i < circles.size(); ++i) {
        circles[i] = {Plain(w.Centres[i]), Plain(w.Touch[i].OnA), Plain(w.Touch[i].OnB)};
    }
    return circles;
}

std::array<TangentCircle, 4> FindTangentCircles(const std::vector<std::string>& lineRecords, std::string_view item,
                                                double radius, Tangents tangents) {
    const PairItem chosen = ReadPair(item);
    const LinePair lines = FindLinePair(lineRecords, chosen);
    auto circles = CirclesByTables(lines, chosen.Crossing, radius, tangents);
    if (tangents == Tangents::Exact) {
        MendCircles(circles, lines, chosen.Crossing, radius);
    }
    return circles;
}

bool EveryCircleTouches(const std::vector<std::string>& lineRecords, std::string_view item, double radius,
                        const std::array<TangentCircle, 4>& circles) {
    constexpr double Tolerance = 1e-6;
    const LinePair lines = FindLinePair(lineRecords, ReadPair(item));
    for (const TangentCircle& circle : circles) {
        if (!TouchesLines(circle, lines, radius, Tolerance) || !PointsTouch(circle, lines, radius, Tolerance)) {
            return false;
        }
    }
    return true;
}

}  // namespace brindlex::geometry
