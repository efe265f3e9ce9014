// The connect panel at rest, and what its boxes name.
#include "geometry/connectpanel.h"

#include "services/activebox.h"

#include <cstddef>

namespace brindlex::geometry {

ConnectPanel::ConnectPanel(ControlContainer& form, Session& work)
    : Frame(form, "Frame4", PanelPlace, "Connect Two Entities"), work_(work) {
    for (TextBox* const box : Boxes()) {
        BindFocus(*box);
        box->Enabled(false);
        box->Locked(true);
    }
    for (CommandButton* const button : KeepButtons()) {
        button->Enabled(false);
        button->Visible(false);
    }
}

std::array<double, 6> ConnectPanel::NamedNumbers() const {
    return {ValueOf(Text12.Text()), ValueOf(Text13.Text()), ValueOf(Text14.Text()),
            ValueOf(Text15.Text()), ValueOf(Text16.Text()), ValueOf(Text17.Text())};
}

void ConnectPanel::ClearBoxes() {
    for (TextBox* const box : Boxes()) {
        box->Text("");
    }
}

void ConnectPanel::Rest() {
    for (OptionButton* const option : Options()) {
        option->Value(false);
    }
    ClearBoxes();
    for (TextBox* const box : Boxes()) {
        box->Locked(true);
        box->Enabled(false);
    }
}

}  // namespace brindlex::geometry
