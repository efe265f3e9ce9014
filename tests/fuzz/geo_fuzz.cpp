// The drawing board with arbitrary drawing files: the first line of the input is what to do with the drawing
// afterwards, a letter each; the rest is the file. Whatever it holds, no handler lets a fault out, nothing drawn is
// infinite, and what is saved comes back.
#include "formfuzz.h"

#include "geometry/form17.h"
#include "geometry/form18.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

using namespace brindlex;
using geometry::Form17;

constexpr std::size_t MostActs = 8;
constexpr std::size_t LongestFile = 20000;

void CheckForm(const Form17& form, const DrivenRun& run) {
    DemandNoFault(form, run);
    Demand(form.InchTo.Checked() != form.MM.Checked());
    DemandFinite(form.Picture1);
}

void Press(Form17& form, const char* tool) {
    if (form.Toolbar1.Buttons(tool).Enabled) {
        form.Toolbar1.PressByPerson(tool);
    }
}

void Act(Form17& form, char act) {
    switch (act) {
        case 'e':
            Press(form, "PotInt");
            form.Command1.Value(true);
            break;
        case 'd':
            Press(form, "ID");
            form.Frame12.Option11.Value(true);
            form.Frame12.Combo3.ListIndex(0);
            form.Command1.Value(true);
            break;
        case 'h':
            Press(form, "ID");
            form.Frame12.Combo5.ListIndex(1);
            form.Frame12.Option10.Value(true);
            form.Command1.Value(true);
            break;
        case 'm':
            form.ChooseByPerson(form.MM);
            break;
        case 'i':
            form.ChooseByPerson(form.InchTo);
            break;
        case 'f':
            Press(form, "Fit");
            break;
        default: {
            Form& report = form.Owner().Get("Form18");
            report.Load();
            report.Unload();
            break;
        }
    }
}

void SavedComesBack(Form17& form, DrivenRun& run) {
    const auto before = form.Work.Live().Lines();
    run.Files.emplace_back("saved.geo");
    form.ChooseByPerson(form.SaveAs);
    run.Files.emplace_back("saved.geo");
    form.ChooseByPerson(form.OpenIt);
    Demand(form.Work.Live().Lines() == before);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder scratch;
    std::string_view drawing = TextOf(data, std::min(size, LongestFile));
    const std::string_view acts = TakeUpTo(drawing, '\n').substr(0, MostActs);
    static_cast<void>(scratch.Put("a.geo", drawing));
    FreshProgram fresh(Folder(scratch.Path()));
    DrivenRun& run = fresh.Run();
    auto& form = fresh.Shown<Form17>("Form17");
    run.Files.emplace_back("a.geo");
    form.ChooseByPerson(form.OpenIt);
    CheckForm(form, run);
    for (const char act : acts) {
        Act(form, act);
        CheckForm(form, run);
    }
    SavedComesBack(form, run);
    CheckForm(form, run);
    form.Unload();
    return 0;
}
