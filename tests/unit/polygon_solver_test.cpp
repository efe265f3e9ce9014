// Regular polygons: every row by hand, the overwriting of earlier rows, and all numbers of sides against a polygon
// that is built from its corners.
#include "faultof.h"
#include "polygon/solver.h"
#include "radians.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace brindlex::polygon {
namespace {

constexpr DimensionType Flats = DimensionType::AcrossFlats;
constexpr DimensionType Corner = DimensionType::FlatToCorner;
constexpr DimensionType OneFlat = DimensionType::OneFlat;

/// As the form gives it: by the parity of the number, across flats or flat to corner can be chosen.
PolygonSolution Solve(int sides, double dimension, bool inscribed, DimensionType type) {
    const bool odd = sides % 2 == 1;
    return SolvePolygon({sides, dimension, inscribed, type, !odd, odd}, Rad);
}

TEST(PolygonSolver, NoRowHoldsWhereACornerCouldBeChosenToo) {
    EXPECT_EQ(SolvePolygon({3, 1, true, Flats, false, true}, Rad).Diameter, 0);
    EXPECT_EQ(SolvePolygon({3, 1, false, Flats, false, true}, Rad).Diameter, 0);
    // The area needs no row: that of a hexagon is the root of 3 halved times the width squared.
    for (const bool inscribed : {true, false}) {
        const PolygonSolution solution = SolvePolygon({6, 1, inscribed, Flats, true, true}, Rad);
        EXPECT_EQ(solution.Diameter, 0);
        EXPECT_EQ(solution.PictureRadius, inscribed ? 1200 : 0);
        EXPECT_NEAR(solution.Area, std::sqrt(3.0) / 2, 1e-14);
    }
}

TEST(PolygonSolver, HalfAngles) {
    EXPECT_EQ(HalfAngle(3), 60);
    EXPECT_EQ(HalfAngle(4), 45);
    EXPECT_EQ(HalfAngle(5), 36);
    EXPECT_EQ(HalfAngle(36), 5);
}

TEST(PolygonSolver, ParityOfAllNumbersOfSides) {
    for (int sides = FewestSides; sides <= MostSides; ++sides) {
        EXPECT_EQ(IsOdd(sides), sides % 2 == 1) << sides;
    }
}

struct Row {
    int Sides;
    DimensionType Type;
    double Dimension;
    bool Inscribed;
    double Diameter;
    double Area;
    double PictureRadius;
};

TEST(PolygonSolver, RowsByHand) {
    const std::vector<Row> rows{
        // A triangle 3 high fits into a circle of 4 and around one of 2; its area is 9 / sqrt 3.
        {3, Corner, 3, true, 4, 5.19615242270663, 1200},
        {3, Corner, 3, false, 2, 5.19615242270663, 600},
        // A triangle of side 4: 8 / sqrt 3 around it. For the circle within, tan 60 * 4 / 4: intended.
        {3, OneFlat, 4, true, 4.61880215351701, 6.92820323027551, 1200},
        {3, OneFlat, 4, false, 1.73205080756888, 6.92820323027551, 600},
        // A square of 1.
        {4, Flats, 1, true, 1.41421356237310, 1, 1200},
        {4, Flats, 1, false, 1, 1, 848.528137423857},
        {4, OneFlat, 1, true, 1.41421356237310, 1, 1200},
        {4, OneFlat, 1, false, 1, 1, 848.528137423857},
        // A pentagon: cos 36 is (1 + sqrt 5) / 4, so 1 high it fits into 8 / (5 + sqrt 5) and around 2 / sqrt 5.
        {5, Corner, 1, true, 1.10557280900008, 0.726542528005361, 1200},
        {5, Corner, 1, false, 0.894427190999916, 0.726542528005361, 970.820393249937},
        {5, OneFlat, 1, true, 1.70130161670408, 1.72047740058897, 1200},
        {5, OneFlat, 1, false, 1.37638192047117, 1.72047740058897, 970.820393249937},
        // A hexagon of 1 across flats fits into 2 / sqrt 3; of side 1 into 2 and around sqrt 3.
        {6, Flats, 1, true, 1.15470053837925, 0.866025403784439, 1200},
        {6, Flats, 1, false, 1, 0.866025403784439, 1039.23048454133},
        {6, OneFlat, 1, true, 2, 2.59807621135332, 1200},
        {6, OneFlat, 1, false, 1.73205080756888, 2.59807621135332, 1039.23048454133},
    };
    for (const Row& row : rows) {
        const PolygonSolution found = Solve(row.Sides, row.Dimension, row.Inscribed, row.Type);
        const auto note = ::testing::Message() << row.Sides << " sides, " << (row.Inscribed ? "in" : "circum")
                                               << "scribed, type " << static_cast<int>(row.Type);
        EXPECT_NEAR(found.Diameter, row.Diameter, 2e-13) << note;
        EXPECT_NEAR(found.Area, row.Area, 2e-13) << note;
        EXPECT_NEAR(found.PictureRadius, row.PictureRadius, 1e-11) << note;
    }
}

struct Corners {
    std::vector<double> X;
    std::vector<double> Y;
};

/// The corners of a polygon in a circle of radius 1.
Corners UnitPolygon(int sides) {
    Corners corners;
    for (int i = 0; i < sides; ++i) {
        corners.X.push_back(std::cos(2 * Pi * i / sides));
        corners.Y.push_back(std::sin(2 * Pi * i / sides));
    }
    return corners;
}

struct Measures {
    double Side = 0;
    double Apothem = 0;  ///< centre to the middle of a side
    double Area = 0;     ///< by the corners
};

Measures Measure(int sides) {
    const Corners at = UnitPolygon(sides);
    Measures found;
    found.Side = std::hypot(at.X[1] - at.X[0], at.Y[1] - at.Y[0]);
    found.Apothem = std::hypot((at.X[0] + at.X[1]) / 2, (at.Y[0] + at.Y[1]) / 2);
    for (std::size_t i = 0; i < at.X.size(); ++i) {
        const std::size_t next = (i + 1) % at.X.size();
        found.Area += (at.X[i] * at.Y[next] - at.X[next] * at.Y[i]) / 2;
    }
    return found;
}

double Measured(const Measures& unit, DimensionType type) {
    return type == Flats ? 2 * unit.Apothem : type == Corner ? 1 + unit.Apothem : unit.Side;
}

TEST(PolygonSolver, AgreesWithThePolygonBuiltFromItsCorners) {
    constexpr double Dimension = 2.375;
    for (int sides = FewestSides; sides <= MostSides; ++sides) {
        const Measures unit = Measure(sides);
        for (const DimensionType type : {sides % 2 == 1 ? Corner : Flats, OneFlat}) {
            const double scale = Dimension / Measured(unit, type);
            const PolygonSolution around = Solve(sides, Dimension, true, type);
            EXPECT_NEAR(around.Diameter, 2 * scale, 1e-11) << sides;
            EXPECT_NEAR(around.Area, scale * scale * unit.Area, 1e-9) << sides;
            EXPECT_EQ(around.PictureRadius, 1200) << sides;
            const PolygonSolution within = Solve(sides, Dimension, false, type);
            EXPECT_NEAR(within.Area, scale * scale * unit.Area, 1e-9) << sides;
            EXPECT_NEAR(within.PictureRadius, 1200 * unit.Apothem, 1e-9) << sides;
            // Three sides by one flat alone give three quarters of the circle within: intended.
            const double share = sides == 3 && type == OneFlat ? 0.75 : 1;
            EXPECT_NEAR(within.Diameter, share * 2 * scale * unit.Apothem, 1e-11) << sides;
        }
    }
}

TEST(PolygonSolver, SmallCircleOfTheTriangleIsExactlySixHundred) {
    EXPECT_EQ(Solve(3, 1, false, Corner).PictureRadius, 600);
    EXPECT_EQ(Solve(3, 1, false, OneFlat).PictureRadius, 600);
}

TEST(PolygonSolver, LaterRowOverwritesTheOneOfThreeSides) {
    // Where across flats can't be chosen, the last row wins: 2 * sin 30 / sin 120 = 2 / sqrt 3.
    EXPECT_NEAR(SolvePolygon({3, 1, true, OneFlat, false, true}, Rad).Diameter, 1.15470053837925, 1e-13);
    // The fourth row says the same where flat to corner can't be chosen.
    EXPECT_NEAR(SolvePolygon({3, 1, true, OneFlat, true, false}, Rad).Diameter, 1.15470053837925, 1e-13);
    // With both to choose from, tan 60 of the second row stands.
    EXPECT_NEAR(SolvePolygon({3, 1, true, OneFlat, true, true}, Rad).Diameter, 1.73205080756888, 1e-13);
}

TEST(PolygonSolver, LaterRowOfTheCircleWithinSparesThreeSides) {
    EXPECT_NEAR(SolvePolygon({3, 1, false, OneFlat, false, true}, Rad).Diameter, 0.433012701892219, 1e-13);
    // The fourth row does not: 1 / tan 60, and the circle by the cosine.
    const PolygonSolution fourth = SolvePolygon({3, 1, false, OneFlat, true, false}, Rad);
    EXPECT_NEAR(fourth.Diameter, 0.577350269189626, 1e-13);
    EXPECT_NEAR(fourth.PictureRadius, 600, 1e-11);
}

TEST(PolygonSolver, DimensionOfNothingAndBelow) {
    const PolygonSolution nothing = Solve(6, 0, true, Flats);
    EXPECT_EQ(nothing.Diameter, 0);
    EXPECT_EQ(nothing.Area, 0);
    const PolygonSolution below = Solve(4, -1, true, Flats);
    EXPECT_NEAR(below.Diameter, -1.41421356237310, 1e-13);
    EXPECT_NEAR(below.Area, -1, 1e-13);
}

TEST(PolygonSolver, ResultsBeyondADoubleAreFaults) {
    EXPECT_EQ(FaultOf([] { static_cast<void>(Solve(6, 1e308, true, OneFlat)); }), FaultNumber::Overflow);
    EXPECT_EQ(FaultOf([] { static_cast<void>(Solve(4, 1e200, true, Flats)); }), FaultNumber::Overflow);  // the area
    EXPECT_EQ(FaultOf([] { static_cast<void>(Solve(4, 1e150, true, Flats)); }), std::nullopt);
}

}  // namespace
}  // namespace brindlex::polygon
