// The runtime of real windows: forms, boxes and the rest of the world.
#include "desktop/desktopruntime.h"

#include "desktop/boxes.h"
#include "desktop/launcher.h"
#include "desktop/pixels.h"
#include "desktop/texts.h"
#include "desktop/toolbarstore.h"
#include "desktop/windowcapture.h"
#include "frame/program.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QEventLoop>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace brindlex {

DesktopRuntime::~DesktopRuntime() {
    for (const auto& [form, window] : windows_) {
        delete window;
    }
}

FormWindow* DesktopRuntime::WindowOf(const Form& form) const {
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second;
}

// The window that boxes stand in front of; null where nothing is open.
QWidget* DesktopRuntime::Front() {
    ShowWaiting();
    return shown_.empty() ? nullptr : WindowOf(*shown_.back());
}

void DesktopRuntime::BringForward() {
    for (const Form* const form : shown_) {
        FormWindow* const window = WindowOf(*form);
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
        window->activateWindow();
    }
}

void DesktopRuntime::ShowForm(Form& form) {
    ShowWaiting();
    FormWindow*& window = windows_[&form];
    if (window == nullptr) {
        window = new FormWindow(form, mirror_, run_ == nullptr ? Hands::Person : Hands::Script);
        window->TellPicturesBy(teller_);
    }
    std::erase(shown_, &form);
    shown_.push_back(&form);
    waiting_ = window;
    QTimer::singleShot(0, window, [this] { ShowWaiting(); });
}

void DesktopRuntime::ShowWaiting() {
    FormWindow* const window = waiting_;
    waiting_ = nullptr;
    if (window == nullptr || window->Released()) {
        return;
    }
    const Mirror::Write write(mirror_);
    window->show();
    window->raise();
    window->activateWindow();
}

void DesktopRuntime::TellReaders() {
    for (const auto& [form, window] : windows_) {
        window->TellReaders();
    }
}

void DesktopRuntime::LeaveLoopsOf(const Form& form) {
    for (const ModalRun& run : modal_) {
        if (run.form == &form && run.loop != nullptr) {
            run.loop->quit();
        }
    }
}

void DesktopRuntime::HideForm(Form& form) {
    std::erase(shown_, &form);
    if (FormWindow* const window = WindowOf(form)) {
        const Mirror::Write write(mirror_);
        if (waiting_ == window) {
            waiting_ = nullptr;
        }
        window->hide();
    }
    LeaveLoopsOf(form);
}

void DesktopRuntime::LetGo(Form& form) {
    HideForm(form);
    if (FormWindow* const window = WindowOf(form)) {
        windows_.erase(&form);
        window->Release();
    }
}

void DesktopRuntime::RunModal(Form& form) {
    FormWindow* const window = WindowOf(form);
    if (window == nullptr || !form.Visible() || over_) {
        return;
    }
    if (waiting_ != window) {
        // It had to be seen before it was known to be modal.
        const Mirror::Write write(mirror_);
        window->hide();
        waiting_ = window;
    }
    window->setWindowModality(Qt::ApplicationModal);
    if (shown_.size() > 1) {
        window->winId();
        window->windowHandle()->setTransientParent(WindowOf(*shown_[shown_.size() - 2])->windowHandle());
    }
    const QPointer<FormWindow> stands(window);
    ShowWaiting();
    if (run_ != nullptr) {
        run_->ModalLoop(form);
    } else {
        QEventLoop loop;
        modal_.push_back({&form, &loop});
        if (form.Visible()) {
            loop.exec();
        }
        modal_.pop_back();
    }
    if (stands) {
        stands->setWindowModality(Qt::NonModal);
    }
}

void DesktopRuntime::Refresh(Form& form) {
    ShowWaiting();
    if (FormWindow* const window = WindowOf(form)) {
        window->repaint();
    }
}

void DesktopRuntime::FormChanged(Form& form) {
    if (FormWindow* const window = WindowOf(form)) {
        window->MirrorForm();
    }
}

void DesktopRuntime::ControlChanged(Control& control, Aspect aspect) {
    if (FormWindow* const window = WindowOf(control.Parent())) {
        window->MirrorControl(control, aspect);
    }
}

void DesktopRuntime::MenuChanged(MenuItem& item) {
    if (FormWindow* const window = WindowOf(item.Parent())) {
        window->MirrorMenu(item);
    }
}

void DesktopRuntime::PopupMenu(Form& form, MenuItem& menu) {
    FormWindow* const window = WindowOf(form);
    if (run_ != nullptr) {
        run_->Popup = menu.Name();
    }
    if (window == nullptr) {
        return;
    }
    window->Menus().PopUp(menu, QCursor::pos());
    if (QMenu* const shown = window->Menus().MenuOf(menu); shown != nullptr && run_ != nullptr) {
        // A script chooses by the menu bar.
        shown->close();
    }
}

void DesktopRuntime::SetWindowRegion(Form& form, int left, int top, int right, int bottom) {
    if (run_ != nullptr) {
        run_->Regions.push_back({form.Name(), left, top, right, bottom});
    }
    if (FormWindow* const window = WindowOf(form)) {
        window->CutTo(QRect(QPoint(left, top), QSize(right - left, bottom - top)));
    }
}

Snapshot DesktopRuntime::CaptureClient(Form& form) {
    ShowWaiting();
    FormWindow* const window = WindowOf(form);
    Snapshot snapshot = window == nullptr ? Snapshot() : CaptureWidget(*window->Client());
    // The exact size, not the one in whole pixels.
    snapshot.Width = form.InnerWidth();
    snapshot.Height = form.InnerHeight();
    return snapshot;
}

QString DesktopRuntime::NextBoxPicture() {
    ++boxes_;
    return boxPictures_.isEmpty() ? QString() : QStringLiteral("%1-%2.png").arg(boxPictures_).arg(boxes_);
}

Answer DesktopRuntime::ShowMessageBox(const MessageBox& box) {
    if (run_ == nullptr) {
        return AskMessageBox(Front(), box, std::nullopt);
    }
    return AskMessageBox(Front(), box, run_->AnswerBox(box), NextBoxPicture());
}

std::string DesktopRuntime::ShowInputBox(const InputBox& box) {
    if (run_ == nullptr) {
        return AskInputBox(Front(), box, std::nullopt);
    }
    return AskInputBox(Front(), box, run_->AnswerInput(), NextBoxPicture());
}

std::optional<std::string> DesktopRuntime::ShowFileDialog(const DialogRequest& request) {
    return run_ != nullptr ? run_->AnswerFile(request) : files_.Ask(Front(), request);
}

std::optional<PrinterChoice> DesktopRuntime::ShowPrinterDialog(const DialogRequest& request) {
    return run_ != nullptr ? run_->AnswerPrinter(request) : paper_.Ask(Front());
}

void DesktopRuntime::Beep() {
    if (run_ != nullptr) {
        ++run_->Beeps;
    } else {
        QApplication::beep();
    }
}

std::optional<std::string> DesktopRuntime::ClipboardText() {
    const QMimeData* const held = QGuiApplication::clipboard()->mimeData();
    if (held == nullptr || !held->hasText()) {
        return std::nullopt;
    }
    return ToText(held->text());
}

void DesktopRuntime::ClipboardText(const std::string& text) {
    QGuiApplication::clipboard()->setText(FromText(text));
}

void DesktopRuntime::ClearClipboard() {
    QGuiApplication::clipboard()->clear();
}

Size DesktopRuntime::ScreenPixels() {
    if (run_ != nullptr) {
        return screen_;
    }
    const QSize size = QGuiApplication::primaryScreen()->size();
    return {double(size.width()), double(size.height())};
}

bool DesktopRuntime::StartProgram(const std::string& name) {
    if (run_ != nullptr) {
        run_->Started.push_back(name);
        return true;
    }
    return StartCounterpart(name);
}

bool DesktopRuntime::OpenAddress(const std::string& address) {
    if (run_ != nullptr) {
        run_->Started.push_back(address);
        return true;
    }
    return OpenInUsersProgram(address);
}

void DesktopRuntime::DoEvents() {
    ShowWaiting();
    QCoreApplication::processEvents();
}

Size DesktopRuntime::PrintableSize(PaperOrientation orientation) {
    return run_ != nullptr ? LetterSize(orientation) : paper_.Printable(orientation);
}

void DesktopRuntime::PrintDocument(const PrintedDocument& document) {
    if (run_ == nullptr) {
        paper_.Print(document);
        return;
    }
    run_->Printed.push_back(document);
    ++prints_;
    if (!printFolder_.isEmpty()) {
        WritePdf(document, QStringLiteral("%1/print-%2.pdf").arg(printFolder_).arg(prints_));
    }
}

void DesktopRuntime::SaveToolbar(Toolbar& toolbar, const std::string& key, const std::string& subkey,
                                 const std::string& value) {
    if (run_ != nullptr) {
        run_->Toolbars.push_back({key, subkey, value});
    } else {
        KeepLayout(toolbar, key, subkey, value);
    }
}

void DesktopRuntime::RestoreToolbar(Toolbar& /*toolbar*/, const std::string& /*key*/, const std::string& /*subkey*/,
                                    const std::string& /*value*/) {
    // The buttons have one order, so there is no other to bring back.
}

void DesktopRuntime::Quit() {
    over_ = true;
    waiting_ = nullptr;
    // Boxes that still stand answer no more.
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        widget->hide();
    }
    QCoreApplication::exit(0);
}

}  // namespace brindlex
