// The panel that extends two lines to the point where they would meet.
// Units: those of the drawing; places in twips.
#pragma once

#include "frame/combobox.h"
#include "frame/label.h"
#include "frame/textbox.h"
#include "geometry/panelplace.h"
#include "geometry/session.h"

namespace brindlex::geometry {

class ExtendPanel : public Frame {
public:
    ExtendPanel(ControlContainer& form, Session& work);

    Label Label27{*this, "Label27", {180, 255, 2400, 225}, "Potential Intersections:"};
    ComboBox Combo2{*this, "Combo2", {180, 495, 4920, 315}};
    Label Label28{*this, "Label28", {180, 1005, 1500, 225}, "Will Intersect At:"};
    TextBox Text5{*this, "Text5", {1740, 945, 3360, 300}};

    void Clear();
    /// No pair is chosen any more: no point stands there either.
    void FollowList();
    /// Both lines of the chosen pair then end where they meet; false where no pair is there to choose.
    bool PlaceIt();

private:
    void Combo2_Click();
    void Extend();

    Session& work_;
};

}  // namespace brindlex::geometry
