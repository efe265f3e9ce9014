// What fuzzers of whole forms share: a program of its own for each input, demands on any form, and one run of a form
// that opens documents.
#pragma once

#include "readfuzz.h"
#include "scratch.h"

#include "app/forms.h"
#include "frame/drivenrun.h"
#include "frame/menuitem.h"
#include "frame/picturebox.h"
#include "frame/program.h"
#include "headless/headlessruntime.h"
#include "services/minutesdialog.h"
#include "services/rounddialog.h"

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

/// A program of its own for one input, as a person finds it in a folder.
class FreshProgram {
public:
    explicit FreshProgram(const Folder& folder) : runtime_(run_, {1024, 768}), program_(runtime_, folder) {
        RegisterForms(program_);
    }

    [[nodiscard]] DrivenRun& Run() { return run_; }
    [[nodiscard]] Program& Itself() { return program_; }
    /// A form, on the screen.
    template <class Wanted>
    [[nodiscard]] Wanted& Shown(const char* name) {
        auto& form = dynamic_cast<Wanted&>(program_.Get(name));
        form.Show();
        return form;
    }

private:
    DrivenRun run_;
    HeadlessRuntime runtime_;
    Program program_;
};

/// The program goes on, and no box has told of a fault.
inline void DemandNoFault(const Form& form, const DrivenRun& run) {
    Demand(!form.Owner().Ended());
    for (const MessageBox& box : run.Boxes) {
        Demand(box.Text.find("Run-time error") == std::string::npos);
    }
}

inline void DemandFinite(const PictureBox& picture) {
    for (const DrawItem& item : picture.Drawn().Items()) {
        DemandFinite({item.X1, item.Y1, item.X2, item.Y2});
    }
}

/// Chooses an item, with a printer at hand if it wants one.
inline void ChooseWithPrinter(MenuItem& item, DrivenRun& run) {
    run.Printers.emplace_back(PrinterChoice{1, 0, 0});
    item.FireClick();
    run.Printers.clear();
    run.Printed.clear();
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
    std::string_view document = TextOf(data, size);
    const std::string_view acts = TakeUpTo(document, '\n').substr(0, MostActs);
    static_cast<void>(scratch.Put(fuzz.File, document));
    FreshProgram fresh(Folder(scratch.Path()));
    DrivenRun& run = fresh.Run();
    run.ModalLoop = [&](Form& dialog) { AnswerDialog(dialog, size); };
    auto& form = fresh.Shown<Calculator>(fuzz.Form);
    fuzz.Open(form, run, fuzz.File);
    fuzz.Check(form, run);
    for (const char letter : acts) {
        fuzz.Act(form, run, letter);
    }
    return 0;
}

}  // namespace brindlex
