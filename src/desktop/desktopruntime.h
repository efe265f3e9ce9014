// The runtime of real windows. It serves a person, or a script that a driven run stands for: then boxes and dialogs are
// answered from its queues, and what reaches the world is recorded in it.
// Units: twips where nothing else is said; the screen in pixels of 15 twips.
#pragma once

#include "desktop/filedialog.h"
#include "desktop/formwindow.h"
#include "desktop/mirror.h"
#include "desktop/paper.h"
#include "desktop/readers.h"
#include "frame/drivenrun.h"
#include "frame/runtime.h"

#include <QPointer>
#include <QString>

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QEventLoop;

namespace brindlex {

class DesktopRuntime : public Runtime {
public:
    DesktopRuntime() = default;
    /// Driven: the run outlives the runtime; the screen is taken to be of the given size.
    DesktopRuntime(DrivenRun& run, Size screenPixels) : run_(&run), screen_(screenPixels) {}
    ~DesktopRuntime() override;

    /// Where the first file dialog opens.
    void StartDialogsIn(const QString& folder) { files_.StartIn(folder); }
    /// Driven, printed documents are written here as print-1.pdf and so on; nowhere where it is empty.
    void PrintInto(const QString& folder) { printFolder_ = folder; }
    /// Driven, pictures of the boxes are written as PREFIX-1.png and so on; nowhere where it is empty.
    void PictureBoxesAs(const QString& prefix) { boxPictures_ = prefix; }
    /// What readers hear of a picture besides what is drawn on it.
    void TellPicturesBy(FormWindow::PictureTeller teller) { teller_ = std::move(teller); }
    /// Null for a form without a window.
    [[nodiscard]] FormWindow* WindowOf(const Form& form) const;
    /// Brings what is open to the front.
    void BringForward();

    void ShowForm(Form& form) override;
    void HideForm(Form& form) override;
    void LetGo(Form& form) override;
    void RunModal(Form& form) override;
    void Refresh(Form& form) override;
    void FormChanged(Form& form) override;
    void ControlChanged(Control& control, Aspect aspect) override;
    void MenuChanged(MenuItem& item) override;
    void PopupMenu(Form& form, MenuItem& menu) override;
    void SetWindowRegion(Form& form, int left, int top, int right, int bottom) override;
    Snapshot CaptureClient(Form& form) override;

    Answer ShowMessageBox(const MessageBox& box) override;
    std::string ShowInputBox(const InputBox& box) override;
    std::optional<std::string> ShowFileDialog(const DialogRequest& request) override;
    std::optional<PrinterChoice> ShowPrinterDialog(const DialogRequest& request) override;

    void Beep() override;
    std::optional<std::string> ClipboardText() override;
    void ClipboardText(const std::string& text) override;
    void ClearClipboard() override;
    Size ScreenPixels() override;
    bool StartProgram(const std::string& name) override;
    bool OpenAddress(const std::string& address) override;
    void DoEvents() override;
    Size PrintableSize(PaperOrientation orientation) override;
    void PrintDocument(const PrintedDocument& document) override;
    void SaveToolbar(Toolbar& toolbar, const std::string& key, const std::string& subkey,
                     const std::string& value) override;
    void RestoreToolbar(Toolbar& toolbar, const std::string& key, const std::string& subkey,
                        const std::string& value) override;
    void Quit() override;

private:
    struct ModalRun {
        const Form* form;
        QEventLoop* loop;
    };

    /// Whether a form is modal is known only after it was shown, so its window waits until anything is to be seen.
    void ShowWaiting();
    void TellReaders();
    void LeaveLoopsOf(const Form& form);
    [[nodiscard]] QWidget* Front();
    [[nodiscard]] QString NextBoxPicture();

    DrivenRun* run_ = nullptr;
    Size screen_;
    Mirror mirror_;
    std::map<const Form*, FormWindow*> windows_;
    std::vector<const Form*> shown_;
    QPointer<FormWindow> waiting_;
    std::vector<ModalRun> modal_;
    FormWindow::PictureTeller teller_;
    ReaderWatch readers_{[this] { TellReaders(); }};
    FileAsker files_;
    Paper paper_;
    QString printFolder_;
    QString boxPictures_;
    int boxes_ = 0;
    int prints_ = 0;
    bool over_ = false;
};

}  // namespace brindlex
