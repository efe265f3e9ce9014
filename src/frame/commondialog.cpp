// File and printer dialogs.
#include "frame/commondialog.h"

#include "frame/form.h"
#include "frame/program.h"

namespace brindlex {

CommonDialog::CommonDialog(ControlContainer& container, std::string name)
    : Control(container, std::move(name), Place{}) {
}

void CommonDialog::ResetToDesign() {
    cancelError_ = false;
    flags_ = 0;
    filter_.clear();
    fileName_.clear();
    copies_ = 1;
    fromPage_ = 0;
    toPage_ = 0;
    deviceContext_ = 0;
}

void CommonDialog::Refused() const {
    if (cancelError_) {
        throw Fault(FaultNumber::DialogCancelled);
    }
}

void CommonDialog::ShowFile(DialogKind kind) {
    const auto chosen = Parent().Owner().AskForFile({kind, flags_, filter_, fileName_});
    if (!chosen) {
        Refused();
        return;
    }
    fileName_ = *chosen;
}

void CommonDialog::ShowOpen() {
    ShowFile(DialogKind::Open);
}

void CommonDialog::ShowSave() {
    ShowFile(DialogKind::Save);
}

void CommonDialog::ShowPrinter() {
    const auto chosen = Parent().Owner().AskForPrinter({DialogKind::Printer, flags_, filter_, fileName_});
    if (!chosen) {
        Refused();
        return;
    }
    copies_ = chosen->Copies;
    fromPage_ = chosen->FromPage;
    toPage_ = chosen->ToPage;
    deviceContext_ = 1;
}

}  // namespace brindlex
