// Drawing of the circle, the holes and their numbers.
#include "boltcircle/diagram.h"

#include "frame/text.h"

#include <cmath>

namespace brindlex::boltcircle {

namespace {

constexpr double Center = 1806;
constexpr double CircleRadius = 1400;
constexpr double HoleRadius = 100;
// Numbers stand inside the circle; a text is placed by its corner.
constexpr double NumberRadius = 1175;
constexpr double NumberCenter = 1706;
constexpr double NumbersBelow = 41;
constexpr Colour FirstHoleLine{255, 150, 150};
constexpr int Solid = 0;
constexpr int DashDot = 3;

void PenToCenter(PictureBox& picture) {
    picture.CurrentX(Center);
    picture.CurrentY(Center);
}

}  // namespace

void DrawBaseCircle(PictureBox& picture) {
    picture.Cls();
    PenToCenter(picture);
    picture.AutoRedraw(true);
    picture.DrawStyle(DashDot);
    picture.Circle(Center, Center, CircleRadius, Blue);
}

void DrawCircle(PictureBox& picture) {
    DrawBaseCircle(picture);
    picture.DrawStyle(Solid);
}

void DrawHoles(PictureBox& picture, const Pattern& pattern, double rad) {
    const double start = pattern.StartAngle * rad;
    const double firstX = CircleRadius * std::cos(start) + Center;
    const double firstY = Center - CircleRadius * std::sin(start);
    picture.Line(firstX, firstY, FirstHoleLine);
    picture.Circle(firstX, firstY, HoleRadius);
    const bool numbered = pattern.Holes < NumbersBelow;
    int number = 1;
    for (const Hole& hole : pattern.Further) {
        const double angle = hole.Angle * rad;
        const double cosine = std::cos(angle);
        const double sine = std::sin(angle);
        PenToCenter(picture);
        picture.Circle(CircleRadius * cosine + Center, Center - CircleRadius * sine, HoleRadius);
        ++number;
        if (numbered) {
            picture.CurrentX(NumberRadius * cosine + NumberCenter);
            picture.CurrentY(NumberCenter - NumberRadius * sine);
            picture.Print(Str(number));
        }
    }
}

}  // namespace brindlex::boltcircle
