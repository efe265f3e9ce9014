// The panel that shows, hides and deletes: its lists, its filter, its deletion.
#include "geometry/showhidepanel.h"

#include "frame/program.h"
#include "geometry/rules.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace brindlex::geometry {

ShowHidePanel::ShowHidePanel(ControlContainer& form, Session& work)
    : Frame(form, "Frame12", PanelPlace, "Show, Hide, Delete Entities"), work_(work) {
    Option9.Value(true);
    for (ComboBox* const list : Lists()) {
        list->ListOnly(true);
        list->Click.Bind([this, list] { List_Click(*list); });
    }
    Option9.Click.Bind([this] { Option_Click(true); });
    Option10.Click.Bind([this] { Option_Click(true); });
    Option11.Click.Bind([this] { Option_Click(false); });
    Command16.Click.Bind(this, &ShowHidePanel::Command16_Click);
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

void ShowHidePanel::FillLists() {
    const std::vector<std::string> items = EntityItems(work_.Live().Lines());
    for (ComboBox* const list : Lists()) {
        list->Clear();
        list->AddItems(items);
    }
}

void ShowHidePanel::ManLists(ComboBox& chosen) {
    const std::string text = chosen.Text();
    for (ComboBox* const list : Lists()) {
        if (list == &chosen) {
            continue;
        }
        // The count is taken once; of two equal items that follow one another the second stays. Intended.
        const int count = list->ListCount();
        for (int i = 0; i <= count; ++i) {
            if (i < list->ListCount() && list->List(i) == text) {
                list->RemoveItem(i);
            }
        }
    }
}

void ShowHidePanel::List_Click(ComboBox& list) {
    ShowFilter = false;
    if (!list.Text().empty()) {
        ManLists(list);
    }
}

bool ShowHidePanel::AnyChosen() {
    const auto lists = Lists();
    return std::any_of(lists.begin(), lists.end(), [](const ComboBox* list) { return !list->Text().empty(); });
}

void ShowHidePanel::Option_Click(bool filters) {
    work_.On.Command1.Caption(PlacingCaption());
    if (!filters) {
        ShowFilter = false;
    } else if (AnyChosen()) {
        ShowFilter = true;
        work_.Paint();
    }
}

void ShowHidePanel::Command16_Click() {
    ShowFilter = false;
    FillLists();
    work_.Paint();
}

bool ShowHidePanel::PlaceIt() {
    if (!AnyChosen()) {
        const bool none = work_.Live().FirstLine().empty();
        work_.Owner().BeepBox(none ? "No Entities Exist." : "Choose Entity From A Dropdown List.");
        return false;
    }
    if (Option11.Value()) {
        Delete();
    } else {
        ShowFilter = true;
    }
    work_.Paint();
    return true;
}

void ShowHidePanel::Delete() {
    std::vector<std::string> chosen;
    for (const ComboBox* const list : Lists()) {
        chosen.push_back(list->Text());
    }
    const Store live = work_.Live();
    // What can't be read is not rewritten.
    if (const auto lines = live.TryLines()) {
        live.Rewrite(scratch::Delete, WithoutItems(*lines, chosen));
        EasyDel();
    }
    FillLists();
}

void ShowHidePanel::EasyDel() {
    const Store live = work_.Live();
    work_.Entities.ReloadKeepingNumber(live.Lines(), work_.View());
    live.CheckTangents();
}

}  // namespace brindlex::geometry
