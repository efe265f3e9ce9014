// The Minutes and Seconds dialogs: their rows, the fraction cut at the start, OK and Cancel.
#include "services/minutesdialog.h"

#include "frame/program.h"
#include "frame/text.h"
#include "services/activebox.h"
#include "services/degrees.h"
#include "services/filters.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace brindlex {

struct MinutesRow {
    std::string_view Name;
    std::string_view Owner;
    std::string_view Label;   ///< empty where the angle's name stands
    bool BelowRight = false;  ///< refuses a right angle and more
};

namespace {

constexpr double MinutesWidth = 4665;
constexpr double MinutesHeight = 1695;
constexpr double RightAngle = 90;

// The double quote at the end belongs to the message: intended.
constexpr const char* TooManyMinutes =
    "These Values Will Not Work. Neither Minutes NOR\r\nSeconds Can Be Equal To, Or Greater Than 60.\"";
constexpr const char* TooManyDegrees =
    "The Sum Of These Values Is Equal To, Or Greater Than 90.\r\nPlease Re-Check Your Information And Try Again.";
constexpr const char* OutOfRange = "The Sum Of These Values Is Too Large.";

constexpr MinutesRow MinutesRows[] = {
    {"Form3", "Form1", "", true},
    {"Form4", "Form2", ""},
    {"Form13", "Form12", ""},
    {"Form15", "Form8", "Degrees"},
};

/// The number in a box; infinite where it passes the range of a double, so that it fails the limits.
double NumberIn(const TextBox& box) {
    double number = std::numeric_limits<double>::infinity();
    Guarded([&] { number = Val(box.Text()); });
    return number;
}

}  // namespace

MinutesSecondsDialog::MinutesSecondsDialog(Program& program, const MinutesRow& row)
    : Form(program, std::string(row.Name), MinutesWidth, MinutesHeight), row_(row) {
    DialogOf(std::string(row.Owner));
    Command1.Default(true);
    Command2.Cancel(true);
    Command1.Click.Bind(this, &MinutesSecondsDialog::Command1_Click);
    Command2.Click.Bind(this, &MinutesSecondsDialog::Command2_Click);
    for (TextBox* const box : {&Text1, &Text2, &Text3}) {
        BindFocus(*box);
    }
    BindFilters(*this);
}

AngleOwner& MinutesSecondsDialog::Angles() const {
    auto* const angles = dynamic_cast<AngleOwner*>(&Owner().Get(row_.Owner));
    if (angles == nullptr) {
        throw Fault(FaultNumber::BadArgument, std::string(row_.Owner) + " has no angles");
    }
    return *angles;
}

AngleField MinutesSecondsDialog::Field() const {
    const std::vector<AngleField> fields = Angles().AngleFields();
    const auto checked =
        std::find_if(fields.begin(), fields.end(), [](const AngleField& field) { return field.Check->Value() == 1; });
    return checked != fields.end() ? *checked : fields.front();
}

void MinutesSecondsDialog::Form_Load() {
    Caption(Owner().Shared().VerCaption + "Add Minutes And Seconds");
    const AngleField field = Field();
    Label1.Caption(row_.Label.empty() ? field.Name : std::string(row_.Label));
    Text1.Text(field.Box->Text());
    if (const int point = InStr(Text1.Text(), "."); point != 0) {
        // The owner's box loses its fraction at once, and Cancel does not bring it back: intended.
        Text1.Text(brindlex::Left(Text1.Text(), point - 1));
        Text1.SelStart(Len(Text1.Text()));
        field.Box->Text(Text1.Text());
    }
    if (!Text1.Text().empty()) {
        Text2.TabIndex(0);
        Text3.TabIndex(1);
        Command1.TabIndex(2);
        Command2.TabIndex(3);
    }
    PlaceOnScreen();
}

void MinutesSecondsDialog::CloseBox() {
    Command2_Click();
}

void MinutesSecondsDialog::Command1_Click() {
    const double minutes = NumberIn(Text2);
    const double seconds = NumberIn(Text3);
    if (minutes >= PerWhole || seconds >= PerWhole) {
        Owner().MsgBox(TooManyMinutes, style::Plain);
        return;
    }
    const double angle = NumberIn(Text1) + minutes / PerWhole + seconds / SecondsPerDegree;
    if (row_.BelowRight && angle >= RightAngle) {
        Owner().MsgBox(TooManyDegrees, style::Plain);
        return;
    }
    if (!std::isfinite(angle)) {
        Owner().MsgBox(OutOfRange, style::Plain);
        return;
    }
    const AngleField field = Field();
    field.Box->Text(Mid(Str(angle), 2));
    field.Check->Value(0);
    Unload();
}

void MinutesSecondsDialog::Command2_Click() {
    for (const AngleField& field : Angles().AngleFields()) {
        field.Check->Value(0);
    }
    Hide();
    Unload();
}

std::unique_ptr<Form> MakeMinutesSecondsDialog(Program& program, std::string_view name) {
    const auto* const row = std::find_if(std::begin(MinutesRows), std::end(MinutesRows),
                                         [&](const MinutesRow& candidate) { return candidate.Name == name; });
    if (row == std::end(MinutesRows)) {
        throw Fault(FaultNumber::BadArgument, "There is no Minutes and Seconds dialog " + std::string(name));
    }
    return std::make_unique<MinutesSecondsDialog>(program, *row);
}

}  // namespace brindlex
