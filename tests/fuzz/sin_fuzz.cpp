// Sine Plates with arbitrary documents: the first line of the input is what to do with the document afterwards, a
// letter each; the rest is the document. Whatever it holds, no handler lets a fault out, one type is set, results stand
// with their unit only, and what is saved comes back.
#include "formfuzz.h"
#include "sineplate/form12.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace brindlex;
using sineplate::Form12;

constexpr std::string_view Digits = ".0123456789";

void CheckResult(const TextBox& box) {
    const std::string text = box.Text();
    const std::size_t start = text.starts_with('-') ? 1 : 0;
    Demand(text.empty() || (text.size() > start && text.find_first_not_of(Digits, start) == std::string::npos));
}

void CheckForm(const Form12& form, const DrivenRun& run) {
    DemandNoFault(form, run);
    Demand(form.Option1.Value() != form.Option2.Value());
    Demand(form.Text2.Visible() == form.Option2.Value());
    Demand(form.Text3.Text().empty() == form.Label7.Caption().empty());
    Demand(form.Text3.Visible() == !form.Text3.Text().empty());
    Demand(form.Text4.Text().empty() || form.Option2.Value());
    CheckResult(form.Text3);
    CheckResult(form.Text4);
}

std::vector<std::string> EntriesOf(const Form12& form) {
    return {form.Combo1.Text(), form.Text1.Text(), form.Option2.Value() ? form.Text2.Text() : ""};
}

void Open(Form12& form, DrivenRun& run, const std::string& name) {
    run.Files.emplace_back(name);
    form.OPenFile.FireClick();
}

/// Saves, and opens what was saved. Opening returns to inches, so that is where it starts.
void SaveAndOpen(Form12& form, DrivenRun& run) {
    if (form.Label7.Caption() != "Inches" || form.Combo1.Text().empty()) {
        return;
    }
    form.Command1.Value(true);
    const std::vector<std::string> entries = EntriesOf(form);
    const std::string result = form.Text3.Text() + " " + form.Text4.Text();
    if (form.Text3.Text().empty()) {
        return;
    }
    run.Files.emplace_back("saved.sin");
    form.SaveFileAs.FireClick();
    form.Text1.Text("7");
    Open(form, run, "saved.sin");
    Demand(EntriesOf(form) == entries);
    Demand(form.Text3.Text() + " " + form.Text4.Text() == result);
}

void Act(Form12& form, DrivenRun& run, char letter) {
    MenuItem* const items[] = {&form.Inches2Millimeters, &form.Millimeters2Inches, &form.Copy, &form.RoundNumbers,
                               &form.PrintSine};
    switch (letter) {
        case 'a':
            (form.Option1.Value() ? form.Option2 : form.Option1).Value(true);
            break;
        case 'c':
            form.Command1.Value(true);
            break;
        case 'd':
            form.Text1.Text(form.Text1.Text() + "\xB0  30'  15\"");
            break;
        case 'm':
            (form.Option1.Value() ? form.Check1 : form.Check2).Value(1);
            break;
        case 's':
            SaveAndOpen(form, run);
            break;
        default:
            ChooseWithPrinter(*items[static_cast<unsigned char>(letter) % std::size(items)], run);
    }
    CheckForm(form, run);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return RunDocument<Form12>({"Form12", "input.sin", Open, CheckForm, Act}, data, size);
}
