// The panel of the potential intersections.
#include "geometry/extendpanel.h"

#include "frame/program.h"
#include "geometry/crossings.h"
#include "geometry/extend.h"
#include "services/activebox.h"

namespace brindlex::geometry {

ExtendPanel::ExtendPanel(ControlContainer& form, Session& work)
    : Frame(form, "Frame10", PanelPlace, "Extend Lines to Intersection"), work_(work) {
    Combo2.ListOnly(true);
    Combo2.Click.Bind(this, &ExtendPanel::Combo2_Click);
    Text5.Locked(true);
    BindFocus(Text5);
}

void ExtendPanel::Clear() {
    Combo2.Clear();
    Text5.Text("");
}

void ExtendPanel::Combo2_Click() {
    Text5.Text(MeetingText(Combo2.Text()));
}

void ExtendPanel::FollowList() {
    if (Combo2.Text().empty()) {
        Text5.Text("");
    }
}

bool ExtendPanel::PlaceIt() {
    if (Combo2.Text().empty()) {
        work_.Owner().BeepBox("No Potential Intersections Exist.");
        return false;
    }
    Extend();
    Session::Run(work_.Calls.FindAng);
    FollowList();
    work_.Paint();
    return true;
}

void ExtendPanel::Extend() {
    const Store live = work_.Live();
    // What can't be read is not rewritten.
    if (const auto lines = live.TryLines()) {
        if (const auto extended = geometry::Extend(*lines, Combo2.Text())) {
            live.Rewrite(scratch::Extend, *extended);
        }
        // Anew from the store, so that a line that was dropped leaves the picture.
        work_.Reload();
    }
}

}  // namespace brindlex::geometry
