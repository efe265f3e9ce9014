// The panel that connects two entities, named by number or by clicks on the picture.
// Units: places in twips.
#pragma once

#include "frame/buttons.h"
#include "frame/label.h"
#include "frame/textbox.h"
#include "geometry/connect.h"
#include "geometry/panelplace.h"
#include "geometry/session.h"

#include <array>
#include <cstddef>

namespace brindlex::geometry {

/// Of one side: circle, line, point.
inline constexpr std::size_t SideBoxes = 3;

class ConnectPanel : public Frame {
public:
    ConnectPanel(ControlContainer& form, Session& work);

    Frame Frame5{*this, "Frame5", {120, 225, 1980, 1155}, "Connect"};
    OptionButton Option1{Frame5, "Option1", {120, 225, 930, 270}, "&Circle"};
    TextBox Text12{Frame5, "Text12", {1080, 225, 780, 270}};
    OptionButton Option2{Frame5, "Option2", {120, 525, 930, 270}, "&Line"};
    TextBox Text13{Frame5, "Text13", {1080, 525, 780, 270}};
    OptionButton Option3{Frame5, "Option3", {120, 825, 930, 270}, "P&oint"};
    TextBox Text14{Frame5, "Text14", {1080, 825, 780, 270}};
    Frame Frame6{*this, "Frame6", {2160, 225, 1980, 1155}, "To"};
    OptionButton Option4{Frame6, "Option4", {120, 225, 930, 270}, "C&ircle"};
    TextBox Text15{Frame6, "Text15", {1080, 225, 780, 270}};
    OptionButton Option5{Frame6, "Option5", {120, 525, 930, 270}, "Li&ne"};
    TextBox Text16{Frame6, "Text16", {1080, 525, 780, 270}};
    OptionButton Option6{Frame6, "Option6", {120, 825, 930, 270}, "Poin&t"};
    TextBox Text17{Frame6, "Text17", {1080, 825, 780, 270}};
    Frame Frame7{*this, "Frame7", {4200, 225, 1050, 1155}, "Keep"};
    CommandButton Command4{Frame7, "Command4", {75, 270, 435, 375}};
    CommandButton Command5{Frame7, "Command5", {540, 270, 435, 375}};
    CommandButton Command6{Frame7, "Command6", {75, 690, 435, 375}};
    CommandButton Command7{Frame7, "Command7", {540, 690, 435, 375}};

    /// Circle, line, point of the first side, then of the second; an option and its box have the same index.
    [[nodiscard]] std::array<TextBox*, 6> Boxes() { return {&Text12, &Text13, &Text14, &Text15, &Text16, &Text17}; }
    [[nodiscard]] std::array<OptionButton*, 6> Options() {
        return {&Option1, &Option2, &Option3, &Option4, &Option5, &Option6};
    }
    [[nodiscard]] std::array<CommandButton*, 4> KeepButtons() { return {&Command4, &Command5, &Command6, &Command7}; }

    /// What the boxes name; 0 for an empty one.
    [[nodiscard]] std::array<double, 6> NamedNumbers() const;
    void ClearBoxes();
    void LockBoxes();
    /// No option set; the boxes empty, locked and disabled.
    void Rest();

    /// Connects the two entities that the boxes name; false where a check refused them, or while a click holds one.
    bool PlaceIt();
    /// Takes a clicked entity, which the pick state names, into the panel; the second one is connected to the first.
    void ConnectStat();
    /// How many lines the set options ask for: 4, or 2 with one point, or 1 between points; 0 without an option.
    [[nodiscard]] int LinesAskedFor() const;
    /// How many the last connection has made.
    [[nodiscard]] int LinesMade() const { return made_; }

private:
    void SelectKind(std::size_t option);
    [[nodiscard]] bool SidesNamed() const;
    [[nodiscard]] bool CheckForError();
    [[nodiscard]] bool CheckSide(std::size_t firstBox);
    void ConnectStuff();
    void RefuseByLimit(ConnectLimit limit);
    void ResetPick();
    /// Writes the clicked entity into its box; refuses one that is the first already.
    void NamePicked();
    [[nodiscard]] bool RefuseOverfull();

    Session& work_;
    int made_ = 0;
};

}  // namespace brindlex::geometry
