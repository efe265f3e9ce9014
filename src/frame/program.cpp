// The run of the program: forms on demand, boxes, the end.
#include "frame/program.h"

#include "frame/form.h"
#include "frame/scrollbar.h"

#include <algorithm>
#include <utility>

namespace brindlex {

namespace {

constexpr std::string_view MenuForm = "Form11";

}  // namespace

Answer MessageBox::DefaultAnswer() const {
    const bool second = (Style & style::SecondDefault) != 0;
    if ((Style & style::YesNo) != 0) {
        return second ? Answer::No : Answer::Yes;
    }
    return second && (Style & style::OkCancel) != 0 ? Answer::Cancel : Answer::Ok;
}

Program::Program(Runtime& runtime, Folder folder)
    : runtime_(runtime), folder_(std::move(folder)), printer_(runtime), clipboard_(runtime) {
    ScratchFile("geometry.dat");
}

Program::~Program() = default;

void Program::Register(const std::string& name, Factory factory) {
    factories_[name] = std::move(factory);
}

bool Program::Knows(std::string_view name) const {
    return factories_.find(name) != factories_.end();
}

Form& Program::Get(std::string_view name) {
    if (Form* const made = Find(name)) {
        return *made;
    }
    const auto factory = factories_.find(name);
    if (factory == factories_.end()) {
        throw Fault(FaultNumber::BadArgument, "There is no form " + std::string(name));
    }
    auto form = factory->second(*this);
    form->KeepDesign();
    return *(forms_[std::string(name)] = std::move(form));
}

Form* Program::Find(std::string_view name) const {
    const auto found = forms_.find(name);
    return found == forms_.end() ? nullptr : found->second.get();
}

void Program::Start() {
    Run("Program", "Start", [this] { Get(MenuForm).Show(); });
}

void Program::End() {
    ended_ = true;
    for (Form* const form : std::vector<Form*>(loaded_)) {
        runtime_.LetGo(*form);
    }
    runtime_.Quit();
    throw ProgramEnded{};
}

void Program::FatalFault(const Fault& fault) {
    if (failing_) {
        throw ProgramEnded{};
    }
    failing_ = true;
    MsgBox("Run-time error '" + std::to_string(static_cast<int>(fault.Number())) + "':\r\n\r\n" + fault.what());
    // Settings are kept and forms unloaded as at an orderly end; the menu form would end the program too early.
    for (Form* const form : std::vector<Form*>(loaded_)) {
        if (form->Name() != MenuForm) {
            try {
                form->Unload();
            } catch (const ProgramEnded&) {
                continue;
            }
        }
    }
    for (const std::string& name : scratchFiles_) {
        folder_.KillIfThere(name);
    }
    End();
}

void Program::PassTime(int milliseconds) {
    for (Form* const form : std::vector<Form*>(loaded_)) {
        for (Control* const control : form->Controls()) {
            if (auto* const timer = dynamic_cast<TimerControl*>(control)) {
                timer->Elapse(milliseconds);
            }
        }
    }
}

template <class Ask>
auto Program::WhileBoxStands(Ask&& ask) {
    const Boundary boundary(*this);
    ++boxes_;
    auto answer = std::forward<Ask>(ask)();
    --boxes_;
    if (ended_) {
        throw ProgramEnded{};
    }
    return answer;
}

Answer Program::MsgBox(const std::string& text, int boxStyle, const std::string& caption) {
    return WhileBoxStands([&] { return runtime_.ShowMessageBox({text, boxStyle, caption}); });
}

std::string Program::InputBox(const std::string& prompt, const std::string& title, const std::string& text) {
    return WhileBoxStands([&] { return runtime_.ShowInputBox({prompt, title, text}); });
}

Answer Program::BeepBox(const std::string& text, int boxStyle) {
    Beep();
    return MsgBox(text, boxStyle);
}

std::optional<std::string> Program::AskForFile(const DialogRequest& request) {
    return WhileBoxStands([&] { return runtime_.ShowFileDialog(request); });
}

std::optional<PrinterChoice> Program::AskForPrinter(const DialogRequest& request) {
    return WhileBoxStands([&] { return runtime_.ShowPrinterDialog(request); });
}

void Program::DoEvents() {
    {
        const Boundary boundary(*this);
        runtime_.DoEvents();
    }
    if (ended_) {
        throw ProgramEnded{};
    }
}

Size Program::Screen() {
    const Size pixels = runtime_.ScreenPixels();
    return {pixels.Width * TwipsPerPixel, pixels.Height * TwipsPerPixel};
}

int Program::GetSystemMetrics(int index) {
    const Size pixels = runtime_.ScreenPixels();
    return static_cast<int>(index == 0 ? pixels.Width : pixels.Height);
}

void Program::WinCalc() {
    if (!runtime_.StartProgram("CALC.EXE")) {
        BeepBox("No Calculator Program Was Found On This System");
    }
}

void Program::ShellExecute(const std::string& verb, const std::string& address) {
    if (verb == "open" && !runtime_.OpenAddress(address)) {
        BeepBox("No Program Was Found That Opens " + address);
    }
}

void Program::NoteLoaded(Form& form) {
    loaded_.push_back(&form);
}

void Program::NoteUnloaded(Form& form) {
    std::erase(loaded_, &form);
}

void Program::RunModal(Form& form) {
    modal_.push_back(&form);
    {
        const Boundary boundary(*this);
        runtime_.RunModal(form);
    }
    std::erase(modal_, &form);
    if (ended_) {
        throw ProgramEnded{};
    }
}

}  // namespace brindlex
