// Pointer events of the picture.
#include "geometry/pointer.h"

#include "frame/text.h"

namespace brindlex::geometry {

namespace {

constexpr int DottedLine = 2;

double Rounded(double value) {
    return ValueOf(Format(value, ".00"));
}

}  // namespace

void Pointer::ForgetPosition() {
    Leave();
    x_.Caption("");
    y_.Caption("");
}

void Pointer::Down(const Mouse& mouse) {
    PassView& view = work_.Pass.View;
    view.PointerOver = true;
    if (mouse.Button == LeftButton) {
        work_.Pass.Marks.Hits = {};
        view.Selecting = true;
        view.Box.X1 = mouse.X;
        view.Box.Y1 = mouse.Y;
    } else if (mouse.Button == RightButton && connect_.Visible() && work_.CheckStuff() >= 2) {
        work_.Pass.Marks.Hits = {};
        // A message may have swallowed the end of the last pick.
        work_.Pass.Pick.Number = 0;
        work_.Pass.Pick.Refused = 0;
        view.Picking = true;
        view.Box.X1 = mouse.X;
        view.Box.Y1 = mouse.Y;
    }
}

void Pointer::Move(const Mouse& mouse) {
    PassView& view = work_.Pass.View;
    const Scale scale = work_.View();
    const Position place{mouse.X - scale.Width / 2, mouse.Y - scale.Height / 2};
    view.PointerOver = true;
    view.Box.X2 = mouse.X;
    view.Box.Y2 = mouse.Y;
    view.Pointer = {Rounded(place.X), Rounded(place.Y)};
    x_.Caption(Format(place.X, ".0000"));
    y_.Caption(Format(place.Y, ".0000"));
    if (mouse.Button == LeftButton) {
        if (view.Selecting && !work_.Entities.Empty()) {
            SelectTo();
        }
    } else if (mouse.Button == RightButton) {
        if (view.Picking && connect_.Visible()) {
            PickTo();
        }
    } else if (mouse.Button == 0) {
        Hover(mouse);
    }
}

void Pointer::Hover(const Mouse& mouse) {
    PassView& view = work_.Pass.View;
    const bool offered = work_.On.Command3.Visible();
    if (!work_.On.Command2.Visible() && !offered) {
        view.Selecting = false;
        view.Picking = false;
        // After an entity that was drawn last and is hovered, the tip lingers for one move: intended.
        if (work_.Pass.Marks.Ink.Green != ink::Hovered.Green) {
            work_.On.Picture1.ToolTipText("");
        }
        // The hover looks at the exact place, not at the rounded one.
        const Scale scale = work_.View();
        view.Pointer = {mouse.X - scale.Width / 2, mouse.Y - scale.Height / 2};
    } else if (offered && work_.Pass.Pick.Shape != Kind::None) {
        work_.On.Picture1.ToolTipText("");
        if (work_.Pass.Pick.Refused != 0) {
            // The message of a refusal may have swallowed the end of the pick.
            work_.Pass.Pick.Refused = 0;
            view.Picking = false;
        }
    } else {
        return;
    }
    work_.Paint();
    work_.Pass.Marks.Hovered = false;
}

void Pointer::PaintWithBox(Colour colour) {
    PictureBox& picture = work_.On.Picture1;
    const PickBox& box = work_.Pass.View.Box;
    picture.Cls();
    picture.DrawStyle(DottedLine);
    picture.Box(box.X1, box.Y1, box.X2, box.Y2, colour);
    picture.DrawStyle(0);
}

void Pointer::SelectTo() {
    DrawPass& pass = work_.Pass;
    pass.View.Picking = false;
    pass.Pick = {};
    connect_.ClearBoxes();
    pass.Marks.Hits = {};
    PaintWithBox(ink::Taken);
    work_.Draw();
    if (pass.Marks.BoxHit) {
        work_.OfferRemoving();
        work_.Offer(work_.On.Command3);
        work_.On.Command1.Enabled(false);
    } else {
        work_.WithdrawRemoving();
        work_.Withdraw(work_.On.Command3);
        work_.OfferPlacing();
    }
    pass.Marks.BoxHit = false;
}

void Pointer::PickTo() {
    DrawPass& pass = work_.Pass;
    pass.View.Selecting = false;
    pass.Marks.BoxHit = false;
    pass.Marks.Hits = {};
    PaintWithBox(ink::Named);
    for (Frame* const panel : covered_) {
        panel->Visible(false);
    }
    connect_.Visible(true);
    work_.Draw();
    if (pass.Pick.Stage == 1) {
        const bool picked = pass.Pick.Shape != Kind::None;
        if (picked) {
            work_.Offer(work_.On.Command3);
        } else {
            work_.Withdraw(work_.On.Command3);
        }
        work_.On.Command1.Enabled(!picked);
    }
}

void Pointer::Up(const Mouse& mouse) {
    PassView& view = work_.Pass.View;
    view.PointerOver = true;
    if (mouse.Button == LeftButton) {
        // What the box took goes into the lists once more: intended, the removal counts on it.
        work_.Paint();
        view.Selecting = false;
        view.Box = {};
    } else if (mouse.Button == RightButton && connect_.Visible()) {
        work_.Paint();
        view.Picking = false;
        work_.Pass.Pick.Number = 0;
        view.Box = {};
    }
}

void Pointer::Click() {
    DrawPass& pass = work_.Pass;
    if (!pass.Marks.BoxHit && pass.Pick.Shape == Kind::None && pass.Pick.Stage == 0) {
        pass.View.Box = {};
        work_.WithdrawRemoving();
        work_.On.Command1.Enabled(true);
        pass.View.Picking = false;
    }
    pass.Marks.BoxHit = false;
}

void Pointer::DoubleClick() {
    DrawPass& pass = work_.Pass;
    pass.View.Box = {};
    pass.Pick = {};
    work_.WithdrawRemoving();
    work_.Withdraw(work_.On.Command3);
    work_.Withdraw(work_.On.Command13);
    work_.OfferPlacing();
    work_.CancelIt();
}

}  // namespace brindlex::geometry
