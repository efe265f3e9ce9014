// The pointer on the picture: where it is, what it hovers, the pick boxes of both buttons.
// Units: picture coordinates.
#pragma once

#include "frame/label.h"
#include "geometry/connectpanel.h"
#include "geometry/session.h"

#include <array>

namespace brindlex::geometry {

class Pointer {
public:
    /// `covered` are the panels that give way to the connect panel while the right button picks.
    Pointer(Session& work, ConnectPanel& connect, Label& x, Label& y, std::array<Frame*, 4> covered)
        : work_(work), connect_(connect), x_(x), y_(y), covered_(covered) {}

    void Down(const Mouse& mouse);
    void Move(const Mouse& mouse);
    void Up(const Mouse& mouse);
    void Click();
    void DoubleClick();
    /// The pointer is elsewhere: nothing is hovered until it comes back.
    void Leave() { work_.Pass.View.PointerOver = false; }
    /// Leave, and the position goes.
    void ForgetPosition();

private:
    void Hover(const Mouse& mouse);
    void SelectTo();
    void PickTo();
    void PaintWithBox(Colour colour);

    Session& work_;
    ConnectPanel& connect_;
    Label& x_;
    Label& y_;
    std::array<Frame*, 4> covered_;
};

}  // namespace brindlex::geometry
