// The draw passes over the arrays.
#include "geometry/drawpass.h"

#include "geometry/hover.h"
#include "geometry/steps.h"
#include "geometry/tips.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

namespace brindlex::geometry {

namespace {

constexpr int SolidLine = 0;
constexpr int DashDotDot = 4;
constexpr double LargestNumber = 32767;

template <std::size_t Bound>
double ValueAt(const std::array<double, Bound>& values, int index) {
    return values[static_cast<std::size_t>(index)];
}

bool InDrawing(double value) {
    return std::isfinite(value);
}

}  // namespace

/// One entity on its way through a pass.
struct DrawPass::Entity {
    Kind Shape = Kind::None;
    int Index = 0;  ///< of its first value in the array
    double Number = 0;
    Position Anchor;       ///< what the pick box must hold
    Position NumberAt;     ///< where its number is printed
    bool Matches = false;  ///< the pointer is on it
    bool Taken = false;    ///< picked in this pass
    std::function<std::string()> Tip = nullptr;
    std::function<void(Colour)> Draw = nullptr;
};

bool PickBox::Holds(Position place) const {
    return std::min(X1, X2) <= place.X && place.X <= std::max(X1, X2) && std::min(Y1, Y2) <= place.Y &&
           place.Y <= std::max(Y1, Y2);
}

bool PassFilter::Shows(double number) const {
    if (Draws == Rule::All) {
        return true;
    }
    const bool chosen = std::any_of(Numbers.begin(), Numbers.end(), [number](int each) { return each == number; });
    return chosen == (Draws == Rule::Only);
}

void DrawPass::CrossHairs() {
    const double left = picture_.ScaleLeft();
    const double top = picture_.ScaleTop();
    picture_.DrawStyle(DashDotDot);
    picture_.Line(HalfWidth(), top, HalfWidth(), picture_.ScaleHeight() + top, ink::Cross);
    picture_.Line(left, HalfHeight(), picture_.ScaleWidth() + left, HalfHeight(), ink::Cross);
    picture_.DrawStyle(SolidLine);
}

void DrawPass::Begin() {
    named_ = Calls.NamedNumbers ? Calls.NamedNumbers() : std::array<double, 6>{};
    filter_ = Calls.Filter ? Calls.Filter() : PassFilter{};
}

void DrawPass::AddHit(const Entity& entity) {
    const bool circle = entity.Shape == Kind::Circle;
    const bool line = entity.Shape == Kind::Line;
    std::vector<int>& hits = circle ? Marks.Hits.Circles : (line ? Marks.Hits.Lines : Marks.Hits.Points);
    const int bound = circle ? CircleBound : (line ? LineBound : PointBound);
    if (static_cast<int>(hits.size()) < bound) {
        hits.push_back(entity.Index);
    }
}

/// A pick by the right button: the first entity that it takes is the picked one.
void DrawPass::Take(Entity& entity) {
    if (Pick.Number == 0 && !entity.Taken && (Pick.Refused == 0 || entity.Number != Pick.Refused)) {
        Pick.Number = static_cast<int>(std::clamp(entity.Number, -LargestNumber, LargestNumber));
        Pick.Shape = entity.Shape;
        if (Calls.Picked) {
            Calls.Picked();
        }
        Begin();
    }
    entity.Taken = true;
    AddHit(entity);
    Marks.Ink = entity.Number == Pick.Number ? ink::Named : ink::Plain;
}

void DrawPass::TestBox(Entity& entity) {
    Marks.Ink = ink::Plain;
    if (!View.Box.Complete() || !View.Box.Holds(entity.Anchor)) {
        return;
    }
    if (View.Selecting) {
        Marks.Ink = ink::Taken;
        AddHit(entity);
        Marks.BoxHit = true;
    } else if (View.Picking) {
        Take(entity);
    }
}

void DrawPass::TestPointer(Entity& entity) {
    if (!entity.Matches) {
        return;
    }
    if (View.Selecting) {
        Marks.Ink = ink::Taken;
        AddHit(entity);
        Marks.BoxHit = true;
        picture_.ToolTipText("");
    } else if (View.Picking) {
        Take(entity);
    } else if (!Marks.Hovered) {
        Marks.Ink = ink::Hovered;
        Marks.Hovered = true;
        AddHit(entity);
        if (View.Tips) {
            picture_.ToolTipText(entity.Tip());
        }
    }
}

void DrawPass::TestNames(const Entity& entity) {
    const bool named = entity.Number != 0 && std::find(named_.begin(), named_.end(), entity.Number) != named_.end();
    if (!named) {
        return;
    }
    Marks.Ink = ink::Named;
    Marks.Hovered = false;
    if (Pick.Shape != Kind::None && Calls.Named) {
        Calls.Named();
        Begin();
    }
}

void DrawPass::Paint(const Entity& entity) {
    if (!filter_.Shows(entity.Number)) {
        return;
    }
    entity.Draw(Marks.Ink);
    if (View.Numbers && InDrawing(entity.NumberAt.X) && InDrawing(entity.NumberAt.Y)) {
        picture_.CurrentX(entity.NumberAt.X);
        picture_.CurrentY(entity.NumberAt.Y);
        picture_.Print(entity.Number);
    }
}

void DrawPass::Draw(Entity& entity) {
    TestBox(entity);
    TestPointer(entity);
    TestNames(entity);
    Paint(entity);
}

void DrawPass::CircleStuff() {
    Begin();
    for (int i = 0; i < board_.Count(Kind::Circle); ++i) {
        const int at = i * CircleWidth;
        const Position centre{ValueAt(board_.CircleArr, at), ValueAt(board_.CircleArr, at + 1)};
        const double radius = ValueAt(board_.CircleArr, at + 2);
        const Position drawn{centre.X - HalfWidth(), centre.Y - HalfHeight()};
        Entity circle{Kind::Circle, at, ValueAt(board_.CircleArr, at + 3), centre, {centre.X - radius, centre.Y}};
        circle.Matches = View.PointerOver && HoversCircle(View.Pointer, drawn, radius, Measure);
        circle.Tip = [&] { return CircleTip(circle.Number, radius, drawn); };
        circle.Draw = [&](Colour colour) {
            if (radius >= 0) {
                picture_.Circle(centre.X, centre.Y, radius, colour);
            }
        };
        Draw(circle);
    }
}

void DrawPass::LineStuff() {
    Begin();
    LineHover hover;
    for (int i = 0; i < board_.Count(Kind::Line); ++i) {
        const int at = i * LineWidth;
        const Position start{ValueAt(board_.LineArr, at), ValueAt(board_.LineArr, at + 1)};
        const Position end{ValueAt(board_.LineArr, at + 2), ValueAt(board_.LineArr, at + 3)};
        const Segment drawn{{start.X - HalfWidth(), start.Y - HalfHeight()},
                            {end.X - HalfWidth(), end.Y - HalfHeight()}};
        const Position middle{(start.X + end.X) / 2, (start.Y + end.Y) / 2};
        Entity line{Kind::Line, at, ValueAt(board_.LineArr, at + 4), middle, middle};
        line.Matches = View.PointerOver && hover.Hovers(View.Pointer, drawn);
        line.Tip = [&] { return LineTip(line.Number, drawn); };
        line.Draw = [&](Colour colour) { picture_.Line(start.X, start.Y, end.X, end.Y, colour); };
        Draw(line);
    }
}

void DrawPass::PointStuff() {
    Begin();
    for (int i = 0; i < board_.Count(Kind::Point); ++i) {
        const int at = i * PointWidth;
        const Position place{ValueAt(board_.PointArr, at), ValueAt(board_.PointArr, at + 1)};
        const Position drawn{place.X - HalfWidth(), place.Y - HalfHeight()};
        Entity point{Kind::Point, at, ValueAt(board_.PointArr, at + 2), place, place};
        point.Matches = View.PointerOver && HoversPoint(View.Pointer, drawn, Measure);
        point.Tip = [&] { return PointTip(point.Number, drawn); };
        point.Draw = [&](Colour colour) { DrawCross(picture_, place, CrossSize(Measure), colour); };
        Draw(point);
    }
}

void DrawCross(PictureBox& picture, Position place, double size, Colour colour) {
    picture.Line(place.X - size, place.Y + size, place.X + size, place.Y - size, colour);
    picture.Line(place.X + size, place.Y + size, place.X - size, place.Y - size, colour);
}

}  // namespace brindlex::geometry
