// The panel of the tangent circles.
#include "geometry/tangentpanel.h"

#include "geometry/createpanel.h"
#include "services/activebox.h"

namespace brindlex::geometry {

TangentPanel::TangentPanel(ControlContainer& form, Session& work)
    : Frame(form, "Frame8", PanelPlace, "Circle Tangent to  Angle"), work_(work) {
    Combo1.ListOnly(true);
    Option7.Value(true);
    Text4.MaxLength(EntryWidth);
    BindFocus(Text4);
    for (CommandButton* const button : KeepButtons()) {
        button->Enabled(false);
        button->Visible(false);
    }
}

void TangentPanel::Clear() {
    Combo1.Clear();
}

}  // namespace brindlex::geometry
