// The one seam to the world: windows, boxes, dialogs, clipboard, printer, other programs. Two runtimes stand behind
// it, one of real windows and one without a screen; these comments are the contract that both keep.
// Units: twips where nothing else is said. Texts are the program's single-byte texts.
#pragma once

#include "frame/commondialog.h"
#include "frame/control.h"
#include "frame/printer.h"
#include "frame/snapshot.h"

#include <optional>
#include <string>

namespace brindlex {

class Form;
class MenuItem;
class Toolbar;

struct Size {
    double Width = 0;
    double Height = 0;
};

/// Styles of a message box: one icon, one set of buttons, one default, added up.
namespace style {
inline constexpr int Plain = 0;
inline constexpr int OkCancel = 1;
inline constexpr int YesNo = 4;
inline constexpr int Stop = 16;
inline constexpr int Question = 32;
inline constexpr int Exclamation = 48;
inline constexpr int Information = 64;
inline constexpr int SecondDefault = 256;
}  // namespace style

/// What a message box was answered.
enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

struct MessageBox {
    std::string Text;
    int Style = style::Exclamation;
    std::string Caption = "Brindlex";

    /// The answer that Enter gives: the first button, or the second where the style says so.
    [[nodiscard]] Answer DefaultAnswer() const;
};

struct InputBox {
    std::string Prompt;
    std::string Title;
    std::string Default;
};

struct DialogRequest {
    DialogKind Kind = DialogKind::Open;
    int Flags = 0;
    std::string Filter;
    std::string FileName;
};

struct PrinterChoice {
    int Copies = 1;
    int FromPage = 0;
    int ToPage = 0;
};

class Runtime {
public:
    virtual ~Runtime() = default;
    Runtime(const Runtime&) = delete;
    Runtime& operator=(const Runtime&) = delete;

    // Forms. The surface keeps what is loaded and visible; the runtime only follows.

    /// The form becomes visible: build its window where there is none, mirror all of its state, show it.
    virtual void ShowForm(Form& form) = 0;
    virtual void HideForm(Form& form) = 0;
    /// The form was unloaded: let go of its window, which may be the one whose event is running.
    virtual void LetGo(Form& form) = 0;
    /// The form, which is visible already, is in front of all others alone; lets events run until it is not visible
    /// any more or the program has ended.
    virtual void RunModal(Form& form) = 0;
    /// Repaints now.
    virtual void Refresh(Form& form) = 0;
    /// Something of a visible or hidden form's window changed: caption, place, size.
    virtual void FormChanged(Form& form) = 0;
    /// Only for forms that were shown and not unloaded since.
    virtual void ControlChanged(Control& control, Aspect aspect) = 0;
    virtual void MenuChanged(MenuItem& item) = 0;
    /// Pops up a menu at the pointer; what is chosen fires before this returns or soon after.
    virtual void PopupMenu(Form& form, MenuItem& menu) = 0;
    /// Cuts the form's window to an ellipse within a bounding box, in pixels from the window's corner, and repaints.
    virtual void SetWindowRegion(Form& form, int left, int top, int right, int bottom) = 0;
    /// What the inside of the form's window looks like now.
    virtual Snapshot CaptureClient(Form& form) = 0;

    // Boxes and dialogs. Each returns when it is answered; events may run meanwhile.

    virtual Answer ShowMessageBox(const MessageBox& box) = 0;
    /// The typed text; empty on Cancel.
    virtual std::string ShowInputBox(const InputBox& box) = 0;
    /// The chosen file; nothing on Cancel. Starts where the user last was. A save without an ending gets the
    /// filter's, and asks before it replaces a file where flag 2 is set.
    virtual std::optional<std::string> ShowFileDialog(const DialogRequest& request) = 0;
    virtual std::optional<PrinterChoice> ShowPrinterDialog(const DialogRequest& request) = 0;

    // The rest of the world.

    virtual void Beep() = 0;
    /// The clipboard's plain text; nothing where it holds none.
    virtual std::optional<std::string> ClipboardText() = 0;
    virtual void ClipboardText(const std::string& text) = 0;
    virtual void ClearClipboard() = 0;
    /// The screen's size in pixels of the program's own scale.
    virtual Size ScreenPixels() = 0;
    /// Starts another program by the name that it has on the program's first platform; false where there is none.
    virtual bool StartProgram(const std::string& name) = 0;
    /// Opens a web or mail address in the user's program for it; false where that fails.
    virtual bool OpenAddress(const std::string& address) = 0;
    /// Lets events run that wait.
    virtual void DoEvents() = 0;
    /// The printable size of a page, in twips.
    virtual Size PrintableSize(PaperOrientation orientation) = 0;
    /// Prints one document on the printer that was chosen last. Throws Fault with the printer's own words when it
    /// refuses.
    virtual void PrintDocument(const PrintedDocument& document) = 0;
    /// The platform's settings store, for the layouts of toolbars.
    virtual void SaveToolbar(Toolbar& toolbar, const std::string& key, const std::string& subkey,
                             const std::string& value) = 0;
    virtual void RestoreToolbar(Toolbar& toolbar, const std::string& key, const std::string& subkey,
                                const std::string& value) = 0;
    /// The program has ended: leave the event loop.
    virtual void Quit() = 0;

protected:
    Runtime() = default;
};

}  // namespace brindlex
