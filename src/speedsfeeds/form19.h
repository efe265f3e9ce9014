// Speeds + Feeds: cutting data of a machine by tool, tool material and work material, and what follows from them.
// The window can be resized, and everything on it grows along.
#pragma once

#include "frame/buttons.h"
#include "frame/combobox.h"
#include "frame/form.h"
#include "frame/label.h"
#include "frame/textbox.h"
#include "speedsfeeds/calculation.h"
#include "speedsfeeds/layout.h"
#include "speedsfeeds/store.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace brindlex::speedsfeeds {

class Form19 : public Form {
public:
    explicit Form19(Program& program);

    Frame Frame2{*this, "Frame2", {105, 105, 7845, 1395}, "Operations (Mode: SAFE)"};
    Label Label1{Frame2, "Label1", {150, 240, 2685, 195}, "Machine"};
    ComboBox Combo1{Frame2, "Combo1", {150, 435, 2685, 300}};
    Label Label2{Frame2, "Label2", {150, 810, 2685, 195}, "Tool"};
    ComboBox Combo2{Frame2, "Combo2", {150, 1005, 2685, 300}};
    TextBox Text17{Frame2, "Text17", {150, 1005, 2417, 300}};
    Label Label3{Frame2, "Label3", {3225, 240, 2430, 195}, "Tool Material"};
    ComboBox Combo3{Frame2, "Combo3", {3225, 435, 2430, 300}};
    TextBox Text18{Frame2, "Text18", {3225, 435, 2162, 300}};
    Label Label4{Frame2, "Label4", {3225, 810, 2430, 195}, "Material Being Cut"};
    ComboBox Combo4{Frame2, "Combo4", {3225, 1005, 2430, 300}};
    TextBox Text19{Frame2, "Text19", {3225, 1005, 2162, 300}};
    Label Label5{Frame2, "Label5", {6000, 240, 1740, 195}, "Range: SFM"};
    TextBox Text1{Frame2, "Text1", {6000, 435, 1740, 300}};
    Label Label6{Frame2, "Label6", {6000, 810, 1740, 195}, "Range: FPT"};
    TextBox Text2{Frame2, "Text2", {6000, 1005, 1740, 300}};

    Frame Frame1{*this, "Frame1", {105, 1590, 2985, 1785}, "REQUIRED DATA (Units: INCHES)"};
    Label Label7{Frame1, "Label7", {150, 315, 1290, 195}, "Choose SFM"};
    TextBox Text3{Frame1, "Text3", {1500, 255, 1335, 300}};
    Label Label8{Frame1, "Label8", {150, 690, 1290, 195}, "Choose FPT"};
    TextBox Text4{Frame1, "Text4", {1500, 630, 1335, 300}};
    Label Label9{Frame1, "Label9", {150, 1065, 1290, 195}, "Tool Dia."};
    TextBox Text5{Frame1, "Text5", {1500, 1005, 1335, 300}};
    Label Label10{Frame1, "Label10", {150, 1440, 1290, 195}, "# of Teeth"};
    TextBox Text6{Frame1, "Text6", {1500, 1380, 1335, 300}};

    Frame Frame4{*this, "Frame4", {105, 3465, 2985, 660}, "To Calculate Required H.P."};
    Label Label13{Frame4, "Label13", {150, 315, 2040, 195}, "Power Constant/HP Factor"};
    TextBox Text9{Frame4, "Text9", {2205, 255, 630, 300}};

    Frame Frame3{*this, "Frame3", {3180, 1590, 2730, 1035}, "To Calculate Metal Removal Rate"};
    Label Label11{Frame3, "Label11", {150, 315, 1230, 195}, "Depth of Cut"};
    TextBox Text7{Frame3, "Text7", {1410, 255, 1170, 300}};
    Label Label12{Frame3, "Label12", {150, 690, 1230, 195}, "Width of Cut"};
    TextBox Text8{Frame3, "Text8", {1410, 630, 1170, 300}};

    Frame Frame6{*this, "Frame6", {3180, 2715, 2730, 1035}, "To Calculate Cutting Time"};
    Label Label14{Frame6, "Label14", {150, 315, 1230, 195}, "Length of Cut"};
    TextBox Text14{Frame6, "Text14", {1410, 255, 1170, 300}};
    Label Label15{Frame6, "Label15", {150, 690, 1230, 195}, "Number of Cuts"};
    TextBox Text15{Frame6, "Text15", {1410, 630, 1170, 300}};

    CommandButton Command1{*this, "Command1", {3180, 3840, 2730, 285}, "Calculate!"};

    Frame Frame5{*this, "Frame5", {6000, 1590, 1950, 2160}, "Results"};
    Label Label16{Frame5, "Label16", {105, 315, 885, 195}, "RPM"};
    TextBox Text10{Frame5, "Text10", {1005, 255, 840, 300}};
    Label Label17{Frame5, "Label17", {105, 690, 885, 195}, "IPM"};
    TextBox Text11{Frame5, "Text11", {1005, 630, 840, 300}};
    Label Label18{Frame5, "Label18", {105, 1065, 885, 195}, "MRR"};
    TextBox Text12{Frame5, "Text12", {1005, 1005, 840, 300}};
    Label Label19{Frame5, "Label19", {105, 1440, 885, 195}, "Time in Cut"};
    TextBox Text13{Frame5, "Text13", {1005, 1380, 840, 300}};
    Label Label20{Frame5, "Label20", {105, 1815, 885, 195}, "Req. H.P."};
    TextBox Text16{Frame5, "Text16", {1005, 1755, 840, 300}};

    CommandButton Command2{*this, "Command2", {6000, 3840, 1950, 285}, "Clear &All"};

    MenuItem File{*this, "File", "&File"};
    MenuItem Exit{File, "Exit", "&Exit"};
    MenuItem Edit{*this, "Edit", "&Edit"};
    MenuItem ConvDat{Edit, "ConvDat", "CONVERT To Metric Data"};
    MenuItem DelDat{Edit, "DelDat", "DELETE This Operations Data"};
    MenuItem Navigate{*this, "Navigate", "&Navigate"};
    MenuItem RightTri{Navigate, "RightTri", "&Right Triangles"};
    MenuItem OblTri{Navigate, "OblTri", "&Oblique Triangles"};
    MenuItem BoltC{Navigate, "BoltC", "&Bolt Circles"};
    MenuItem Sin{Navigate, "Sin", "S&ine Plates"};
    MenuItem Poly{Navigate, "Poly", "Poly&gons"};
    MenuItem Geom{Navigate, "Geom", "Geometr&y"};
    MenuItem break1{Navigate, "break1", "-"};
    MenuItem WinCalc{Navigate, "WinCalc", "Windows &Calculator"};
    MenuItem Menu{Navigate, "Menu", "Men&u"};
    MenuItem Units{*this, "Units", "&Units"};
    MenuItem InchTo{Units, "InchTo", "Enter Inch Data"};
    MenuItem MMTo{Units, "MMTo", "Enter Metric Data"};
    MenuItem Custom{*this, "Custom", "&Operations"};
    MenuItem DataOp{Custom, "DataOp", "ENTER New INCH Data"};
    MenuItem Help{*this, "Help", "&Help"};
    MenuItem About{Help, "About", "&About"};

protected:
    void Form_Initialize() override;
    void Form_Load() override;
    void Form_Unload() override;
    void Form_Resize() override;

private:
    void BindControls();
    void BindMenus();

    // Cutting data: form19data.cpp.

    void Combo1_Click();
    void Combo2_Click();
    void Combo3_Click();
    void Combo4_Click();
    void Text17_Change();
    void Text18_Change();
    void Text19_Change();
    void DelDat_Click();
    /// A name was chosen at a level, 0 the tool to 2 the work material: what lies below it goes, and fills anew.
    void ChooseName(std::size_t level);
    void NameChanged(std::size_t level);
    /// Fills the tools of the unit in force. Entries and results stay.
    void FilCmbos();
    /// Fills the lists and the ranges below the names chosen so far.
    void FilChoices();
    /// Puts starting values into the chosen speed and feed.
    void FlTxt();
    /// Deleting is offered in enter-data mode once a whole record was chosen.
    void OfferDelete();
    /// Saves what is entered; false where it could not be saved, which was said then.
    [[nodiscard]] bool AppendRecord();
    [[nodiscard]] bool DeleteRecord();
    /// Runs a rewrite of the store; where it fails a box says so.
    template <class Rewrite>
    [[nodiscard]] bool Rewritten(Rewrite&& rewrite);
    [[nodiscard]] Store Data() const;
    [[nodiscard]] Record EnteredRecord() const;

    // The calculation and the conversion: form19calculate.cpp.

    void Command1_Click();
    void Text4_Change();
    void ConvDat_Click();
    void Units_Click();
    /// Calculates where there are entries; false where something was refused. `done` tells whether it calculated.
    [[nodiscard]] bool CalculateEntries(bool& done);
    void CheckItAll();
    void ShowResults(const Results& results);
    /// Shows a refusal and moves the focus where it belongs; false where there is none.
    [[nodiscard]] bool Refuse(const std::optional<Refusal>& refusal, int boxStyle);
    void ConvertData();
    /// Whether the ranges could be converted.
    [[nodiscard]] bool ConvTxt();
    void FlipUnits();
    void ChkMach();
    [[nodiscard]] Entries EnteredTexts() const;
    [[nodiscard]] bool HasEntries() const;

    // Modes: form19.cpp.

    void DataOp_Click();
    void EnterDataMode();
    void SafeMode();
    void ClearAll();
    void ClearEntries();
    void ClearNames();
    void ClearRanges();
    [[nodiscard]] Unit UnitInForce() const { return InchTo.Checked() ? Unit::Inch : Unit::Metric; }
    [[nodiscard]] Machine MachineInForce() const { return MachineOf(Combo1.Text()); }

    std::string MachFile;        ///< the machine whose store is in use
    std::int16_t RangeFail = 0;  ///< -1 where a chosen value is out of its range
    std::int16_t FillBusy = 0;   ///< -1 while lists are filled by a choice: what that fires fills nothing
    bool keepEntries_ = false;   ///< while the tools are filled: what that fires changes nothing
    Layout layout_;
    const std::array<ComboBox*, 3> choices_{&Combo2, &Combo3, &Combo4};
    const std::array<TextBox*, 3> names_{&Text17, &Text18, &Text19};
    const std::array<TextBox*, 14> entries_{&Text3,  &Text4,  &Text5,  &Text6,  &Text7,  &Text8,  &Text9,
                                            &Text10, &Text11, &Text12, &Text13, &Text14, &Text15, &Text16};
    const std::array<TextBox*, 5> results_{&Text10, &Text11, &Text12, &Text13, &Text16};
};

}  // namespace brindlex::speedsfeeds
