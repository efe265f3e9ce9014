// Bolt Circles with arbitrary documents: the first line of the input is what to do with the document afterwards, a
// letter each; the rest is the document. Whatever it holds, no handler lets a fault out, the Units menu is open exactly
// while coordinates are shown, nothing drawn is infinite, and what is saved comes back.
#include "formfuzz.h"

#include "boltcircle/form8.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

namespace {

using namespace brindlex;
using boltcircle::Form8;

void CheckForm(const Form8& form, const DrivenRun& run) {
    DemandNoFault(form, run);
    Demand(form.Units.Enabled() == (form.Check1.Value() == 0));
    DemandFinite(form.Picture1);
}

std::vector<std::string> EntriesOf(const Form8& form) {
    return {form.Text1.Text(), form.Text2.Text(), form.Text3.Text(), form.Text4.Text(), form.Text5.Text()};
}

void Open(Form8& form, DrivenRun& run, const std::string& name) {
    run.Files.emplace_back(name);
    form.OpenFile.FireClick();
}

/// Saves, and opens what was saved: a form with a report has no empty entry, so all of it comes back.
void SaveAndOpen(Form8& form, DrivenRun& run) {
    if (form.Text6.Text().empty()) {
        return;
    }
    const std::vector<std::string> entries = EntriesOf(form);
    for (const std::string& entry : entries) {
        if (entry.empty() || entry.find_first_of("\r\n") != std::string::npos) {
            return;
        }
    }
    const std::string report = form.Text6.Text();
    run.Files.emplace_back("saved.bcf");
    form.SaveFileAs.FireClick();
    form.Text1.Text("7");
    Open(form, run, "saved.bcf");
    Demand(EntriesOf(form) == entries);
    Demand(form.Text6.Text() == report);
}

void Act(Form8& form, DrivenRun& run, char letter) {
    MenuItem* const items[] = {
        &form.Inches2Millimeters, &form.Millimeters2Inches, &form.Copy, &form.Paste, &form.RoundNumbers, &form.Both};
    switch (letter) {
        case 'a':
            form.Check1.Value(1 - form.Check1.Value());
            break;
        case 'c':
            form.Command1.Value(true);
            break;
        case 's':
            SaveAndOpen(form, run);
            break;
        case 'd':
            form.Text5.Text(form.Text5.Text() + "\xB0  30'  15\"");
            break;
        default:
            ChooseWithPrinter(*items[static_cast<unsigned char>(letter) % std::size(items)], run);
    }
    CheckForm(form, run);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return RunDocument<Form8>({"Form8", "input.bcf", Open, CheckForm, Act}, data, size);
}
