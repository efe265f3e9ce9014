// Bolt Circles: loading, entries, calculation.
#include "boltcircle/form8.h"

#include "boltcircle/diagram.h"
#include "boltcircle/report.h"
#include "frame/program.h"
#include "frame/text.h"
#include "services/activebox.h"
#include "services/filters.h"
#include "services/rounding.h"
#include "services/settings.h"

#include <algorithm>
#include <new>
#include <string_view>

namespace brindlex::boltcircle {

namespace {

constexpr const char* Title = "Solutions To Bolt Circles";
constexpr const char* ZeroDiameter = "Diameter Must Be Greater Than Zero";
constexpr const char* ZeroHoles = "Number Of Holes Must Be Greater Than Zero";
constexpr std::string_view SettingsKeys[] = {"Rounding="};

struct RefusalRow {
    Refusal refusal;
    const char* message;
    TextBox Form8::*box;  // where the focus goes; null for nowhere
};
constexpr RefusalRow Refusals[] = {
    {Refusal::NotCompleted, "The Form Has Not Been Completed!", nullptr},
    {Refusal::ZeroDiameter, ZeroDiameter, &Form8::Text3},
    {Refusal::ZeroHoles, ZeroHoles, &Form8::Text4},
};

// The faults that are told; any other ends the calculation without a word: intended.
constexpr FaultNumber ToldFaults[] = {FaultNumber::Overflow, FaultNumber::BadArgument, FaultNumber::OutOfMemory};

}  // namespace

Form8::Form8(Program& program) : Form(program, "Form8", 7416, 6096) {
    Picture2.Visible(false);
    Label6.Transparent(true);
    Text6.MultiLine(true);
    BindFilters(*this);
    BindEntries();
    BindMenus();
    BindWays();
}

void Form8::BindEntries() {
    for (TextBox* const box : entries_) {
        box->Change.Bind([this, box] { EntryChanged(*box); });
        BindFocus(*box, &Paste, true);
    }
    BindFocus(Text6, &Paste, true);
    Check1.ToolTipText("Toggles between Angles and Coordinates");
    Check1.Click.Bind(this, &Form8::Check1_Click);
    Check2.Click.Bind(this, &Form8::Check2_Click);
    Command1.Click.Bind(this, &Form8::Command1_Click);
    Picture1.MouseUp.Bind(this, &Form8::Picture1_MouseUp);
}

SharedState& Form8::Shared() const {
    return Owner().Shared();
}

void Form8::Form_Load() {
    PlaceOnScreen();
    RoundNumbers.Enabled(false);
    Caption(Shared().VerCaption + Title);
    Shared().DigitsB = AcceptedDigits(ReadSettings(Owner().Files(), "boltcirc.ini", SettingsKeys).front());
    RoundEm();
    Command1.Default(true);
    // The dash-dotted style is left set: intended.
    DrawBaseCircle(Picture1);
}

void Form8::Form_Unload() {
    NewFile();
    GoTo("Form11");
}

void Form8::NewFile() {
    WriteSettings(Owner().Files(), "boltcirc.ini", {std::string(SettingsKeys[0]) + Shared().DigitsB});
}

std::vector<AngleField> Form8::AngleFields() {
    return {{&Check2, &Text5, "Degrees"}};
}

// Entries.

/// Every change of an entry wipes the results. The start angle leaves Round Numbers as it is: intended.
void Form8::EntryChanged(TextBox& box) {
    if (&box != &Text5) {
        RoundNumbers.Enabled(LengthsGiven() && !Text4.Text().empty());
    }
    Label6.Caption("");
    Text6.Text("");
    DrawCircle(Picture1);
    box.ToolTipText(box.Text());
}

bool Form8::LengthsGiven() const {
    return !Text1.Text().empty() && !Text2.Text().empty() && !Text3.Text().empty();
}

void Form8::FocusOn(TextBox& box) {
    box.SetFocus();
    box.SelectAll();
}

void Form8::Check1_Click() {
    for (TextBox* const box : {&Text1, &Text2}) {
        if (box->Text().empty()) {
            box->Text("0");
        }
    }
    if (RefuseZero(Text3, ZeroDiameter) || RefuseZero(Text4, ZeroHoles)) {
        return;
    }
    Units.Enabled(Check1.Value() == 0);
    const auto given = [](const TextBox& box) { return !box.Text().empty() && box.Text() != "0"; };
    if (given(Text3) && given(Text4)) {
        Command1.Value(true);
    }
}

/// Refuses an entry that is "0", or empty while angles are asked for. Clearing the check comes back to Check1_Click,
/// which refuses a "0" once more: intended.
bool Form8::RefuseZero(TextBox& box, const char* message) {
    const std::string& text = box.Text();
    if (text != "0" && !(text.empty() && Check1.Value() == 1)) {
        return false;
    }
    Owner().BeepBox(message);
    FocusOn(box);
    Text1.Text("0");
    Text2.Text("0");
    Check1.Value(0);
    Units.Enabled(true);
    return true;
}

void Form8::Check2_Click() {
    // The dialog clears the check in code, which comes here again.
    if (Check2.Value() != 0) {
        Owner().Get("Form15").ShowModal();
    }
}

// The calculation.

void Form8::Command1_Click() {
    // A file's name stays in the title only for the calculation after the file was opened or saved.
    const std::string& file = CommonDialog1.FileName();
    Caption(Shared().VerCaption + (file.empty() ? std::string(Title) : file));
    CommonDialog1.FileName("");
    try {
        Calculate();
    } catch (const Fault& fault) {
        if (std::find(std::begin(ToldFaults), std::end(ToldFaults), fault.Number()) != std::end(ToldFaults)) {
            AnswerFault();
        }
    } catch (const std::bad_alloc&) {
        AnswerFault();
    }
}

void Form8::Calculate() {
    Entries entries = Entered();
    if (const Refusal refusal = Validate(entries); refusal != Refusal::None) {
        Refuse(refusal);
        return;
    }
    if (entries.StartAngle.empty()) {
        entries.StartAngle = "0";
        Text5.Text("0");
    }
    DrawCircle(Picture1);
    Normalize(entries);
    TakeNormalized(entries);
    WorkOutPi(Shared());
    const std::string& mask = Shared().MaskB;
    const Pattern pattern = SolveBoltCircle(entries, mask, Shared().Rad);
    const std::string report = ReportText(pattern, entries.StartAngle, mask);
    DrawHoles(Picture1, pattern, Shared().Rad);
    Text6.Text(report);
    FocusOn(Text1);
}

Entries Form8::Entered() const {
    return {Text1.Text(), Text2.Text(), Text3.Text(), Text4.Text(), Text5.Text(), Check1.Value() == 1};
}

/// Degree text in a box gives way to its decimal number.
void Form8::TakeNormalized(const Entries& entries) {
    Text1.Text(entries.CenterX);
    Text2.Text(entries.CenterY);
    Text3.Text(entries.Diameter);
    Text4.Text(entries.Holes);
    Text5.Text(entries.StartAngle);
}

void Form8::Refuse(Refusal refusal) {
    for (const RefusalRow& row : Refusals) {
        if (row.refusal == refusal) {
            Owner().BeepBox(row.message);
            if (row.box != nullptr) {
                FocusOn(this->*row.box);
            }
            Check1.Value(0);
        }
    }
}

void Form8::AnswerFault() {
    Owner().BeepBox("An Unexpected Error Has Occured.\r\nTry Reducing the Number of Holes In The Pattern.");
    for (TextBox* const box : entries_) {
        box->Text("");
    }
    Check1.Value(0);
    Text1.SetFocus();
}

/// Builds the mask anew. Digits that make none leave the old one.
void Form8::RoundEm() {
    Guarded([this] { Shared().MaskB = RoundingMask(Shared().DigitsB, Shared()); });
}

}  // namespace brindlex::boltcircle
