// Polygons.
#pragma once

#include "frame/buttons.h"
#include "frame/checked.h"
#include "frame/combobox.h"
#include "frame/commondialog.h"
#include "frame/form.h"
#include "frame/label.h"
#include "frame/picturebox.h"
#include "frame/textbox.h"
#include "polygon/solver.h"

#include <string>
#include <vector>

namespace brindlex::polygon {

class Form16 : public Form {
public:
    explicit Form16(Program& program);

    Frame Frame1{*this, "Frame1", {360, 270, 1710, 1062}, "Sides In Polygon"};
    ComboBox Combo1{Frame1, "Combo1", {210, 420, 1290, 315}, "6"};
    Frame Frame4{*this, "Frame4", {2190, 270, 1890, 1062}, "Polygon"};
    OptionButton Option4{Frame4, "Option4", {210, 300, 1590, 285}, "Inscribed"};
    OptionButton Option5{Frame4, "Option5", {210, 630, 1590, 285}, "Circumscribed"};
    Frame Frame3{*this, "Frame3", {360, 1440, 3720, 1302}, "Polygon Dimension"};
    OptionButton Option1{Frame3, "Option1", {210, 270, 3330, 285}, "Across Flats"};
    OptionButton Option2{Frame3, "Option2", {210, 600, 3330, 285}, "Across 1 Flat and 1 Sharp Corner"};
    OptionButton Option3{Frame3, "Option3", {210, 930, 3330, 285}, "Across 1 Flat"};
    Label Label2{*this, "Label2", {360, 2910, 1500, 255}, "Print Dimension:"};
    TextBox Text1{*this, "Text1", {1920, 2850, 2160, 315}};
    Label Label4{*this, "Label4", {360, 3300, 1500, 255}, "Circle Diameter:"};
    CommandButton Command1{*this, "Command1", {2430, 3717, 1650, 375}, "&Calculate!"};
    TextBox Text2{*this, "Text2", {1920, 3240, 2160, 315}};
    Label Label1{*this, "Label1", {360, 3690, 1980, 255}};
    Label Label3{*this, "Label3", {360, 3930, 1980, 255}};
    PictureBox Picture1{*this, "Picture1", {4320, 360, 3732, 3732}};
    PictureBox Picture2{*this, "Picture2", {0, 0, 0, 0}};
    CommonDialog CommonDialog1{*this, "CommonDialog1"};

    MenuItem File{*this, "File", "&File"};
    MenuItem OpenFile{File, "OpenFile", "Open"};
    MenuItem SaveFileAs{File, "SaveFileAs", "Save As"};
    MenuItem break1{File, "break1", "-"};
    MenuItem Print{File, "Print", "&Print Window"};
    MenuItem break2{File, "break2", "-"};
    MenuItem ExitPgm{File, "ExitPgm", "&Exit"};
    MenuItem Edit{*this, "Edit", "&Edit"};
    MenuItem Copy{Edit, "Copy", "Copy"};
    MenuItem Paste{Edit, "Paste", "Paste"};
    MenuItem Navigate{*this, "Navigate", "&Navigate"};
    MenuItem RIght{Navigate, "RIght", "&Right Triangles"};
    MenuItem Oblique{Navigate, "Oblique", "&Oblique Triangles"};
    MenuItem Bolt{Navigate, "Bolt", "&Bolt Circles"};
    MenuItem Sine{Navigate, "Sine", "S&ine Plates"};
    MenuItem Geometry{Navigate, "Geometry", "Geometr&y"};
    MenuItem SpdFd{Navigate, "SpdFd", "Spee&ds + Feeds"};
    MenuItem break3{Navigate, "break3", "-"};
    MenuItem WinCalc{Navigate, "WinCalc", "Windows &Calculator"};
    MenuItem Menu{Navigate, "Menu", "Men&u"};
    MenuItem Units{*this, "Units", "&Units"};
    MenuItem Inch2{Units, "Inch2", "Inches To"};
    MenuItem Inch2MM{Inch2, "Inch2MM", "Millimeters"};
    MenuItem Mill2{Units, "Mill2", "Millimeters To"};
    MenuItem MM2Inch{Mill2, "MM2Inch", "Inches"};
    MenuItem Help{*this, "Help", "&Help"};
    MenuItem About{Help, "About", "&About"};

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void BindControls();
    void BindMenus();
    void Command1_Click();
    void Combo1_Change();
    void Combo1_Click();
    void Option_Click();
    void Text1_Change();
    void Picture1_MouseUp(const Mouse& mouse);
    void OpenFile_Click();
    void SaveFileAs_Click();
    void Print_Click();
    void Copy_Click();
    void Paste_Click();
    void Edit_Click();
    void Inch2MM_Click();
    void MM2Inch_Click();

    void DrawPolygon();
    /// The combo's number; one beyond the range of a double counts as too many sides.
    [[nodiscard]] double SidesTyped() const;
    /// The same, rounded, and cut to the numbers from 0 to one above the most.
    [[nodiscard]] int Sides() const;
    [[nodiscard]] PolygonCase Given() const;
    void ClearResults();
    void SidesChanged();
    void Convert(Checked (*convert)(Checked), MenuItem& done, MenuItem& back, const std::string& unit);
    void ShowSolution(const PolygonSolution& solution);
    void TakeDocument(const std::vector<std::string>& lines);
};

}  // namespace brindlex::polygon
