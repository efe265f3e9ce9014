// Speeds + Feeds with an arbitrary store: the first line of the input is what to do, a letter each; the second is what
// is entered, split at the bars; the rest is the store. Whatever they hold, no handler lets a fault out, a save loses
// no line but the one that it moves, and what is saved is found again.
#include "formfuzz.h"

#include "frame/program.h"
#include "speedsfeeds/form19.h"
#include "speedsfeeds/record.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace brindlex;
using speedsfeeds::Form19;

constexpr std::size_t MostActs = 12;
constexpr const char* StoreName = "Mill.dat";

/// The lines of the store that are not empty.
std::vector<std::string> Lines(const Folder& folder) {
    std::vector<std::string> lines;
    InputFile file = folder.OpenInput(StoreName);
    while (!file.Eof()) {
        if (std::string line = file.LineInput(); !line.empty()) {
            lines.push_back(std::move(line));
        }
    }
    return lines;
}

void CheckForm(const Form19& form, const DrivenRun& run) {
    DemandNoFault(form, run);
    Demand(form.InchTo.Checked() != form.MMTo.Checked());
    Demand(!form.ConvDat.Checked());
    Demand(form.Text1.Locked() == !form.DataOp.Checked());
    Demand(form.Text17.Locked() == !form.DataOp.Checked());
}

void Enter(Form19& form, std::string_view texts) {
    TextBox* const boxes[] = {&form.Text17, &form.Text18, &form.Text19, &form.Text1, &form.Text2,
                              &form.Text3,  &form.Text4,  &form.Text5,  &form.Text6, &form.Text7,
                              &form.Text8,  &form.Text9,  &form.Text14, &form.Text15};
    for (TextBox* const box : boxes) {
        box->Text(std::string(TakeUpTo(texts, '|')));
    }
}

void Choose(ComboBox& combo, unsigned char letter) {
    if (combo.ListCount() > 0) {
        combo.ChooseByPerson(letter % combo.ListCount());
    }
}

/// Presses the button; in enter-data mode the store gets at most the record, at its end, and loses nothing else.
void Press(Form19& form, const Folder& folder) {
    const speedsfeeds::Record record{form.Text17.Text(), form.Text18.Text(), form.Text19.Text(),
                                     form.Text1.Text(),  form.Text2.Text(),  form.Text9.Text()};
    const std::vector<std::string> before = Lines(folder);
    form.Command1.Value(true);
    std::vector<std::string> after = Lines(folder);
    if (after == before) {
        return;
    }
    Demand(form.DataOp.Checked() && !after.empty());
    const std::string added = after.back();
    after.pop_back();
    std::vector<std::string> kept = before;
    std::erase(kept, added);
    Demand(after == kept);
    Demand(added.find(record.Tool.substr(0, record.Tool.find_first_of("\r\n"))) != std::string::npos);
}

void Act(Form19& form, DrivenRun& run, const Folder& folder, char letter, std::string_view texts) {
    const auto code = static_cast<unsigned char>(letter);
    switch (letter) {
        case 'e':
            Enter(form, texts);
            break;
        case 'd':
            form.DataOp.FireClick();
            break;
        case 'u':
            form.MMTo.FireClick();
            break;
        case 'c':
            form.ConvDat.FireClick();
            break;
        case 'l':
            form.Combo1.Text(form.Combo1.Text() == "Mill" ? "Lathe" : "Mill");
            break;
        case 'x':
            run.Answers.push_back(Answer::Yes);
            form.DelDat.FireClick();
            run.Answers.clear();
            break;
        case 'a':
            form.Command2.Value(true);
            break;
        case 'p':
            if (form.Combo1.Text() == "Mill") {
                Press(form, folder);
            } else {
                form.Command1.Value(true);
            }
            break;
        default:
            Choose(*std::array{&form.Combo2, &form.Combo3, &form.Combo4}[code % 3], code / 3);
    }
    CheckForm(form, run);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder scratch;
    static const Folder folder(scratch.Path());
    std::string_view store = TextOf(data, size);
    const std::string_view acts = TakeUpTo(store, '\n').substr(0, MostActs);
    const std::string_view texts = TakeUpTo(store, '\n');
    static_cast<void>(scratch.Put(StoreName, store));

    FreshProgram fresh(folder);
    DrivenRun& run = fresh.Run();
    Program& program = fresh.Itself();
    program.Start();
    program.Get("Form11").GoTo("Form19");
    auto& form = dynamic_cast<Form19&>(program.Get("Form19"));
    form.Combo1.AddItem("Lathe");
    CheckForm(form, run);
    for (const char letter : acts) {
        Act(form, run, folder, letter, texts);
    }
    folder.KillIfThere("Lathe.dat");
    return 0;
}
