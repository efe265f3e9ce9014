// The panel that shows, hides and deletes: its filter.
#include "geometry/showhidepanel.h"

#include "geometry/rules.h"

#include <cstddef>

namespace brindlex::geometry {

ShowHidePanel::ShowHidePanel(ControlContainer& form, Session& work)
    : Frame(form, "Frame12", PanelPlace, "Show, Hide, Delete Entities"), work_(work) {
    Option9.Value(true);
    for (ComboBox* const list : Lists()) {
        list->ListOnly(true);
    }
}

PassFilter ShowHidePanel::Filter() {
    PassFilter filter;
    bool inForce = Visible() && !Combo3.Text().empty();
    const auto lists = Lists();
    for (std::size_t i = 0; i < lists.size(); ++i) {
        filter.Numbers[i] = ItemNumber(lists[i]->Text());
        inForce = inForce || (i > 0 && !lists[i]->Text().empty());
    }
    if (!ShowFilter || !inForce) {
        return {};
    }
    if (Option9.Value()) {
        filter.Draws = PassFilter::Rule::Only;
    } else if (Option10.Value()) {
        filter.Draws = PassFilter::Rule::Hide;
    }
    return filter;
}

std::string ShowHidePanel::PlacingCaption() const {
    if (Option9.Value()) {
        return "&Show";
    }
    return Option10.Value() ? "H&ide" : "&Delete";
}

void ShowHidePanel::ClearLists() {
    for (ComboBox* const list : Lists()) {
        list->Clear();
    }
}

void ShowHidePanel::ClearShowHide() {
    ShowFilter = false;
    ClearLists();
    work_.Draw();
}

}  // namespace brindlex::geometry
