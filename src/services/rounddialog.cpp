// The Round Numbers dialogs: their rows, OK and Cancel.
#include "services/rounddialog.h"

#include "frame/program.h"
#include "frame/text.h"
#include "services/filters.h"

#include <algorithm>
#include <string>

namespace brindlex {

struct RoundRow {
    std::string_view Name;
    std::string_view Owner;
    std::string_view Label;
    std::string SharedState::*Digits = nullptr;  ///< null for Sine Plates, whose digits are an integer
};

namespace {

constexpr double RoundWidth = 4365;
constexpr double RoundHeight = 1455;
constexpr int MostDigits = 15;
constexpr std::string_view SineDigits = "4";

constexpr RoundRow RoundRows[] = {
    {"Form5", "Form1", "Round To", &SharedState::DigitsR},
    {"Form6", "Form2", "Round To", &SharedState::DigitsO},
    {"Form9", "Form8", "Round Numbers To", &SharedState::DigitsB},
    {"Form14", "Form12", "Round to "},
};

}  // namespace

RoundNumbersDialog::RoundNumbersDialog(Program& program, const RoundRow& row)
    : Form(program, std::string(row.Name), RoundWidth, RoundHeight), row_(row) {
    DialogOf(std::string(row.Owner));
    Label1.Caption(std::string(row.Label));
    Label1.Align(Label::Alignment::Right);
    for (int digits = 1; digits <= MostDigits; ++digits) {
        Combo1.AddItem(std::to_string(digits));
    }
    Combo1.ListOnly(true);
    Command1.Default(true);
    Command2.Cancel(true);
    Command1.Click.Bind(this, &RoundNumbersDialog::Command1_Click);
    Command2.Click.Bind(this, &RoundNumbersDialog::Command2_Click);
    BindFilters(*this);
}

void RoundNumbersDialog::Form_Load() {
    const SharedState& shared = Owner().Shared();
    Caption(shared.VerCaption + "Round Numbers");
    Combo1.Text(row_.Digits != nullptr ? shared.*row_.Digits : std::string(SineDigits));
    PlaceOnScreen();
}

void RoundNumbersDialog::CloseBox() {
    Command2_Click();
}

void RoundNumbersDialog::Command1_Click() {
    SharedState& shared = Owner().Shared();
    if (row_.Digits != nullptr) {
        shared.*row_.Digits = Combo1.Text();
    } else {
        shared.DigitsS = CInt(Val(Combo1.Text()));
    }
    Hide();
}

void RoundNumbersDialog::Command2_Click() {
    SharedState& shared = Owner().Shared();
    if (row_.Digits != nullptr) {
        // Cancel on Oblique Triangles and Bolt Circles changes how Right Triangles round: intended.
        shared.DigitsR = shared.*row_.Digits;
    }
    Hide();
}

std::unique_ptr<Form> MakeRoundNumbersDialog(Program& program, std::string_view name) {
    const auto* const row = std::find_if(std::begin(RoundRows), std::end(RoundRows),
                                         [&](const RoundRow& candidate) { return candidate.Name == name; });
    if (row == std::end(RoundRows)) {
        throw Fault(FaultNumber::BadArgument, "There is no Round Numbers dialog " + std::string(name));
    }
    return std::make_unique<RoundNumbersDialog>(program, *row);
}

}  // namespace brindlex
