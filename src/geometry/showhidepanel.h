// The panel that shows, hides and deletes entities chosen in six lists.
// Units: places in twips.
#pragma once

#include "frame/buttons.h"
#include "frame/combobox.h"
#include "frame/label.h"
#include "geometry/panelplace.h"
#include "geometry/session.h"

#include <array>
#include <string>

namespace brindlex::geometry {

class ShowHidePanel : public Frame {
public:
    ShowHidePanel(ControlContainer& form, Session& work);

    ComboBox Combo3{*this, "Combo3", {120, 240, 1650, 315}};
    ComboBox Combo4{*this, "Combo4", {1830, 240, 1650, 315}};
    ComboBox Combo5{*this, "Combo5", {3540, 240, 1650, 315}};
    ComboBox Combo6{*this, "Combo6", {120, 615, 1650, 315}};
    ComboBox Combo7{*this, "Combo7", {1830, 615, 1650, 315}};
    ComboBox Combo8{*this, "Combo8", {3540, 615, 1650, 315}};
    OptionButton Option9{*this, "Option9", {120, 1035, 1170, 285}, "Show Only"};
    OptionButton Option10{*this, "Option10", {1380, 1035, 1170, 285}, "Hide Only"};
    OptionButton Option11{*this, "Option11", {2640, 1035, 900, 285}, "Delete"};
    CommandButton Command16{*this, "Command16", {3990, 1005, 1200, 330}, "Reset"};

    /// The choice of the lists is in force.
    bool ShowFilter = false;

    [[nodiscard]] std::array<ComboBox*, 6> Lists() { return {&Combo3, &Combo4, &Combo5, &Combo6, &Combo7, &Combo8}; }
    /// What the passes draw: with the filter in force and a list chosen, by the option; the first list counts only
    /// while the panel shows, the others always: intended.
    [[nodiscard]] PassFilter Filter();
    /// What Place It is called while this panel shows.
    [[nodiscard]] std::string PlacingCaption() const;
    void ClearLists();
    /// Ends a filter and empties the lists; draws over what stands.
    void ClearShowHide();
    /// The lists anew, from the store.
    void FillLists();
    /// Shows, hides or deletes what is chosen; false where nothing is.
    bool PlaceIt();

private:
    /// Takes a list's choice out of the other five.
    void ManLists(ComboBox& chosen);
    void List_Click(ComboBox& list);
    void Option_Click(bool filters);
    void Command16_Click();
    void Delete();
    /// The arrays and the tails after a deletion.
    void EasyDel();
    [[nodiscard]] bool AnyChosen();

    Session& work_;
};

}  // namespace brindlex::geometry
