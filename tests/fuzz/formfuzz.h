// What fuzzers of whole forms share: one run of a form that opens documents.
#pragma once

#include "readfuzz.h"
#include "scratch.h"

#include "app/forms.h"
#include "frame/drivenrun.h"
#include "frame/program.h"
#include "headless/headlessruntime.h"
#include "services/minutesdialog.h"
#include "services/rounddialog.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace brindlex {

/// Fills the small dialogs in and leaves them; the numbers come from the input.
inline void AnswerDialog(Form& dialog, std::size_t number) {
    if (auto* const round = dynamic_cast<RoundNumbersDialog*>(&dialog)) {
        round->Combo1.Text(std::to_string(1 + number % 15));
        round->Command1.Value(true);
    } else if (auto* const minutes = dynamic_cast<MinutesSecondsDialog*>(&dialog)) {
        minutes->Text2.Text(std::to_string(number % 70));
        minutes->Command1.Value(true);
        minutes->Command2.Value(true);
    }
}

/// How a calculator's documents are fuzzed. The first line of an input is what to do with the document afterwards, a
/// letter each; the rest is the document.
template <class Calculator>
struct DocumentFuzz {
    const char* Form;
    const char* File;
    void (*Open)(Calculator& form, DrivenRun& run, const std::string& name);
    void (*Check)(const Calculator& form, const DrivenRun& run);
    void (*Act)(Calculator& form, DrivenRun& run, char letter);
};

/// One input, in a program of its own.
template <class Calculator>
int RunDocument(const DocumentFuzz<Calculator>& fuzz, const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t MostActs = 8;
    static const ScratchFolder scratch;
    const std::string_view input = TextOf(data, size);
    const std::size_t end = std::min(input.find('\n'), input.size());
    static_cast<void>(scratch.Put(fuzz.File, input.substr(std::min(end + 1, input.size()))));
    DrivenRun run;
    run.ModalLoop = [&](Form& dialog) { AnswerDialog(dialog, size); };
    HeadlessRuntime runtime(run, {1024, 768});
    Program program(runtime, Folder(scratch.Path()));
    RegisterForms(program);
    auto& form = dynamic_cast<Calculator&>(program.Get(fuzz.Form));
    form.Show();
    fuzz.Open(form, run, fuzz.File);
    fuzz.Check(form, run);
    for (const char letter : input.substr(0, std::min(end, MostActs))) {
        fuzz.Act(form, run, letter);
    }
    return 0;
}

}  // namespace brindlex
