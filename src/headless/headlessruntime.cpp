// The runtime without a screen.
#include "headless/headlessruntime.h"

#include "frame/form.h"

#include <memory>

namespace brindlex {

namespace {

// 8.5 by 11 inches, less a quarter inch on each side.
constexpr double PageWidth = 8.0 * TwipsPerInch;
constexpr double PageHeight = 10.5 * TwipsPerInch;

}  // namespace

void HeadlessRuntime::RunModal(Form& form) {
    if (run_.ModalLoop) {
        run_.ModalLoop(form);
    } else {
        form.Hide();
    }
}

void HeadlessRuntime::PopupMenu(Form& /*form*/, MenuItem& menu) {
    run_.Popup = menu.Name();
}

void HeadlessRuntime::SetWindowRegion(Form& form, int left, int top, int right, int bottom) {
    run_.Regions.push_back({form.Name(), left, top, right, bottom});
}

Snapshot HeadlessRuntime::CaptureClient(Form& form) {
    Snapshot client;
    client.Width = form.InnerWidth();
    client.Height = form.InnerHeight();
    client.Scale = {0, 0, client.Width, client.Height};
    client.Drawn = std::make_shared<const Drawing>();
    return client;
}

Answer HeadlessRuntime::ShowMessageBox(const MessageBox& box) {
    return run_.AnswerBox(box);
}

std::string HeadlessRuntime::ShowInputBox(const InputBox& /*box*/) {
    return run_.AnswerInput();
}

std::optional<std::string> HeadlessRuntime::ShowFileDialog(const DialogRequest& request) {
    return run_.AnswerFile(request);
}

std::optional<PrinterChoice> HeadlessRuntime::ShowPrinterDialog(const DialogRequest& request) {
    return run_.AnswerPrinter(request);
}

void HeadlessRuntime::Beep() {
    ++run_.Beeps;
}

std::optional<std::string> HeadlessRuntime::ClipboardText() {
    return clipboard_;
}

void HeadlessRuntime::ClipboardText(const std::string& text) {
    clipboard_ = text;
}

void HeadlessRuntime::ClearClipboard() {
    clipboard_.reset();
}

bool HeadlessRuntime::StartProgram(const std::string& name) {
    run_.Started.push_back(name);
    return true;
}

bool HeadlessRuntime::OpenAddress(const std::string& address) {
    run_.Started.push_back(address);
    return true;
}

Size HeadlessRuntime::PrintableSize(PaperOrientation orientation) {
    return orientation == PaperOrientation::Portrait ? Size{PageWidth, PageHeight} : Size{PageHeight, PageWidth};
}

void HeadlessRuntime::PrintDocument(const PrintedDocument& document) {
    run_.Printed.push_back(document);
}

void HeadlessRuntime::SaveToolbar(Toolbar& /*toolbar*/, const std::string& key, const std::string& subkey,
                                  const std::string& value) {
    run_.Toolbars.push_back({key, subkey, value});
}

}  // namespace brindlex
