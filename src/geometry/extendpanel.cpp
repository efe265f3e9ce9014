// The panel of the potential intersections.
#include "geometry/extendpanel.h"

#include "services/activebox.h"

namespace brindlex::geometry {

ExtendPanel::ExtendPanel(ControlContainer& form, Session& work)
    : Frame(form, "Frame10", PanelPlace, "Extend Lines to Intersection"), work_(work) {
    Combo2.ListOnly(true);
    Text5.Locked(true);
    BindFocus(Text5);
}

void ExtendPanel::Clear() {
    Combo2.Clear();
    Text5.Text("");
}

}  // namespace brindlex::geometry
