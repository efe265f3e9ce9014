// The program: its forms, its shared state, its way to the platform. Tests make as many as they like.
#pragma once

#include "frame/dispatch.h"
#include "frame/printer.h"
#include "frame/runtime.h"
#include "frame/shared.h"
#include "frame/textfile.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

class Form;

/// The clipboard as the forms know it.
class ClipboardObject {
public:
    explicit ClipboardObject(Runtime& runtime) : runtime_(runtime) {}
    void Clear() { runtime_.ClearClipboard(); }
    void SetText(const std::string& text) { runtime_.ClipboardText(text); }
    /// Empty where it holds no text.
    [[nodiscard]] std::string GetText() { return runtime_.ClipboardText().value_or(std::string()); }
    /// Whether it holds a format; 1 is plain text, the only one known.
    [[nodiscard]] bool GetFormat(int format) { return format == 1 && runtime_.ClipboardText().has_value(); }

private:
    Runtime& runtime_;
};

class Program : public Dispatcher {
public:
    using Factory = std::function<std::unique_ptr<Form>(Program&)>;

    Program(Runtime& runtime, Folder folder);
    ~Program() override;

    // Forms by name. An instance is made on first use and kept for the whole run.

    void Register(const std::string& name, Factory factory);
    /// Whether such a form exists in this program.
    [[nodiscard]] bool Knows(std::string_view name) const;
    /// Makes the form on first use. Throws BadArgument for an unknown name.
    [[nodiscard]] Form& Get(std::string_view name);
    /// The form where it was made already, else null.
    [[nodiscard]] Form* Find(std::string_view name) const;
    /// The loaded forms, in the order of loading.
    [[nodiscard]] const std::vector<Form*>& Forms() const { return loaded_; }
    /// The modal form in front; null where there is none.
    [[nodiscard]] Form* ModalForm() const { return modal_.empty() ? nullptr : modal_.back(); }

    // The run.

    /// Loads and shows the menu form.
    void Start();
    /// Ends the program at once; does not return.
    [[noreturn]] void End();
    [[nodiscard]] bool Ended() const { return ended_; }
    /// Timers hold while a box or a modal form is up.
    [[nodiscard]] bool TimersHeld() const { return boxes_ > 0 || !modal_.empty(); }
    /// Lets time pass for the timers of all loaded forms.
    void PassTime(int milliseconds);

    // What the forms use.

    [[nodiscard]] SharedState& Shared() { return shared_; }
    [[nodiscard]] const SharedState& Shared() const { return shared_; }
    [[nodiscard]] const Folder& Files() const { return folder_; }
    void WorkIn(Folder folder) { folder_ = std::move(folder); }
    [[nodiscard]] PrinterObject& Printer() { return printer_; }
    [[nodiscard]] ClipboardObject& Clipboard() { return clipboard_; }
    [[nodiscard]] Runtime& Platform() { return runtime_; }
    Answer MsgBox(const std::string& text, int boxStyle = style::Exclamation, const std::string& caption = "Brindlex");
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text);
    void Beep() { runtime_.Beep(); }
    /// Beep, then the box.
    Answer BeepBox(const std::string& text, int boxStyle = style::Exclamation);
    void DoEvents();
    [[nodiscard]] std::optional<std::string> AskForFile(const DialogRequest& request);
    [[nodiscard]] std::optional<PrinterChoice> AskForPrinter(const DialogRequest& request);
    /// The screen's size in twips.
    [[nodiscard]] Size Screen();
    /// 0 the screen's width, 1 its height, in pixels.
    [[nodiscard]] int GetSystemMetrics(int index);
    [[nodiscard]] std::string ClipboardText() { return clipboard_.GetText(); }
    void ClipboardText(const std::string& text) { clipboard_.SetText(text); }
    /// Starts the platform's calculator; where none is installed a box says so.
    void WinCalc();
    void ShellExecute(const std::string& verb, const std::string& address);

    // For forms.

    void NoteLoaded(Form& form);
    void NoteUnloaded(Form& form);
    void RunModal(Form& form);
    /// Files that only a running program needs; deleted when it ends on a fault.
    void ScratchFile(std::string name) { scratchFiles_.push_back(std::move(name)); }

protected:
    [[nodiscard]] bool Over() const override { return ended_; }
    [[noreturn]] void FatalFault(const Fault& fault) override;

private:
    template <class Ask>
    auto WhileBoxStands(Ask&& ask);

    Runtime& runtime_;
    Folder folder_;
    SharedState shared_;
    PrinterObject printer_;
    ClipboardObject clipboard_;
    std::map<std::string, Factory, std::less<>> factories_;
    std::map<std::string, std::unique_ptr<Form>, std::less<>> forms_;
    std::vector<Form*> loaded_;
    std::vector<Form*> modal_;
    std::vector<std::string> scratchFiles_;
    int boxes_ = 0;
    bool ended_ = false;
    bool failing_ = false;
};

}  // namespace brindlex
