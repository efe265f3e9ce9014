// A runtime without windows for unit tests: it answers from the queues of a DrivenRun and records into it.
#pragma once

#include "frame/drivenrun.h"
#include "frame/form.h"
#include "frame/menuitem.h"
#include "frame/runtime.h"
#include "frame/scrollbar.h"

#include <memory>
#include <optional>
#include <string>

namespace brindlex {

/// What the fake hands out as the capture of a window.
class FakeImage : public WindowImage {
public:
    explicit FakeImage(std::string form) : Form(std::move(form)) {}
    std::string Form;
};

/// Keeps the contract of Runtime in the simplest way. A modal form is run by the ModalLoop of the run; where that is
/// not set, or leaves the form open, the form is hidden, so that no test can hang.
class FakeRuntime : public Runtime {
public:
    explicit FakeRuntime(DrivenRun& run, Size screen = {1024, 768}) : run_(run), screen_(screen) {}

    // What a test sets or reads besides the run.

    std::optional<std::string> Clipboard;  ///< its text
    Size Portrait = {11520, 15120};        ///< printable size in twips
    std::optional<Fault> PrinterRefusal;   ///< thrown instead of printing
    std::optional<Fault> PaperRefusal;     ///< thrown instead of telling the size of the paper
    bool ProgramsStart = true;             ///< whether other programs can be started
    int Quits = 0;
    int Events = 0;  ///< calls of DoEvents

    void ShowForm(Form& /*form*/) override {}
    void HideForm(Form& /*form*/) override {}
    void LetGo(Form& /*form*/) override {}
    void RunModal(Form& form) override {
        if (run_.ModalLoop) {
            run_.ModalLoop(form);
        }
        if (form.Visible()) {
            form.Hide();
        }
    }
    void Refresh(Form& /*form*/) override {}
    void FormChanged(Form& /*form*/) override {}
    void ControlChanged(Control& /*control*/, Aspect /*aspect*/) override {}
    void MenuChanged(MenuItem& /*item*/) override {}
    void PopupMenu(Form& /*form*/, MenuItem& menu) override { run_.Popup = menu.Name(); }
    void SetWindowRegion(Form& form, int left, int top, int right, int bottom) override {
        run_.Regions.push_back({form.Name(), left, top, right, bottom});
    }
    Snapshot CaptureClient(Form& form) override {
        Snapshot picture;
        picture.Width = form.InnerWidth();
        picture.Height = form.InnerHeight();
        picture.Window = std::make_shared<const FakeImage>(form.Name());
        return picture;
    }

    Answer ShowMessageBox(const MessageBox& box) override { return run_.AnswerBox(box); }
    std::string ShowInputBox(const InputBox& /*box*/) override { return run_.AnswerInput(); }
    std::optional<std::string> ShowFileDialog(const DialogRequest& request) override {
        return run_.AnswerFile(request);
    }
    std::optional<PrinterChoice> ShowPrinterDialog(const DialogRequest& request) override {
        return run_.AnswerPrinter(request);
    }

    void Beep() override { ++run_.Beeps; }
    std::optional<std::string> ClipboardText() override { return Clipboard; }
    void ClipboardText(const std::string& text) override { Clipboard = text; }
    void ClearClipboard() override { Clipboard.reset(); }
    Size ScreenPixels() override { return screen_; }
    bool StartProgram(const std::string& name) override { return Start(name); }
    bool OpenAddress(const std::string& address) override { return Start(address); }
    void DoEvents() override { ++Events; }
    Size PrintableSize(PaperOrientation orientation) override {
        if (PaperRefusal) {
            throw Fault(*PaperRefusal);
        }
        return orientation == PaperOrientation::Portrait ? Portrait : Size{Portrait.Height, Portrait.Width};
    }
    void PrintDocument(const PrintedDocument& document) override {
        if (PrinterRefusal) {
            throw Fault(*PrinterRefusal);
        }
        run_.Printed.push_back(document);
    }
    void SaveToolbar(Toolbar& /*toolbar*/, const std::string& key, const std::string& subkey,
                     const std::string& value) override {
        run_.Toolbars.push_back({key, subkey, value});
    }
    void RestoreToolbar(Toolbar& /*toolbar*/, const std::string& /*key*/, const std::string& /*subkey*/,
                        const std::string& /*value*/) override {}
    void Quit() override { ++Quits; }

private:
    bool Start(const std::string& what) {
        if (ProgramsStart) {
            run_.Started.push_back(what);
        }
        return ProgramsStart;
    }

    DrivenRun& run_;
    Size screen_;
};

}  // namespace brindlex
