// Oblique Triangles: the third and following elements of a triangle from three known ones.
// Units: places in twips, angles in decimal degrees, sides in the unit that Label4 names.
#pragma once

#include "frame/combobox.h"
#include "frame/commondialog.h"
#include "frame/form.h"
#include "frame/label.h"
#include "frame/picturebox.h"
#include "frame/textbox.h"
#include "oblique/diagram.h"
#include "oblique/solver.h"
#include "services/minutesdialog.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace brindlex::oblique {

class Form2 : public Form, public AngleOwner {
public:
    explicit Form2(Program& program);

    ComboBox Combo1{*this, "Combo1", {240, 105, 2595, 315}};
    Frame Frame1{*this, "Frame1", {240, 480, 6852, 900}, "Known Entities"};
    Label Label1{Frame1, "Label1", {120, 300, 615, 225}};
    TextBox Text1{Frame1, "Text1", {750, 240, 1290, 315}};
    Label Label2{Frame1, "Label2", {2460, 300, 615, 225}};
    TextBox Text2{Frame1, "Text2", {3090, 240, 1290, 315}};
    Label Label3{Frame1, "Label3", {4800, 300, 615, 225}};
    TextBox Text3{Frame1, "Text3", {5430, 240, 1290, 315}};
    CheckBox Check1{Frame1, "Check1", {120, 600, 2250, 240}, "Add Minutes And Seconds"};
    CheckBox Check2{Frame1, "Check2", {2460, 600, 2250, 240}, "Add Minutes And Seconds"};
    CheckBox Check3{*this, "Check3", {240, 1530, 2805, 240}, "Try Second Solution (Ambiguous)"};
    CommandButton Command1{*this, "Command1", {5760, 1455, 1332, 375}, "Calculate!"};

    PictureBox Picture1{*this, "Picture1", {240, 1920, 6852, 3132}};
    TextBox Text8{Picture1, "Text8", {75, 2430, 1500, 315}};
    TextBox Text4{Picture1, "Text4", {1095, 60, 1500, 315}};
    TextBox Text6{Picture1, "Text6", {2190, 2430, 1500, 315}};
    TextBox Text5{Picture1, "Text5", {2520, 1185, 1095, 315}};
    TextBox Text7{Picture1, "Text7", {1305, 2775, 1095, 315}};
    TextBox Text9{Picture1, "Text9", {90, 1185, 1095, 315}};
    Label Label4{Picture1, "Label4", {195, 2835, 1000, 225}};
    Label Label5{Picture1, "Label5", {5160, 2835, 0, 225}};
    PictureBox Picture2{*this, "Picture2", {240, 1920, 6852, 3132}};
    CommonDialog CommonDialog1{*this, "CommonDialog1"};

    MenuItem TriO{*this, "TriO", "&File"};
    MenuItem OPenFile{TriO, "OPenFile", "Open"};
    MenuItem SaveFileAs{TriO, "SaveFileAs", "Save As"};
    MenuItem break1{TriO, "break1", "-"};
    MenuItem PRNTO{TriO, "PRNTO", "Print"};
    MenuItem PrntWin{PRNTO, "PrntWin", "&Window"};
    MenuItem PrntPic{PRNTO, "PrntPic", "&Picture"};
    MenuItem break2{TriO, "break2", "-"};
    MenuItem Ext2{TriO, "Ext2", "&Exit"};

    MenuItem Edit{*this, "Edit", "&Edit"};
    MenuItem Copy{Edit, "Copy", "Copy"};
    MenuItem Paste{Edit, "Paste", "Paste"};
    MenuItem break3{Edit, "break3", "-"};
    MenuItem DIDMSO{Edit, "DIDMSO", "Display in Degrees/&Minutes/Seconds"};
    MenuItem ShapeO{Edit, "ShapeO", "Show Shape"};
    MenuItem TextOn{Edit, "TextOn", "Text On"};
    MenuItem break4{Edit, "break4", "-"};
    MenuItem RNO{Edit, "RNO", "Round &Numbers"};

    MenuItem Navigate{*this, "Navigate", "&Navigate"};
    MenuItem TriR{Navigate, "TriR", "&Right Triangles"};
    MenuItem BoltHoles{Navigate, "BoltHoles", "&Bolt Circles"};
    MenuItem Sines{Navigate, "Sines", "S&ine Plates"};
    MenuItem Poly{Navigate, "Poly", "Poly&gons"};
    MenuItem Geometry{Navigate, "Geometry", "Geometr&y"};
    MenuItem SpdFd{Navigate, "SpdFd", "Spee&ds + Feeds"};
    MenuItem break5{Navigate, "break5", "-"};
    MenuItem WinCalc{Navigate, "WinCalc", "Windows &Calculator"};
    MenuItem Sep110{Navigate, "Sep110", "-"};
    MenuItem Menu{Navigate, "Menu", "Men&u"};

    MenuItem Units{*this, "Units", "&Units"};
    MenuItem Inches{Units, "Inches", "Inches To"};
    MenuItem Inches2Millimeters{Inches, "Inches2Millimeters", "Millimeters"};
    MenuItem Millimeters{Units, "Millimeters", "Millimeters To"};
    MenuItem Millimeters2Inches{Millimeters, "Millimeters2Inches", "Inches"};

    MenuItem Hlp{*this, "Hlp", "&Help"};
    MenuItem About{Hlp, "About", "&About"};

    [[nodiscard]] std::vector<AngleField> AngleFields() override;

    /// Writes the settings file anew.
    void NewFile();

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    // Binding, in form2.cpp.
    void BindEntries();
    void BindMenus();
    void BindWaysOut();

    // Case, entries and calculation, in form2.cpp.
    void ReadSettingsFile();
    void Combo1_Click();
    void Command1_Click();
    void Check1_Click();
    void Check2_Click();
    void Check3_Click();
    void Entry_Change();
    void NameEntries(const std::array<Element, 3>& given);
    [[nodiscard]] Refusal Calculate();
    void Refuse(Refusal refusal);
    void AskFor(std::size_t entry);
    [[nodiscard]] bool EntriesFilled() const;

    // What is shown, in form2display.cpp.
    void ShowTitle();
    void ShowOverlay(bool visible);
    void DrawLetters();
    void ShowBareDiagram();
    void TransferText();
    void NotDegreesO();
    void DegreesO();
    void ShowTriangle();
    void ShowValues(const ElementTexts& texts);
    void Redisplay();
    void ShowArea();
    void ForgetArea();
    void AllowBothUnits();
    [[nodiscard]] KnownElements Known() const;
    [[nodiscard]] TextBox& OverlayBox(Element element);

    // Menus, in form2menus.cpp.
    void OPenFile_Click();
    void SaveFileAs_Click();
    void PrntWin_Click();
    void PrntPic_Click();
    void Ext2_Click();
    void Edit_Click();
    void Copy_Click();
    void Paste_Click();
    void DIDMSO_Click();
    void TextOn_Click();
    void RNO_Click();
    void Inches2Millimeters_Click();
    void Millimeters2Inches_Click();
    void Picture1_MouseUp(const Mouse& mouse);
    [[nodiscard]] bool SomethingToPrint();
    bool ConvertEntries(const std::function<std::string(double)>& convert);

    const std::array<Label*, 3> entryLabels_{&Label1, &Label2, &Label3};
    const std::array<TextBox*, 3> entries_{&Text1, &Text2, &Text3};
    /// The boxes over the diagram, in the order of Element.
    const std::array<TextBox*, ElementCount> overlay_{&Text8, &Text4, &Text6, &Text5, &Text7, &Text9};

    Triangle triangle_;
    /// Check3 is cleared because of another case, which is no wish to calculate.
    bool changingCase_ = false;
};

}  // namespace brindlex::oblique
