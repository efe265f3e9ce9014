// The Right Triangles calculator.
// Units: twips; lengths as the user means them, inches or millimetres; angles in decimal degrees.
#pragma once

#include "frame/buttons.h"
#include "frame/checked.h"
#include "frame/combobox.h"
#include "frame/commondialog.h"
#include "frame/form.h"
#include "frame/label.h"
#include "frame/menuitem.h"
#include "frame/picturebox.h"
#include "frame/shared.h"
#include "frame/textbox.h"
#include "righttri/answer.h"
#include "righttri/diagram.h"
#include "righttri/solver.h"
#include "services/minutesdialog.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace brindlex::righttri {

class Form1 : public Form, public AngleOwner {
public:
    explicit Form1(Program& program);

    ComboBox Combo1{*this, "Combo1", {360, 180, 2700, 315}};
    Frame Frame1{*this, "Frame1", {3240, 120, 3732, 1212}, "Known Entities"};
    Label InputLabel1{Frame1, "InputLabel1", {120, 345, 1440, 225}};
    TextBox Text1{Frame1, "Text1", {1620, 300, 1992, 315}};
    Label InputLabel2{Frame1, "InputLabel2", {120, 780, 1440, 225}};
    TextBox Text2{Frame1, "Text2", {1620, 735, 1992, 315}};
    CheckBox Check1{*this, "Check1", {360, 585, 2700, 285}, "Add Minutes and Seconds"};
    CommandButton Command1{*this, "Command1", {360, 957, 1332, 375}, "&Calculate!"};
    PictureBox Picture1{*this, "Picture1", {360, 1560, 6612, 3612}};
    TextBox Text3{Picture1, "Text3", {945, 2805, 615, 315}};    // corner A
    TextBox Text4{Picture1, "Text4", {855, 240, 1500, 315}};    // angle B
    TextBox Text5{Picture1, "Text5", {3600, 2805, 1500, 315}};  // angle C
    TextBox Text6{Picture1, "Text6", {2880, 1410, 1500, 315}};  // side a
    TextBox Text7{Picture1, "Text7", {1920, 2805, 1500, 315}};  // side b
    TextBox Text8{Picture1, "Text8", {60, 1515, 1500, 315}};    // side c
    Label Label1{Picture1, "Label1", {4800, 240, 1575, 225}};
    Label Label2{Picture1, "Label2", {4800, 3240, 1575, 225}};
    PictureBox Picture2{*this, "Picture2", {360, 1560, 6612, 3612}};
    CommonDialog CommonDialog1{*this, "CommonDialog1"};

    MenuItem Tri{*this, "Tri", "&File"};
    MenuItem OPenFile{Tri, "OPenFile", "Open"};
    MenuItem SaveFileAs{Tri, "SaveFileAs", "Save As"};
    MenuItem break1{Tri, "break1", "-"};
    MenuItem Prnt{Tri, "Prnt", "Print"};
    MenuItem PrntWin{Prnt, "PrntWin", "&Window"};
    MenuItem PrntPic{Prnt, "PrntPic", "&Picture"};
    MenuItem break2{Tri, "break2", "-"};
    MenuItem Ext{Tri, "Ext", "&Exit"};
    MenuItem Edit{*this, "Edit", "&Edit"};
    MenuItem Copy{Edit, "Copy", "Copy"};
    MenuItem Paste{Edit, "Paste", "Paste"};
    MenuItem break3{Edit, "break3", "-"};
    MenuItem DIDMS{Edit, "DIDMS", "Display in Degrees/&Minutes/Seconds"};
    MenuItem ShapeR{Edit, "ShapeR", "Display &Shape"};
    MenuItem TextOn{Edit, "TextOn", "Text On"};
    MenuItem break4{Edit, "break4", "-"};
    MenuItem RN{Edit, "RN", "Round &Numbers"};
    MenuItem Navigate{*this, "Navigate", "&Navigate"};
    MenuItem Obl{Navigate, "Obl", "&Oblique Triangles"};
    MenuItem BoltHoles{Navigate, "BoltHoles", "&Bolt Circles"};
    MenuItem Sines{Navigate, "Sines", "S&ine Plates"};
    MenuItem Poly{Navigate, "Poly", "Poly&gons"};
    MenuItem Geometry{Navigate, "Geometry", "Geometr&y"};
    MenuItem SpdFd{Navigate, "SpdFd", "Spee&ds + Feeds"};
    MenuItem break5{Navigate, "break5", "-"};
    MenuItem WinCalc{Navigate, "WinCalc", "Windows &Calculator"};
    MenuItem break6{Navigate, "break6", "-"};
    MenuItem Menu{Navigate, "Menu", "Men&u"};
    MenuItem Units{*this, "Units", "&Units"};
    MenuItem Inches{Units, "Inches", "Inches To"};
    MenuItem Inches2Millimeters{Inches, "Inches2Millimeters", "Millimeters"};
    MenuItem break10{Units, "break10", "-"};
    MenuItem Millimeters{Units, "Millimeters", "Millimeters To"};
    MenuItem Millimeters2Inches{Millimeters, "Millimeters2Inches", "Inches"};
    MenuItem Hlp{*this, "Hlp", "&Help"};
    MenuItem About{Hlp, "About", "&About"};

    [[nodiscard]] std::vector<AngleField> AngleFields() override;

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void BindEntries();
    void BindMenus();

    // Entries.
    void Combo1_Click();
    void EntryChanged();
    void TransferText();
    void Check1_Click();
    [[nodiscard]] bool EntriesGiven() const { return !Text1.Text().empty() && !Text2.Text().empty(); }
    [[nodiscard]] KnownParts Known() const;

    // The sketch.
    void DrawTriangle();
    void SmallTriangle();
    void ShowProportions(const std::optional<Proportions>& proportions);
    void PlaceLetters();
    void PlaceLetters2();
    void LettersOrRoomForBoxes();
    void ClearBoxes();
    void ShowInBox(Part part, const std::string& text, bool known);

    // The calculation.
    void Command1_Click();
    void Calculate();
    void AskForEntry(TextBox& box, const Label& label);
    void RefuseValues();
    void ForgetConversion();
    void ForgetConversionAndArea();
    void NoteSolved(const Triangle& found);
    void ShowArea();

    // The display, from the unrounded values.
    void NotDegrees();
    void Degrees();
    void Redisplay();
    [[nodiscard]] Triangle Kept() const;
    void ShowAnswer(const Answer& answer, const std::string& cornerA);

    // Menus.
    void Edit_Click();
    void Copy_Click();
    void Paste_Click();
    void DIDMS_Click();
    void ShapeR_Click();
    void TextOn_Click();
    void RN_Click();
    void Inches2Millimeters_Click();
    void Millimeters2Inches_Click();
    void ConvertEntries(Checked (*convert)(Checked), MenuItem& done, MenuItem& back, const std::string& note);
    void Picture1_MouseUp(const Mouse& mouse);

    // Files and paper.
    void ReadSettingsFile();
    void NewFile();
    void OPenFile_Click();
    void SaveFileAs_Click();
    void PrntWin_Click();
    void PrntPic_Click();
    [[nodiscard]] bool SomethingToPrint();

    [[nodiscard]] SharedState& Shared() const;

    /// By what they show, in the order of Part.
    const std::array<TextBox*, PartCount> boxes_{&Text3, &Text4, &Text5, &Text6, &Text7, &Text8};
};

}  // namespace brindlex::righttri
