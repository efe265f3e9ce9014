// The system's file and printer dialogs, as a control of a form.
#pragma once

#include "frame/control.h"

#include <string>

namespace brindlex {

enum class DialogKind { Open, Save, Printer };

class CommonDialog : public Control {
public:
    CommonDialog(ControlContainer& container, std::string name);

    /// With it true, Cancel throws Fault with number DialogCancelled; with it false, Cancel changes nothing.
    [[nodiscard]] bool CancelError() const { return cancelError_; }
    void CancelError(bool value) { cancelError_ = value; }
    /// 2 asks before a file is replaced, 4 hides the read-only box, 8 keeps the working directory.
    [[nodiscard]] int Flags() const { return flags_; }
    void Flags(int value) { flags_ = value; }
    /// Pairs of description and pattern, all separated by "|".
    [[nodiscard]] const std::string& Filter() const { return filter_; }
    void Filter(const std::string& value) { filter_ = value; }
    [[nodiscard]] const std::string& FileName() const { return fileName_; }
    void FileName(const std::string& value) { fileName_ = value; }
    [[nodiscard]] int Copies() const { return copies_; }
    [[nodiscard]] int FromPage() const { return fromPage_; }
    [[nodiscard]] int ToPage() const { return toPage_; }
    /// Not 0 once a printer was chosen.
    [[nodiscard]] int hDC() const { return deviceContext_; }

    void ShowOpen();
    void ShowSave();
    void ShowPrinter();

protected:
    void KeepDesign() override {}
    void ResetToDesign() override;

private:
    void ShowFile(DialogKind kind);
    void Refused() const;

    bool cancelError_ = false;
    int flags_ = 0;
    std::string filter_;
    std::string fileName_;
    int copies_ = 1;
    int fromPage_ = 0;
    int toPage_ = 0;
    int deviceContext_ = 0;
};

}  // namespace brindlex
