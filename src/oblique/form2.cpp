// Oblique Triangles: load and unload, the case, the entries, one calculation.
#include "oblique/form2.h"

#include "frame/navigation.h"
#include "frame/program.h"
#include "frame/text.h"
#include "services/activebox.h"
#include "services/degrees.h"
#include "services/filters.h"
#include "services/rounding.h"
#include "services/settings.h"

#include <algorithm>
#include <string_view>

namespace brindlex::oblique {

namespace {

constexpr std::string_view SettingsFile = "brindo.ini";
constexpr std::array<std::string_view, 4> SettingsKeys = {"DMS=", "Shape=", "Text=", "Rounding="};

std::string FlagText(bool value) {
    return value ? "-1" : "0";
}

}  // namespace

Form2::Form2(Program& program) : Form(program, "Form2", 7392, 5352) {
    Command1.Default(true);
    Combo1.ListOnly(true);
    Label4.Transparent(true);
    Label5.Transparent(true);
    Label5.AutoSize(true);
    Picture2.Visible(false);
    BindEntries();
    BindMenus();
    BindWaysOut();
}

void Form2::BindEntries() {
    BindFilters(*this);
    for (TextBox* const entry : entries_) {
        entry->Change.Bind(this, &Form2::Entry_Change);
        BindFocus(*entry, &Paste, true);
        BindTextTip(*entry);
    }
    for (TextBox* const box : overlay_) {
        box->Locked(true);
        BindFocus(*box, &Paste, false);
        BindTextTip(*box);
    }
    Combo1.Click.Bind(this, &Form2::Combo1_Click);
    Check1.Click.Bind(this, &Form2::Check1_Click);
    Check2.Click.Bind(this, &Form2::Check2_Click);
    Check3.Click.Bind(this, &Form2::Check3_Click);
    Command1.Click.Bind(this, &Form2::Command1_Click);
    Picture1.MouseUp.Bind(this, &Form2::Picture1_MouseUp);
    Check3.ToolTipText("For the ambiguous case");
}

void Form2::BindMenus() {
    OPenFile.Click.Bind(this, &Form2::OPenFile_Click);
    SaveFileAs.Click.Bind(this, &Form2::SaveFileAs_Click);
    PrntWin.Click.Bind(this, &Form2::PrntWin_Click);
    PrntPic.Click.Bind(this, &Form2::PrntPic_Click);
    Ext2.Click.Bind(this, &Form2::Ext2_Click);
    Edit.Click.Bind(this, &Form2::Edit_Click);
    Copy.Click.Bind(this, &Form2::Copy_Click);
    Paste.Click.Bind(this, &Form2::Paste_Click);
    DIDMSO.Click.Bind(this, &Form2::DIDMSO_Click);
    TextOn.Click.Bind(this, &Form2::TextOn_Click);
    RNO.Click.Bind(this, &Form2::RNO_Click);
    Inches2Millimeters.Click.Bind(this, &Form2::Inches2Millimeters_Click);
    Millimeters2Inches.Click.Bind(this, &Form2::Millimeters2Inches_Click);
}

void Form2::BindWaysOut() {
    const struct {
        MenuItem& item;
        const char* form;
    } ways[] = {
        {TriR, "Form1"},      {BoltHoles, "Form8"}, {Sines, "Form12"}, {Poly, "Form16"},
        {Geometry, "Form17"}, {SpdFd, "Form19"},    {Menu, "Form11"},
    };
    for (const auto& way : ways) {
        BindNavigation(way.item, way.form, [this] { NewFile(); });
    }
    BindCalculator(WinCalc);
    BindAbout(About);
}

void Form2::Form_Load() {
    triangle_ = {};
    PlaceOnScreen();
    ShowTitle();
    ReadSettingsFile();
    ShapeO.Enabled(false);
    Check1.Enabled(false);
    Check2.Enabled(false);
    Combo1.Text(std::string(Cases().front().Entry));
    NameEntries(Cases().front().Given);
    for (const Case& row : Cases()) {
        Combo1.AddItem(std::string(row.Entry));
    }
    ShowOverlay(TextOn.Checked());
    DrawOblique(Picture1);
    DrawLetters();
    Check3.Enabled(false);
}

void Form2::ReadSettingsFile() {
    const std::vector<std::string> stored = ReadSettings(Owner().Files(), SettingsFile, SettingsKeys);
    DIDMSO.Checked(AcceptedFlag(stored[0], "0") != "0");
    ShapeO.Checked(AcceptedFlag(stored[1], "-1") != "0");
    TextOn.Checked(AcceptedFlag(stored[2], "-1") != "0");
    Owner().Shared().DigitsO = AcceptedDigits(stored[3]);
}

void Form2::NewFile() {
    const std::array<std::string, 4> values = {FlagText(DIDMSO.Checked()), FlagText(ShapeO.Checked()),
                                               FlagText(TextOn.Checked()), Owner().Shared().DigitsO};
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < SettingsKeys.size(); ++i) {
        lines.push_back(std::string(SettingsKeys[i]) + values[i]);
    }
    WriteSettings(Owner().Files(), SettingsFile, lines);
}

void Form2::Form_Unload() {
    NewFile();
    GoTo("Form11");
}

void Form2::NameEntries(const std::array<Element, 3>& given) {
    for (std::size_t i = 0; i < given.size(); ++i) {
        entryLabels_[i]->Caption(std::string(LabelOf(given[i])));
    }
}

void Form2::Combo1_Click() {
    const auto given = EntriesOf(Combo1.Text());
    const Case* const row = FindCase(Combo1.Text());
    Check1.Enabled(false);
    Check2.Enabled(false);
    if (given) {
        NameEntries(*given);
        Check3.Enabled(row != nullptr && row->Kind == Family::Ambiguous);
    }
    changingCase_ = true;
    Check3.Value(0);
    changingCase_ = false;
    Check1.Enabled(given && IsAngle((*given)[0]));
    Check2.Enabled(given && IsAngle((*given)[1]));
    for (TextBox* const entry : entries_) {
        entry->Text("");
    }
    ShowOverlay(TextOn.Checked());
    ShowBareDiagram();
    AllowBothUnits();
    ForgetArea();
}

void Form2::Entry_Change() {
    if (TextOn.Checked()) {
        for (TextBox* const box : overlay_) {
            box->Text("");
        }
    }
    ShowBareDiagram();
    AllowBothUnits();
    ForgetArea();
    TransferText();
}

bool Form2::EntriesFilled() const {
    return std::none_of(entries_.begin(), entries_.end(), [](const TextBox* entry) { return entry->Text().empty(); });
}

void Form2::Command1_Click() {
    WorkOutPi(Owner().Shared());
    Picture1.Cls();
    DrawOblique(Picture1);
    DoLetters(Picture1, Known());  // the plain layout under Text On too: intended
    ShowTitle();
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (entries_[i]->Text().empty()) {
            AskFor(i);
            return;
        }
    }
    if (const Refusal refusal = Calculate(); refusal != Refusal::None) {
        Refuse(refusal);
    }
}

void Form2::AskFor(std::size_t entry) {
    Owner().MsgBox("What is " + entryLabels_[entry]->Caption(), style::Question);
    ShowBareDiagram();
    entries_[entry]->SetFocus();
}

Refusal Form2::Calculate() {
    try {
        DegreeReader reader;
        for (TextBox* const entry : entries_) {
            entry->Text(reader.NormalizeDmsText(entry->Text()));
        }
        SolveOblique(triangle_, Combo1.Text(), Val(Text1.Text()), Val(Text2.Text()), Val(Text3.Text()),
                     Check3.Value() == 1);
        if (!AcceptOblique(triangle_)) {
            return Refusal::NotPositive;
        }
        ShowTriangle();
        Text1.SetFocus();
        Text1.SelectAll();
        ShowArea();
        return Refusal::None;
    } catch (const Fault& fault) {
        return RefusalOf(fault.Number());
    }
}

void Form2::Refuse(Refusal refusal) {
    for (TextBox* const entry : entries_) {
        entry->Text("");
    }
    Text1.SetFocus();
    Text1.SelectAll();
    // A fault leaves the wish for the second solution as it is: intended.
    if (refusal == Refusal::NotPositive) {
        Check3.Value(0);
    }
    Owner().BeepBox(RefusalText(refusal));
}

std::vector<AngleField> Form2::AngleFields() {
    return {{&Check1, &Text1, Label1.Caption()}, {&Check2, &Text2, Label2.Caption()}};
}

void Form2::Check1_Click() {
    if (Check1.Value() != 0) {
        Owner().Get("Form4").ShowModal();
    }
}

void Form2::Check2_Click() {
    if (Check2.Value() != 0) {
        Owner().Get("Form4").ShowModal();
    }
}

void Form2::Check3_Click() {
    if (!changingCase_ && EntriesFilled()) {
        Command1.Value(true);
    }
}

}  // namespace brindlex::oblique
