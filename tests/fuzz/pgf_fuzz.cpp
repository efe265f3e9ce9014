// Polygons with arbitrary documents: the first line of the input is what to do with the document afterwards, a letter
// each; the rest is the document. Whatever it holds, no handler lets a fault out, the options go with the number of
// sides, what is drawn is finite, and what is saved comes back.
#include "formfuzz.h"
#include "polygon/form16.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

namespace {

using namespace brindlex;
using polygon::Form16;

int FigureSides(const Form16& form) {
    int lines = 0;
    for (const DrawItem& item : form.Picture1.Drawn().Items()) {
        DemandFinite({item.Radius});
        lines += item.Kind == DrawKind::Line && item.Ink == Blue ? 1 : 0;
    }
    return lines;
}

void CheckForm(const Form16& form, const DrivenRun& run) {
    DemandNoFault(form, run);
    Demand(form.Option4.Value() != form.Option5.Value());
    Demand(form.Option1.Value() + form.Option2.Value() + form.Option3.Value() == 1);
    DemandFinite(form.Picture1);
    const int sides = FigureSides(form);
    Demand(sides == 0 || (sides >= 3 && sides <= 36));
    if (sides != 0) {
        Demand(form.Option1.Enabled() == (sides % 2 == 0) && form.Option2.Enabled() == (sides % 2 == 1));
        Demand((form.Option1.Enabled() || !form.Option1.Value()) && (form.Option2.Enabled() || !form.Option2.Value()));
    }
    Demand(form.Text2.Text().empty() == form.Label1.Caption().empty());
    Demand(form.Text2.Text().empty() || sides != 0);
}

std::vector<std::string> StateOf(const Form16& form) {
    std::vector<std::string> state{form.Combo1.Text(), form.Text1.Text(), form.Text2.Text(), form.Label1.Caption()};
    for (const OptionButton* const option :
         {&form.Option1, &form.Option2, &form.Option3, &form.Option4, &form.Option5}) {
        state.emplace_back(option->Value() ? "set" : "");
    }
    return state;
}

void Open(Form16& form, DrivenRun& run, const std::string& name) {
    run.Files.emplace_back(name);
    form.OpenFile.FireClick();
}

void SaveAndOpen(Form16& form, DrivenRun& run) {
    if (form.Text2.Text().empty()) {
        return;
    }
    const std::vector<std::string> state = StateOf(form);
    run.Files.emplace_back("saved.pgf");
    form.SaveFileAs.FireClick();
    form.Combo1.Text(" 11");
    form.Text1.Text("7");
    form.Option3.Value(true);
    Open(form, run, "saved.pgf");
    Demand(StateOf(form) == state);
}

void Act(Form16& form, DrivenRun& run, char letter) {
    OptionButton* const options[] = {&form.Option1, &form.Option2, &form.Option3, &form.Option4, &form.Option5};
    MenuItem* const items[] = {&form.Inch2MM, &form.MM2Inch, &form.Copy, &form.Print};
    if (letter == 's') {
        SaveAndOpen(form, run);
    } else if (letter >= '1' && letter <= '5') {
        OptionButton& option = *options[letter - '1'];
        option.Value(option.Enabled() || option.Value());
    } else if (letter == 'c') {
        form.Command1.Value(true);
    } else if (letter >= 'A' && letter <= 'Z') {
        form.Combo1.Text(" " + std::to_string(letter - 'A' + 3));
        form.Text1.Text("1");
    } else {
        ChooseWithPrinter(*items[static_cast<unsigned char>(letter) % std::size(items)], run);
    }
    CheckForm(form, run);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return RunDocument<Form16>({"Form16", "input.pgf", Open, CheckForm, Act}, data, size);
}
