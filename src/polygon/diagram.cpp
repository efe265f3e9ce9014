// Polygon figure.
#include "polygon/diagram.h"

#include "frame/picturebox.h"
#include "polygon/solver.h"

#include <cmath>

namespace brindlex::polygon {

namespace {

constexpr double Centre = 1842;
constexpr double ArrowLength = 150;
constexpr double ArrowHalfWidth = 60;

double CornerX(double angle, double rad) {
    return FigureRadius * std::cos(angle * rad) + Centre;
}

double CornerY(double angle, double rad) {
    return Centre - FigureRadius * std::sin(angle * rad);
}

// An arrowhead whose tip stands `reach` from the centre, on the left for a negative one.
void DrawArrowhead(PictureBox& picture, double reach) {
    const double tip = Centre + reach;
    const double base = reach < 0 ? tip + ArrowLength : tip - ArrowLength;
    picture.Line(tip, Centre, base, Centre + ArrowHalfWidth, Red);
    picture.Line(base, Centre - ArrowHalfWidth, Red);
    picture.Line(tip, Centre, Red);
}

}  // namespace

void DrawPolygonFigure(PictureBox& picture, int sides, double rad) {
    const double step = 360.0 / sides;
    double offset = IsOdd(sides) ? 0 : 180.0 / sides;
    const double start = sides * step + offset;
    picture.CurrentX(CornerX(start, rad));
    picture.CurrentY(CornerY(start, rad));
    double angle = 0;
    for (int side = 0; side < sides; ++side) {
        angle += step + offset;
        offset = 0;
        picture.Line(CornerX(angle, rad), CornerY(angle, rad), Blue);
    }
}

void DrawCircleAndArrows(PictureBox& picture, double radius) {
    picture.Circle(Centre, Centre, radius, Black);
    picture.Line(Centre - radius + ArrowLength, Centre, Centre + radius - ArrowLength, Centre, Red);
    DrawArrowhead(picture, -radius);
    DrawArrowhead(picture, radius);
}

}  // namespace brindlex::polygon
