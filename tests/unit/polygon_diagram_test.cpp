// The figure of a polygon: corner by corner, circle and arrows.
// Units: twips of the picture.
#include "fakeruntime.h"
#include "frame/picturebox.h"
#include "frame/program.h"
#include "polygon/diagram.h"
#include "radians.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace brindlex::polygon {
namespace {

class PolygonDiagram : public ::testing::Test {
protected:
    std::vector<DrawItem> Drawn() const { return {picture.Drawn().Items().begin(), picture.Drawn().Items().end()}; }

    DrivenRun run;
    FakeRuntime runtime{run};
    Program program{runtime, Folder(".")};
    Form form{program, "Sheet", 8328, 4416};
    PictureBox picture{form, "Picture1", {4320, 360, 3732, 3732}};
};

struct Point {
    double X;
    double Y;
};

/// A closed run of blue lines from the last corner to the first and on around.
void ExpectFigure(const std::vector<DrawItem>& drawn, const std::vector<Point>& corners) {
    ASSERT_EQ(drawn.size(), corners.size());
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Point from = corners[(i + corners.size() - 1) % corners.size()];
        EXPECT_EQ(drawn[i].Kind, DrawKind::Line);
        EXPECT_EQ(drawn[i].Ink, Blue);
        EXPECT_NEAR(drawn[i].X1, from.X, 1e-9) << i;
        EXPECT_NEAR(drawn[i].Y1, from.Y, 1e-9) << i;
        EXPECT_NEAR(drawn[i].X2, corners[i].X, 1e-9) << i;
        EXPECT_NEAR(drawn[i].Y2, corners[i].Y, 1e-9) << i;
    }
}

TEST_F(PolygonDiagram, TriangleWithACornerToTheRight) {
    // 1200 * cos 60 = 600, 1200 * sin 60 = 1039.230485; the first corner is that of 120 degrees.
    DrawPolygonFigure(picture, 3, Rad);
    ExpectFigure(Drawn(), {{1242, 802.769515458674}, {1242, 2881.23048454133}, {3042, 1842}});
}

TEST_F(PolygonDiagram, SquareWithItsFlatsUpright) {
    // 1200 / sqrt 2 = 848.528137; half a step is added once, so the first corner is that of 135 degrees.
    DrawPolygonFigure(picture, 4, Rad);
    ExpectFigure(Drawn(), {{993.471862576143, 993.471862576143},
                           {993.471862576143, 2690.52813742386},
                           {2690.52813742386, 2690.52813742386},
                           {2690.52813742386, 993.471862576143}});
}

TEST_F(PolygonDiagram, HexagonWithFlatsAtTheEndsOfTheLevel) {
    DrawPolygonFigure(picture, 6, Rad);
    ExpectFigure(Drawn(), {{1842, 642},
                           {802.769515458674, 1242},
                           {802.769515458674, 2442},
                           {1842, 3042},
                           {2881.23048454133, 2442},
                           {2881.23048454133, 1242}});
}

TEST_F(PolygonDiagram, AllFiguresStandOnTheirCircleAndClose) {
    for (int sides = 3; sides <= 36; ++sides) {
        picture.Cls();
        DrawPolygonFigure(picture, sides, Rad);
        std::vector<Point> corners;
        for (int corner = 1; corner <= sides; ++corner) {
            const double turns = (corner + (sides % 2 == 0 ? 0.5 : 0.0)) / sides;
            corners.push_back({1842 + 1200 * std::cos(2 * Pi * turns), 1842 - 1200 * std::sin(2 * Pi * turns)});
        }
        ExpectFigure(Drawn(), corners);
    }
}

TEST_F(PolygonDiagram, CircleAndArrows) {
    DrawCircleAndArrows(picture, 1000);
    const std::vector<DrawItem> drawn = Drawn();
    ASSERT_EQ(drawn.size(), 8U);
    EXPECT_EQ(drawn[0].Kind, DrawKind::Circle);
    EXPECT_EQ(drawn[0].X1, 1842);
    EXPECT_EQ(drawn[0].Y1, 1842);
    EXPECT_EQ(drawn[0].Radius, 1000);
    EXPECT_EQ(drawn[0].Ink, Black);
    const std::vector<std::vector<double>> lines{
        {992, 1842, 2692, 1842},                                                       // the level line
        {842, 1842, 992, 1902},   {992, 1902, 992, 1782},   {992, 1782, 842, 1842},    // the left head
        {2842, 1842, 2692, 1902}, {2692, 1902, 2692, 1782}, {2692, 1782, 2842, 1842},  // the right head
    };
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const DrawItem& line = drawn[i + 1];
        EXPECT_EQ(line.Kind, DrawKind::Line);
        EXPECT_EQ(line.Ink, Red);
        EXPECT_EQ((std::vector<double>{line.X1, line.Y1, line.X2, line.Y2}), lines[i]) << i;
    }
}

TEST_F(PolygonDiagram, ArrowsOfTheSmallestCircle) {
    DrawCircleAndArrows(picture, 600);
    const std::vector<DrawItem> drawn = Drawn();
    ASSERT_EQ(drawn.size(), 8U);
    EXPECT_EQ(drawn[1].X1, 1392);
    EXPECT_EQ(drawn[1].X2, 2292);
    EXPECT_EQ(drawn[2].X1, 1242);
    EXPECT_EQ(drawn[5].X1, 2442);
}

}  // namespace
}  // namespace brindlex::polygon
