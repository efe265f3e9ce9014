// The runtime without a screen: it answers boxes and dialogs from the queues of a driven run, records what reaches the
// world, and keeps a clipboard of its own. Nothing that it does is seen or heard.
// Units: the screen in pixels, pages in twips.
#pragma once

#include "frame/drivenrun.h"
#include "frame/runtime.h"

#include <optional>
#include <string>

namespace brindlex {

class HeadlessRuntime : public Runtime {
public:
    /// The run outlives the runtime.
    HeadlessRuntime(DrivenRun& run, Size screenPixels) : run_(run), screen_(screenPixels) {}

    void ShowForm(Form& /*form*/) override {}
    void HideForm(Form& /*form*/) override {}
    void LetGo(Form& /*form*/) override {}
    /// Hands over to the run's ModalLoop; without one the form is hidden at once, so that nothing waits for ever.
    void RunModal(Form& form) override;
    void Refresh(Form& /*form*/) override {}
    void FormChanged(Form& /*form*/) override {}
    void ControlChanged(Control& /*control*/, Aspect /*aspect*/) override {}
    void MenuChanged(MenuItem& /*item*/) override {}
    /// Records the menu; nothing is chosen from it.
    void PopupMenu(Form& form, MenuItem& menu) override;
    void SetWindowRegion(Form& form, int left, int top, int right, int bottom) override;
    /// An empty picture of the form's inner size.
    Snapshot CaptureClient(Form& form) override;

    Answer ShowMessageBox(const MessageBox& box) override;
    std::string ShowInputBox(const InputBox& box) override;
    std::optional<std::string> ShowFileDialog(const DialogRequest& request) override;
    std::optional<PrinterChoice> ShowPrinterDialog(const DialogRequest& request) override;

    void Beep() override;
    std::optional<std::string> ClipboardText() override;
    void ClipboardText(const std::string& text) override;
    void ClearClipboard() override;
    Size ScreenPixels() override { return screen_; }
    bool StartProgram(const std::string& name) override;
    bool OpenAddress(const std::string& address) override;
    void DoEvents() override {}
    /// Letter with margins of a quarter inch.
    Size PrintableSize(PaperOrientation orientation) override;
    void PrintDocument(const PrintedDocument& document) override;
    void SaveToolbar(Toolbar& toolbar, const std::string& key, const std::string& subkey,
                     const std::string& value) override;
    /// There is no store to bring a layout back from: the toolbar stays as it is.
    void RestoreToolbar(Toolbar& /*toolbar*/, const std::string& /*key*/, const std::string& /*subkey*/,
                        const std::string& /*value*/) override {}
    void Quit() override {}

private:
    DrivenRun& run_;
    Size screen_;
    std::optional<std::string> clipboard_;
};

}  // namespace brindlex
