// The draw passes: one walk over the circles, the lines, the points, that draws them and tells what the pick box, the
// pointer and the named numbers hit. A pick is reported while the pass runs, since a second pick makes lines that the
// line pass behind it must draw already.
// Units: picture coordinates; the pointer in drawing coordinates.
#pragma once

#include "frame/picturebox.h"
#include "geometry/board.h"
#include "geometry/rules.h"
#include "geometry/viewport.h"

#include <array>
#include <functional>

namespace brindlex::geometry {

namespace ink {
inline constexpr Colour Plain{0, 0, 255};
inline constexpr Colour Taken{255, 0, 0};      ///< by the left pick box, and the box itself
inline constexpr Colour Hovered{255, 115, 0};  ///< under the pointer
inline constexpr Colour Named{0, 180, 0};      ///< picked for connecting, or named in its boxes; the right pick box
inline constexpr Colour Cross{150, 150, 150};  ///< the cross hairs
}  // namespace ink

/// Two corners. A corner on an axis of the picture leaves the box incomplete: intended.
struct PickBox {
    double X1 = 0;
    double Y1 = 0;
    double X2 = 0;
    double Y2 = 0;

    [[nodiscard]] bool Complete() const { return X1 != 0 && Y1 != 0 && X2 != 0 && Y2 != 0; }
    /// Whether a place is within the box or on its edge.
    [[nodiscard]] bool Holds(Position place) const;
};

/// What the passes look at. Read anew for each entity, as a pick may change it on the way.
struct PassView {
    PickBox Box;
    bool Selecting = false;  ///< the left button draws a pick box
    bool Picking = false;    ///< the right button does, in the connect panel
    bool PointerOver = false;
    Position Pointer;
    bool Tips = true;     ///< a hover may set the tip
    bool Numbers = true;  ///< the numbers are printed
};

/// The entity that was clicked for connecting.
struct PickState {
    int Number = 0;
    Kind Shape = Kind::None;
    int Stage = 0;    ///< 0: the next click fills the first entity; 1: the second
    int Refused = 0;  ///< an entity that was refused as its own partner: not taken again while the button is held
};

/// What the passes leave.
struct PassMarks {
    Colour Ink = ink::Plain;  ///< of the last entity
    bool Hovered = false;     ///< an entity took the hover in the present passes
    bool BoxHit = false;      ///< the left pick box took an entity; stays until it is cleared
    Picks Hits;               ///< indices into the arrays, an entity more than once
};

/// Which entities are drawn.
struct PassFilter {
    enum class Rule { All, Only, Hide };
    Rule Draws = Rule::All;
    std::array<int, 6> Numbers{};

    [[nodiscard]] bool Shows(double number) const;
};

/// What the passes ask and tell on their way. An empty function is passed over.
struct PassCalls {
    std::function<std::array<double, 6>()> NamedNumbers;  ///< of the connect boxes; 0 names nothing
    std::function<PassFilter()> Filter;
    std::function<void()> Picked;  ///< an entity was clicked: the pick state names it
    std::function<void()> Named;   ///< a named entity is drawn while a kind is picked
};

/// A point, as two diagonals of half the width `size`.
void DrawCross(PictureBox& picture, Position place, double size, Colour colour);

class DrawPass {
public:
    DrawPass(PictureBox& picture, const Board& board) : picture_(picture), board_(board) {}

    PassView View;
    PickState Pick;
    PassMarks Marks;
    PassCalls Calls;
    Unit Measure = Unit::Inch;

    /// Dash-dot-dot lines through the origin, across the whole view.
    void CrossHairs();
    void CircleStuff();
    void LineStuff();
    void PointStuff();

private:
    struct Entity;

    void Begin();
    void Draw(Entity& entity);
    void TestBox(Entity& entity);
    void TestPointer(Entity& entity);
    void TestNames(const Entity& entity);
    void Take(Entity& entity);
    void AddHit(const Entity& entity);
    void Paint(const Entity& entity);
    [[nodiscard]] double HalfWidth() const { return picture_.ScaleWidth() / 2; }
    [[nodiscard]] double HalfHeight() const { return picture_.ScaleHeight() / 2; }

    PictureBox& picture_;
    const Board& board_;
    std::array<double, 6> named_{};
    PassFilter filter_;
};

}  // namespace brindlex::geometry
