// The Bolt Circles calculator.
// Units: twips; lengths as the user means them, inches or millimetres; angles in decimal degrees.
#pragma once

#include "boltcircle/solver.h"
#include "frame/buttons.h"
#include "frame/checked.h"
#include "frame/commondialog.h"
#include "frame/form.h"
#include "frame/label.h"
#include "frame/menuitem.h"
#include "frame/picturebox.h"
#include "frame/shared.h"
#include "frame/textbox.h"
#include "services/minutesdialog.h"

#include <array>
#include <string>
#include <vector>

namespace brindlex::boltcircle {

class Form8 : public Form, public AngleOwner {
public:
    explicit Form8(Program& program);

    Label Label1{*this, "Label1", {240, 285, 1680, 255}, "Bolt Circle X Center"};
    TextBox Text1{*this, "Text1", {2040, 240, 1812, 315}};
    Label Label2{*this, "Label2", {240, 660, 1680, 255}, "Bolt Circle Y Center"};
    TextBox Text2{*this, "Text2", {2040, 615, 1812, 315}};
    Label Label3{*this, "Label3", {240, 1035, 1680, 255}, "Bolt Circle Diameter"};
    TextBox Text3{*this, "Text3", {2040, 990, 1812, 315}};
    Label Label4{*this, "Label4", {240, 1410, 1680, 255}, "Number Of Holes"};
    TextBox Text4{*this, "Text4", {2040, 1365, 1812, 315}};
    Label Label5{*this, "Label5", {240, 1785, 1680, 255}, "Start Angle"};
    TextBox Text5{*this, "Text5", {2040, 1740, 1812, 315}};
    CheckBox Check2{*this, "Check2", {4092, 1755, 3084, 285}, "Add D/M/S"};
    CheckBox Check1{*this, "Check1", {4092, 1380, 3084, 285}, "Display Angles Only"};
    CommandButton Command1{*this, "Command1", {4092, 210, 1500, 375}, "&Calculate!"};
    PictureBox Picture1{*this, "Picture1", {240, 2160, 3612, 3612}};
    Label Label6{Picture1, "Label6", {90, 90, 975, 225}};
    TextBox Text6{*this, "Text6", {4092, 2160, 3084, 3612}};
    PictureBox Picture2{*this, "Picture2", {240, 2160, 3612, 3612}};
    CommonDialog CommonDialog1{*this, "CommonDialog1"};

    MenuItem Files{*this, "Files", "&File"};
    MenuItem OpenFile{Files, "OpenFile", "Open"};
    MenuItem SaveFileAs{Files, "SaveFileAs", "Save As"};
    MenuItem break1{Files, "break1", "-"};
    MenuItem PrintIt{Files, "PrintIt", "&Print"};
    MenuItem EntFrm{PrintIt, "EntFrm", "&Picture"};
    MenuItem TextOnly{PrintIt, "TextOnly", "Repor&t"};
    MenuItem Both{PrintIt, "Both", "&Both"};
    MenuItem break2{Files, "break2", "-"};
    MenuItem ExitPgm{Files, "ExitPgm", "&Exit"};
    MenuItem Edit{*this, "Edit", "&Edit"};
    MenuItem Copy{Edit, "Copy", "Copy"};
    MenuItem Paste{Edit, "Paste", "Paste"};
    MenuItem break3{Edit, "break3", "-"};
    MenuItem RoundNumbers{Edit, "RoundNumbers", "Round &Numbers"};
    MenuItem Navigate{*this, "Navigate", "&Navigate"};
    MenuItem GoToRight{Navigate, "GoToRight", "&Right Triangles"};
    MenuItem GoToOblique{Navigate, "GoToOblique", "&Oblique Triangles"};
    MenuItem Sines{Navigate, "Sines", "S&ine Plates"};
    MenuItem Poly{Navigate, "Poly", "Poly&gons"};
    MenuItem Geometry{Navigate, "Geometry", "Geometr&y"};
    MenuItem SpdFd{Navigate, "SpdFd", "Spee&ds + Feeds"};
    MenuItem break4{Navigate, "break4", "-"};
    MenuItem WinCalc{Navigate, "WinCalc", "Windows &Calculator"};
    MenuItem break5{Navigate, "break5", "-"};
    MenuItem Menu{Navigate, "Menu", "Men&u"};
    MenuItem Units{*this, "Units", "&Units"};
    MenuItem Inches{Units, "Inches", "Inches To"};
    MenuItem Inches2Millimeters{Inches, "Inches2Millimeters", "Millimeters"};
    MenuItem Millimeters{Units, "Millimeters", "Millimeters To"};
    MenuItem Millimeters2Inches{Millimeters, "Millimeters2Inches", "Inches"};
    MenuItem HelpMe{*this, "HelpMe", "&Help"};
    MenuItem AboutIt{HelpMe, "AboutIt", "&About"};

    [[nodiscard]] std::vector<AngleField> AngleFields() override;

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    /// What a print item puts on the page below its heading.
    struct Print {
        int LinesBefore;  ///< empty lines above the heading
        bool Picture;
        int LinesBetween;  ///< empty lines above the report
        bool Report;
    };

    void BindEntries();
    void BindMenus();
    void BindWays();

    // Entries.
    void EntryChanged(TextBox& box);
    void Check1_Click();
    void Check2_Click();
    [[nodiscard]] bool RefuseZero(TextBox& box, const char* message);
    [[nodiscard]] bool LengthsGiven() const;
    static void FocusOn(TextBox& box);

    // The calculation.
    void Command1_Click();
    void Calculate();
    void Refuse(Refusal refusal);
    void AnswerFault();
    [[nodiscard]] Entries Entered() const;
    void TakeNormalized(const Entries& entries);
    void RoundEm();

    // Menus.
    void Edit_Click();
    void Copy_Click();
    void Paste_Click();
    void RoundNumbers_Click();
    void Inches2Millimeters_Click();
    void Millimeters2Inches_Click();
    void ConvertLengths(Checked (*convert)(Checked), MenuItem& done, MenuItem& back, const std::string& note);
    void Picture1_MouseUp(const Mouse& mouse);

    // Files and paper.
    void NewFile();
    void OpenFile_Click();
    void SaveFileAs_Click();
    void TakeDocument(const std::vector<std::string>& lines);
    void PrintItem(const Print& print);
    void PrintPage(const Print& print);

    [[nodiscard]] SharedState& Shared() const;

    const std::array<TextBox*, 5> entries_{&Text1, &Text2, &Text3, &Text4, &Text5};
};

}  // namespace brindlex::boltcircle
