// Regular polygons: the circle around or in one, and its area, from one measured dimension.
// Units: degrees; lengths in the unit of the dimension.
#pragma once

namespace brindlex::polygon {

enum class DimensionType { AcrossFlats, FlatToCorner, OneFlat };

struct PolygonCase {
    int Sides = 6;
    double Dimension = 1;
    bool Inscribed = true;  ///< the polygon stands in the circle; else around it
    DimensionType Type = DimensionType::AcrossFlats;
    bool FlatsEnabled = true;    ///< across flats can be chosen: even numbers of sides
    bool CornerEnabled = false;  ///< flat to corner can be chosen: odd numbers of sides
};

struct PolygonSolution {
    double Diameter = 0;
    double Area = 0;
    double PictureRadius = 0;  ///< of the circle in the figure, in twips
};

inline constexpr int FewestSides = 3;
inline constexpr int MostSides = 36;
/// Radius of the figure's corners, in twips.
inline constexpr double FigureRadius = 1200;

/// Half the angle of a side at the centre: (360 / sides) / 2.
[[nodiscard]] double HalfAngle(int sides);

/// Whether half the number of sides has a fraction.
[[nodiscard]] bool IsOdd(int sides);

/// The tests run one after the other, and a later one that holds overwrites what an earlier one wrote: intended.
/// Throws Fault where a result overflows.
[[nodiscard]] PolygonSolution SolvePolygon(const PolygonCase& given, double rad);

}  // namespace brindlex::polygon
