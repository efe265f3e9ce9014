// Right Triangles: menus, units, settings, documents, paper.
#include "righttri/form1.h"

#include "frame/navigation.h"
#include "frame/program.h"
#include "frame/text.h"
#include "services/activebox.h"
#include "services/documents.h"
#include "services/printing.h"
#include "services/rounding.h"
#include "services/settings.h"
#include "services/units.h"

#include <array>
#include <utility>

namespace brindlex::righttri {

namespace {

constexpr const char* SettingsFile = "brindr.ini";
constexpr std::array<std::string_view, 4> SettingsKeys = {"DMS=", "Shape=", "Text=", "Rounding="};

// A disk that refuses a save ends it without a word: intended.
constexpr DocumentKind Document{"Right Triangle Files(*.rgt)|*.rgt",  DocumentLines,      IsDocument,
                                "This Is Not A Right Triangle File!", style::Exclamation, false};

constexpr std::array<std::string_view, 8> BoxesToCopy = {"Text1", "Text2", "Text3", "Text4",
                                                         "Text5", "Text6", "Text7", "Text8"};
constexpr std::array<std::string_view, 2> BoxesToPaste = {"Text1", "Text2"};

constexpr std::string_view ConvertedMask = ".000000000000000";

std::string FlagText(const MenuItem& item) {
    return item.Checked() ? "-1" : "0";
}

}  // namespace

void Form1::BindMenus() {
    OPenFile.Click.Bind(this, &Form1::OPenFile_Click);
    SaveFileAs.Click.Bind(this, &Form1::SaveFileAs_Click);
    PrntWin.Click.Bind(this, &Form1::PrntWin_Click);
    PrntPic.Click.Bind(this, &Form1::PrntPic_Click);
    Edit.Click.Bind(this, &Form1::Edit_Click);
    Copy.Click.Bind(this, &Form1::Copy_Click);
    Paste.Click.Bind(this, &Form1::Paste_Click);
    DIDMS.Click.Bind(this, &Form1::DIDMS_Click);
    ShapeR.Click.Bind(this, &Form1::ShapeR_Click);
    TextOn.Click.Bind(this, &Form1::TextOn_Click);
    RN.Click.Bind(this, &Form1::RN_Click);
    Inches2Millimeters.Click.Bind(this, &Form1::Inches2Millimeters_Click);
    Millimeters2Inches.Click.Bind(this, &Form1::Millimeters2Inches_Click);
    const auto leave = [this] { NewFile(); };
    BindNavigation(Ext, "Form11", leave);
    BindNavigation(Menu, "Form11", leave);
    BindNavigation(Obl, "Form2", leave);
    BindNavigation(BoltHoles, "Form8", leave);
    BindNavigation(Sines, "Form12", leave);
    BindNavigation(Poly, "Form16", leave);
    // These two write no settings: intended.
    BindNavigation(Geometry, "Form17");
    BindNavigation(SpdFd, "Form19");
    BindCalculator(WinCalc);
    BindAbout(About);
}

void Form1::Edit_Click() {
    FollowClipboard(Paste);
}

void Form1::Copy_Click() {
    CopyActiveBox(*this, BoxesToCopy);
}

void Form1::Paste_Click() {
    PasteIntoActiveBox(*this, BoxesToPaste);
}

// The display.

void Form1::DIDMS_Click() {
    DIDMS.Checked(!DIDMS.Checked());
    // The rounded angles tell here whether there is a triangle, the unrounded ones in RN_Click: intended.
    if (EntriesGiven() && Shared().AngleB != 0 && Shared().AngleC != 0) {
        Redisplay();
    }
}

void Form1::TextOn_Click() {
    TextOn.Checked(!TextOn.Checked());
    for (TextBox* const box : boxes_) {
        box->Visible(TextOn.Checked());
    }
    Picture1.Cls();
    DrawTriangle();
    LettersOrRoomForBoxes();
    if (EntriesGiven() && Shared().AngleB != 0 && Shared().AngleC != 0) {
        Redisplay();
    }
}

void Form1::ShapeR_Click() {
    ShapeR.Checked(!ShapeR.Checked());
    if (Shared().AngleB == 0 || Shared().AngleC == 0) {
        return;
    }
    if (ShapeR.Checked()) {
        Guarded([this] {
            const auto proportions = ProportionsOf(Shared().SideB, Shared().SideC);
            righttri::DrawTriangle(Picture1, White);
            ShowProportions(proportions);
        });
    } else {
        Guarded([this] { SmallTriangle(); });
        DrawTriangle();
        Command1.Value(true);
    }
}

void Form1::RN_Click() {
    Owner().Get("Form5").ShowModal();
    if (Shared().KeepAngleB != 0 && Shared().KeepAngleC != 0) {
        Redisplay();
    }
}

void Form1::Picture1_MouseUp(const Mouse& mouse) {
    if (mouse.Button == RightButton) {
        PopupMenu(Units);
    }
}

// Units.

void Form1::Inches2Millimeters_Click() {
    ConvertEntries([](Checked inches) { return inches * MillimetersPerInch; }, Inches, Millimeters, "Millimeters");
}

void Form1::Millimeters2Inches_Click() {
    ConvertEntries([](Checked millimeters) { return millimeters / MillimetersPerInch; }, Millimeters, Inches, "Inches");
}

void Form1::ConvertEntries(Checked (*convert)(Checked), MenuItem& done, MenuItem& back, const std::string& note) {
    if (EntriesGiven()) {
        const auto converted = [convert](const TextBox& box) {
            return Format(convert(Val(box.Text())).Value(), ConvertedMask);
        };
        const bool isAngle = InputLabel2.Caption() == "Angle B" || InputLabel2.Caption() == "Angle C";
        std::string first;
        std::string second;
        const bool inRange = Guarded([&] {
            first = converted(Text1);
            second = isAngle ? Text2.Text() : converted(Text2);
        });
        if (!inRange) {
            Owner().BeepBox("These Values Are Too Large To Convert!");
            return;
        }
        Text1.Text(first);
        Text2.Text(second);
        done.Enabled(false);
        back.Enabled(true);
        Label1.Caption(note);
    }
    Command1.Value(true);
}

// Settings.

void Form1::ReadSettingsFile() {
    const auto stored = ReadSettings(Owner().Files(), SettingsFile, SettingsKeys);
    DIDMS.Checked(Val(AcceptedFlag(stored[0], "0")) != 0);
    ShapeR.Checked(Val(AcceptedFlag(stored[1], "-1")) != 0);
    TextOn.Checked(Val(AcceptedFlag(stored[2], "-1")) != 0);
    Shared().DigitsR = AcceptedDigits(stored[3]);
}

/// Writes the settings.
void Form1::NewFile() {
    const std::array<std::string, SettingsKeys.size()> values = {FlagText(DIDMS), FlagText(ShapeR), FlagText(TextOn),
                                                                 Shared().DigitsR};
    std::vector<std::string> lines;
    for (std::size_t line = 0; line < values.size(); ++line) {
        lines.push_back(std::string(SettingsKeys[line]) + values[line]);
    }
    WriteSettings(Owner().Files(), SettingsFile, lines);
}

// Documents.

void Form1::OPenFile_Click() {
    const auto lines = OpenDocument(CommonDialog1, Document);
    if (!lines) {
        return;
    }
    if (!lines->empty()) {
        Combo1.Text(lines->front());
    }
    const std::array<TextBox*, 2> entries = {&Text1, &Text2};
    for (std::size_t line = 1; line < lines->size(); ++line) {
        entries[line - 1]->Text((*lines)[line]);
    }
    Command1.Value(true);
}

void Form1::SaveFileAs_Click() {
    // The boxes fill under Text On alone, so a triangle that was solved under Text Off can't be saved: intended.
    for (const TextBox* const box : boxes_) {
        if (box->Text().empty()) {
            Owner().BeepBox("The Form Has Not Been Completed!");
            return;
        }
    }
    SaveDocument(CommonDialog1, Document, {Combo1.Text(), Text1.Text(), Text2.Text()});
}

// Paper.

bool Form1::SomethingToPrint() {
    if (Label2.Caption().empty()) {
        Owner().BeepBox("Nothing to Print!", style::Plain);
        return false;
    }
    return true;
}

void Form1::PrntWin_Click() {
    if (SomethingToPrint()) {
        PrintWindow(*this, Picture2, CommonDialog1);
    }
}

void Form1::PrntPic_Click() {
    if (SomethingToPrint()) {
        PrintPicture(*this, Picture1, Picture2, CommonDialog1,
                     {&Text4, &Text6, &Text5, &Text7, &Text3, &Text8, &Label1, &Label2});
    }
}

}  // namespace brindlex::righttri
