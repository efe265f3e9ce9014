// The panel that sets circles of one size into the angle of two crossing lines.
// Units: those of the drawing; places in twips.
#pragma once

#include "frame/buttons.h"
#include "frame/combobox.h"
#include "frame/label.h"
#include "frame/textbox.h"
#include "geometry/panelplace.h"
#include "geometry/session.h"
#include "geometry/tangentcircles.h"

#include <array>
#include <string>
#include <vector>

namespace brindlex::geometry {

class TangentPanel : public Frame {
public:
    TangentPanel(ControlContainer& form, Session& work);

    Label Label24{*this, "Label24", {180, 225, 900, 210}, "Lines"};
    ComboBox Combo1{*this, "Combo1", {120, 435, 3960, 315}};
    Frame Frame9{*this, "Frame9", {120, 795, 3960, 585}, "Circle:"};
    OptionButton Option7{Frame9, "Option7", {120, 225, 1140, 285}, "Diameter"};
    OptionButton Option8{Frame9, "Option8", {1320, 225, 960, 285}, "Radius"};
    TextBox Text4{Frame9, "Text4", {2400, 210, 1440, 300}};
    Frame Frame11{*this, "Frame11", {4200, 225, 1050, 1155}, "Keep"};
    CommandButton Command17{Frame11, "Command17", {75, 270, 435, 375}};
    CommandButton Command18{Frame11, "Command18", {540, 270, 435, 375}};
    CommandButton Command19{Frame11, "Command19", {75, 690, 435, 375}};
    CommandButton Command20{Frame11, "Command20", {540, 690, 435, 375}};

    [[nodiscard]] std::array<CommandButton*, 4> KeepButtons() {
        return {&Command17, &Command18, &Command19, &Command20};
    }
    void Clear();

    /// Places the circles of the entered size; false where a check refused the entries.
    bool PlaceIt();
    /// Where a size is entered, whatever panel shows: four circles in the chosen pair of lines. Without a pair they lie
    /// about the origin. `lines` are the store's; `copied` tells that its line records stand in their scratch file,
    /// which goes in any case.
    void MoreAng(const std::vector<std::string>& lines, bool copied);

private:
    void MakeCircles(const std::vector<std::string>& lineRecords, double radius);
    void DrawCircle(const TangentCircle& circle, double radius);

    Session& work_;
};

}  // namespace brindlex::geometry
