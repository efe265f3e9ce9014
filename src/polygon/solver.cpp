// Polygon arithmetic: the rows of the two circle relations, and the area.
#include "polygon/solver.h"

#include "frame/checked.h"
#include "frame/text.h"

#include <span>

namespace brindlex::polygon {

namespace {

constexpr double SmallRadius = 600;

// What the rows need: dimension, half angle H and its complement G, all trigonometry in one place.
struct Terms {
    Checked d;
    Checked tanH;
    Checked tanHalfH;
    Checked cosH;
    Checked sinG;
    Checked sin2H;
};

struct Row {
    bool (*holds)(const PolygonCase& given);
    Checked (*diameter)(const Terms& t);
    bool smallCircle;  // the figure's circle is the small one of the triangle
};

bool IsTriangle(const PolygonCase& given) {
    return given.Sides == 3;
}
bool Is(const PolygonCase& given, DimensionType type) {
    return given.Type == type;
}

// Side length over sine: the circle through the corners.
Checked AroundSide(Checked side, const Terms& t) {
    return 2.0 * side * t.sinG / t.sin2H;
}

// With three sides the fourth condition of one flat holds as well and wins over the second: intended.
constexpr Row InscribedRows[] = {
    {[](const PolygonCase& g) { return Is(g, DimensionType::FlatToCorner) && IsTriangle(g); },
     [](const Terms& t) { return t.d / 3.0 + t.d; }, false},
    {[](const PolygonCase& g) { return Is(g, DimensionType::OneFlat) && IsTriangle(g); },
     [](const Terms& t) { return t.d * t.tanH; }, false},
    {[](const PolygonCase& g) { return Is(g, DimensionType::AcrossFlats) && !g.CornerEnabled; },
     [](const Terms& t) { return t.d / t.cosH; }, false},
    {[](const PolygonCase& g) { return Is(g, DimensionType::OneFlat) && !g.CornerEnabled; },
     [](const Terms& t) { return AroundSide(t.d, t); }, false},
    {[](const PolygonCase& g) { return Is(g, DimensionType::FlatToCorner) && !IsTriangle(g); },
     [](const Terms& t) { return AroundSide(2.0 * t.d * t.tanHalfH, t); }, false},
    {[](const PolygonCase& g) { return Is(g, DimensionType::OneFlat) && !g.FlatsEnabled; },
     [](const Terms& t) { return AroundSide(t.d, t); }, false},
};

constexpr Row CircumscribedRows[] = {
    {[](const PolygonCase& g) { return Is(g, DimensionType::FlatToCorner) && IsTriangle(g); },
     [](const Terms& t) { return (t.d / 3.0 + t.d) / 2.0; }, true},
    {[](const PolygonCase& g) { return Is(g, DimensionType::OneFlat) && IsTriangle(g); },
     [](const Terms& t) { return t.tanH * (t.d / 2.0) / 2.0; }, true},
    {[](const PolygonCase& g) { return Is(g, DimensionType::AcrossFlats) && !g.CornerEnabled; },
     [](const Terms& t) { return t.d; }, false},
    {[](const PolygonCase& g) { return Is(g, DimensionType::OneFlat) && !g.CornerEnabled; },
     [](const Terms& t) { return t.d / t.tanH; }, false},
    {[](const PolygonCase& g) { return Is(g, DimensionType::FlatToCorner) && !IsTriangle(g); },
     [](const Terms& t) { return 2.0 * t.d * t.tanHalfH / t.tanH; }, false},
    {[](const PolygonCase& g) { return Is(g, DimensionType::OneFlat) && !g.FlatsEnabled && !IsTriangle(g); },
     [](const Terms& t) { return t.d / t.tanH; }, false},
};

// Length of a side, by the kind of dimension alone.
Checked SideOf(DimensionType type, const Terms& t) {
    switch (type) {
        case DimensionType::AcrossFlats:
            return 2.0 * (t.tanH / 2.0) * t.d;
        case DimensionType::FlatToCorner:
            return 4.0 * (t.tanHalfH / 2.0) * t.d;
        case DimensionType::OneFlat:
            break;
    }
    return t.d;
}

// Sides times half a side times the apothem.
Checked AreaOf(const PolygonCase& given, const Terms& t) {
    const Checked side = SideOf(given.Type, t);
    const Checked radius = side * t.sinG / t.sin2H;
    const Checked apothem = Sqr(radius * radius - side * side / 4.0);
    return given.Sides * side / 2.0 * apothem;
}

}  // namespace

double HalfAngle(int sides) {
    return (360.0 / sides) / 2.0;
}

bool IsOdd(int sides) {
    return InStr(Str(sides / 2.0), ".") != 0;
}

PolygonSolution SolvePolygon(const PolygonCase& given, double rad) {
    const double half = HalfAngle(given.Sides);
    const double complement = (180.0 - 2.0 * half) / 2.0;
    const Terms terms{given.Dimension, Tan(half * rad),       Tan(half / 2.0 * rad),
                      Cos(half * rad), Sin(complement * rad), Sin(2.0 * half * rad)};
    PolygonSolution solution;
    solution.PictureRadius = given.Inscribed ? FigureRadius : 0;
    for (const Row& row : given.Inscribed ? std::span<const Row>(InscribedRows) : CircumscribedRows) {
        if (row.holds(given)) {
            solution.Diameter = row.diameter(terms).Value();
            if (!given.Inscribed) {
                solution.PictureRadius = row.smallCircle ? SmallRadius : (FigureRadius * terms.cosH).Value();
            }
        }
    }
    solution.Area = AreaOf(given, terms).Value();
    return solution;
}

}  // namespace brindlex::polygon
