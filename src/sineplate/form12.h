// Sine Plates.
#pragma once

#include "frame/buttons.h"
#include "frame/combobox.h"
#include "frame/commondialog.h"
#include "frame/form.h"
#include "frame/label.h"
#include "frame/picturebox.h"
#include "frame/textbox.h"
#include "services/minutesdialog.h"
#include "sineplate/solver.h"

#include <string>
#include <vector>

namespace brindlex::sineplate {

class Form12 : public Form, public AngleOwner {
public:
    explicit Form12(Program& program);

    Frame Frame2{*this, "Frame2", {240, 240, 2100, 1152}, "Angle Type"};
    OptionButton Option1{Frame2, "Option1", {210, 330, 1680, 285}, "Regular"};
    OptionButton Option2{Frame2, "Option2", {210, 690, 1680, 285}, "Compound"};
    Frame Frame1{*this, "Frame1", {240, 1560, 2100, 912}, "Center Spacing"};
    ComboBox Combo1{Frame1, "Combo1", {210, 360, 1680, 315}};
    Label Label1{*this, "Label1", {2640, 630, 1620, 255}, "Required Angle:"};
    TextBox Text1{*this, "Text1", {4260, 570, 1332, 315}};
    CheckBox Check1{*this, "Check1", {5700, 585, 1200, 285}, "Add D/M/S"};
    Label Label2{*this, "Label2", {2640, 1050, 1620, 255}, "Top Angle:"};
    TextBox Text2{*this, "Text2", {4260, 990, 1332, 315}};
    CheckBox Check2{*this, "Check2", {5700, 1005, 1200, 285}, "Add D/M/S"};
    CommandButton Command1{*this, "Command1", {240, 2820, 2100, 375}, "&Calculate!"};
    Label Label3{*this, "Label3", {2640, 1830, 1620, 255}, "            Buildup="};
    TextBox Text3{*this, "Text3", {4260, 1770, 1332, 315}};
    Label Label7{*this, "Label7", {5700, 1830, 1200, 255}};
    Label Label5{*this, "Label5", {2640, 2250, 1620, 255}, "Top Buildup="};
    TextBox Text4{*this, "Text4", {4260, 2190, 1332, 315}};
    PictureBox Picture2{*this, "Picture2", {0, 0, 0, 0}};
    CommonDialog CommonDialog1{*this, "CommonDialog1"};

    MenuItem File{*this, "File", "&File"};
    MenuItem OPenFile{File, "OPenFile", "Open"};
    MenuItem SaveFileAs{File, "SaveFileAs", "Save As"};
    MenuItem break1{File, "break1", "-"};
    MenuItem PrintSine{File, "PrintSine", "&Print Window"};
    MenuItem break2{File, "break2", "-"};
    MenuItem Exit{File, "Exit", "&Exit"};
    MenuItem Edit{*this, "Edit", "&Edit"};
    MenuItem Copy{Edit, "Copy", "Copy"};
    MenuItem Paste{Edit, "Paste", "Paste"};
    MenuItem break3{Edit, "break3", "-"};
    MenuItem RoundNumbers{Edit, "RoundNumbers", "Round &Numbers"};
    MenuItem Navigate{*this, "Navigate", "&Navigate"};
    MenuItem RightTri{Navigate, "RightTri", "&Right Triangles"};
    MenuItem Oblique{Navigate, "Oblique", "&Oblique Triangles"};
    MenuItem BoltCirc{Navigate, "BoltCirc", "&Bolt Circles"};
    MenuItem Poly{Navigate, "Poly", "Poly&gons"};
    MenuItem Geometry{Navigate, "Geometry", "Geometr&y"};
    MenuItem SpdFd{Navigate, "SpdFd", "Spee&ds + Feeds"};
    MenuItem break4{Navigate, "break4", "-"};
    MenuItem WinCalc{Navigate, "WinCalc", "Windows &Calculator"};
    MenuItem Menu{Navigate, "Menu", "Men&u"};
    MenuItem Units{*this, "Units", "&Units"};
    MenuItem Inches{Units, "Inches", "Inches To"};
    MenuItem Inches2Millimeters{Inches, "Inches2Millimeters", "Millimeters"};
    MenuItem Millimeters{Units, "Millimeters", "Millimeters To"};
    MenuItem Millimeters2Inches{Millimeters, "Millimeters2Inches", "Inches"};
    MenuItem Help{*this, "Help", "&Help"};
    MenuItem About{Help, "About", "&About"};

    [[nodiscard]] std::vector<AngleField> AngleFields() override;

protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_MouseUp(const Mouse& mouse) override;

private:
    void BindControls();
    void BindMenus();
    void Command1_Click();
    void Option1_Click();
    void Option2_Click();
    void Text_Change();
    void Check_Click(CheckBox& check);
    void OPenFile_Click();
    void SaveFileAs_Click();
    void PrintSine_Click();
    void Copy_Click();
    void Paste_Click();
    void Edit_Click();
    void RoundNumbers_Click();
    void Inches2Millimeters_Click();
    void Millimeters2Inches_Click();

    /// Shows the message of a refusal and moves the focus where it belongs.
    void Refuse(PlateRefusal refusal);
    /// The calculation behind the checks. Throws Fault where a result overflows.
    void Calculate();
    void ShowBuildup(double unit);
    void TakeDocument(const std::vector<std::string>& lines);
    void HideResults();
    void ClearResults();
    /// RoundNumbers is enabled while the angles that show are filled.
    void FollowEntries();
};

}  // namespace brindlex::sineplate
