// Sine Plates: entries, results, units, documents.
// Units: center spacing in inches always; results in inches or millimeters, by which unit item is enabled.
#include "sineplate/form12.h"

#include "frame/fault.h"
#include "frame/navigation.h"
#include "frame/program.h"
#include "frame/text.h"
#include "services/activebox.h"
#include "services/degrees.h"
#include "services/documents.h"
#include "services/filters.h"
#include "services/printing.h"
#include "services/rounding.h"
#include "services/units.h"
#include "services/words.h"
#include "sineplate/document.h"

#include <array>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>

namespace brindlex::sineplate {

namespace {

constexpr int LargestSpacing = 20;
constexpr std::array<std::string_view, 4> Boxes = {"Text1", "Text2", "Text3", "Text4"};
constexpr const char* Incomplete = "You Haven't Completed The Form";
constexpr const char* TooLarge = "Angle Must Be 90 Degrees Or Less";
constexpr const char* NotValid = "These Values Are Not Valid For Calculating";

constexpr DocumentKind SineFile{.Filter = "Sine Files(*.sin)|*.sin",
                                .MostLines = DocumentLines,
                                .Belongs = IsDocument,
                                .Refusal = "This Is Not A Sine File!",
                                .RefusalStyle = style::Plain};

}  // namespace

Form12::Form12(Program& program) : Form(program, "Form12", 7008, 3672) {
    Option1.Value(true);
    Picture2.Visible(false);
    Text3.Locked(true);
    Text4.Locked(true);
    BindFilters(*this);
    BindControls();
    BindMenus();
}

void Form12::BindControls() {
    Command1.Click.Bind(this, &Form12::Command1_Click);
    Option1.Click.Bind(this, &Form12::Option1_Click);
    Option2.Click.Bind(this, &Form12::Option2_Click);
    Text1.Change.Bind(this, &Form12::Text_Change);
    Text2.Change.Bind(this, &Form12::Text_Change);
    Check1.Click.Bind([this] { Check_Click(Check1); });
    Check2.Click.Bind([this] { Check_Click(Check2); });
    for (TextBox* const box : {&Text1, &Text2, &Text3, &Text4}) {
        BindFocus(*box, &Paste);
    }
}

void Form12::BindMenus() {
    OPenFile.Click.Bind(this, &Form12::OPenFile_Click);
    SaveFileAs.Click.Bind(this, &Form12::SaveFileAs_Click);
    PrintSine.Click.Bind(this, &Form12::PrintSine_Click);
    Edit.Click.Bind(this, &Form12::Edit_Click);
    Copy.Click.Bind(this, &Form12::Copy_Click);
    Paste.Click.Bind(this, &Form12::Paste_Click);
    RoundNumbers.Click.Bind(this, &Form12::RoundNumbers_Click);
    Inches2Millimeters.Click.Bind(this, &Form12::Inches2Millimeters_Click);
    Millimeters2Inches.Click.Bind(this, &Form12::Millimeters2Inches_Click);
    BindNavigation(RightTri, "Form1");
    BindNavigation(Oblique, "Form2");
    BindNavigation(BoltCirc, "Form8");
    BindNavigation(Poly, "Form16");
    BindNavigation(Geometry, "Form17");
    BindNavigation(SpdFd, "Form19");
    BindNavigation(Menu, "Form11");
    BindNavigation(Exit, "Form11");
    BindCalculator(WinCalc);
    BindAbout(About);
}

void Form12::Form_Load() {
    PlaceOnScreen();
    Combo1.Text("5\"");
    RoundNumbers.Enabled(false);
    Caption(Owner().Shared().VerCaption + "Solutions To Sine Plates");
    for (int spacing = 1; spacing <= LargestSpacing; ++spacing) {
        Combo1.AddItem(Str(spacing) + "\" ");
    }
    Option1.Value(true);
    Label2.Visible(false);
    HideResults();
    Text2.Visible(false);
    Check2.Visible(false);
    Owner().Shared().DigitsS = 4;
    Command1.Default(true);
}

void Form12::Form_Unload() {
    GoTo("Form11");
}

void Form12::Form_MouseUp(const Mouse& mouse) {
    if (mouse.Button == RightButton) {
        PopupMenu(Units);
    }
}

std::vector<AngleField> Form12::AngleFields() {
    return {{&Check1, &Text1, Label1.Caption()}, {&Check2, &Text2, Label2.Caption()}};
}

void Form12::HideResults() {
    for (Control* const control : std::initializer_list<Control*>{&Label3, &Text3, &Label5, &Text4}) {
        control->Visible(false);
    }
}

void Form12::ClearResults() {
    HideResults();
    Text3.Text("");
    Text4.Text("");
    Label7.Caption("");
}

void Form12::FollowEntries() {
    RoundNumbers.Enabled(!Text1.Text().empty() && !(Text2.Visible() && Text2.Text().empty()));
}

void Form12::Option1_Click() {
    Label2.Visible(false);
    HideResults();
    Text2.Visible(false);
    Check2.Visible(false);
    Label1.Caption("Required Angle:");
    Label3.Caption("            Buildup=");
    for (TextBox* const box : {&Text1, &Text2, &Text3, &Text4}) {
        box->Text("");
    }
    FollowEntries();
}

void Form12::Option2_Click() {
    Label2.Visible(true);
    Text2.Visible(true);
    Check2.Visible(true);
    HideResults();
    for (TextBox* const box : {&Text1, &Text2, &Text3, &Text4}) {
        box->Text("");
    }
    Label1.Caption("Bottom Angle:");
    Label3.Caption("Bottom Buildup=");
    FollowEntries();
}

void Form12::Text_Change() {
    ClearResults();
    FollowEntries();
    // Any change of an angle returns the form to inches: intended.
    Millimeters.Enabled(false);
    Inches.Enabled(true);
}

void Form12::Refuse(PlateRefusal refusal) {
    const bool tooLarge = refusal == PlateRefusal::FirstAngleTooLarge || refusal == PlateRefusal::SecondAngleTooLarge;
    Owner().MsgBox(tooLarge ? TooLarge : Incomplete, style::Plain);
    if (refusal == PlateRefusal::SpacingMissing) {
        Combo1.SetFocus();
        return;
    }
    const bool second = refusal == PlateRefusal::SecondAngleMissing || refusal == PlateRefusal::SecondAngleTooLarge;
    TextBox& box = second ? Text2 : Text1;
    if (tooLarge) {
        box.Text("");
    }
    box.SetFocus();
}

void Form12::Command1_Click() {
    WorkOutPi(Owner().Shared());
    const PlateRefusal refusal = CheckPlate({Text1.Text(), Text2.Text(), Text2.Visible(), Combo1.Text()});
    if (refusal != PlateRefusal::None) {
        Refuse(refusal);
        return;
    }
    if (!Guarded([this] { Calculate(); })) {
        ClearResults();
        Owner().BeepBox(NotValid, style::Plain);
        Text1.SetFocus();
        return;
    }
    RoundNumbers.Enabled(true);
    Text1.SetFocus();
    Text1.SelectAll();
}

void Form12::Calculate() {
    DegreeReader reader;
    for (TextBox* const box : {&Text1, &Text2}) {
        // Decimal degrees in place of degree text are a change as well, so they return the form to inches: intended.
        box->Text(reader.NormalizeDmsText(box->Text()));
    }
    // Shorter than the title of a fresh form: intended.
    const std::string& file = CommonDialog1.FileName();
    Caption(Owner().Shared().VerCaption + (file.empty() ? "Solutions To Sines" : file));
    CommonDialog1.FileName("");
    if (Inches.Enabled() != Millimeters.Enabled()) {
        ShowBuildup(Inches.Enabled() ? 1 : MillimetersPerInch);
    }
}

void Form12::ShowBuildup(double unit) {
    SharedState& shared = Owner().Shared();
    const std::string mask = RoundingMask(Str(shared.DigitsS), shared);
    const double spacing = Val(Combo1.Text());
    if (Option1.Value()) {
        const Buildup stack = SolveRegular(Val(Text1.Text()), spacing, unit, shared.Rad);
        Text3.Text(Format(stack.Bottom, mask));
    } else {
        const Buildup stack = SolveCompound(Val(Text2.Text()), Val(Text1.Text()), spacing, unit, shared.Rad);
        Label5.Visible(true);
        Text4.Visible(true);
        Text4.Text(Format(stack.Top, mask));
        Text3.Text(Format(stack.Bottom, mask));
    }
    Label3.Visible(true);
    Text3.Visible(true);
    Label7.Caption(unit == 1 ? "Inches" : "Millimeters");
}

void Form12::Check_Click(CheckBox& check) {
    if (check.Value() != 0) {
        Owner().Get("Form13").ShowModal();
    }
}

void Form12::Inches2Millimeters_Click() {
    Inches.Enabled(false);
    Millimeters.Enabled(true);
    Command1.Value(true);
}

void Form12::Millimeters2Inches_Click() {
    Millimeters.Enabled(false);
    Inches.Enabled(true);
    Command1.Value(true);
}

void Form12::RoundNumbers_Click() {
    Owner().Get("Form14").ShowModal();
    Command1.Value(true);
}

void Form12::OPenFile_Click() {
    if (const auto lines = OpenDocument(CommonDialog1, SineFile)) {
        TakeDocument(*lines);
        Command1.Value(true);
    }
}

void Form12::TakeDocument(const std::vector<std::string>& lines) {
    const auto document = ReadDocument(lines);
    if (!document) {
        return;
    }
    Combo1.Text(document->Spacing);
    OptionButton* const options[] = {&Option1, &Option2};
    for (std::size_t at = 0; at < std::size(options); ++at) {
        if (const auto value = document->Types[at]) {
            options[at]->Value(*value);
        }
    }
    if (!Option1.Value() && !Option2.Value()) {
        Option1.Value(true);
    }
    Text1.Text(document->Angles[0]);
    Text2.Text(document->Angles[1]);
}

void Form12::SaveFileAs_Click() {
    // Without its first line a document reads as an empty one, so the spacing has to be there as well.
    if (Text3.Text().empty() || FirstLine(Combo1.Text()).empty()) {
        Owner().BeepBox("The Form Has Not Been Completed!", style::Plain);
        return;
    }
    SaveDocument(
        CommonDialog1, SineFile,
        {Combo1.Text(), BooleanWord(Option1.Value()), BooleanWord(Option2.Value()), Text1.Text(), Text2.Text()});
}

void Form12::PrintSine_Click() {
    if (Label3.Caption().empty()) {
        Owner().BeepBox("Nothing to Print!", style::Plain);
        return;
    }
    PrintWindow(*this, Picture2, CommonDialog1);
}

void Form12::Copy_Click() {
    CopyActiveBox(*this, Boxes);
}

void Form12::Paste_Click() {
    PasteIntoActiveBox(*this, Boxes);
}

void Form12::Edit_Click() {
    FollowClipboard(Paste);
}

}  // namespace brindlex::sineplate
