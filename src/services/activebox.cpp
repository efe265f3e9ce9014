// The focus of boxes, Copy and Paste.
#include "services/activebox.h"

#include "frame/form.h"
#include "frame/program.h"

#include <algorithm>

namespace brindlex {

namespace {

constexpr int PlainText = 1;

/// The box that ActiveText names where it is one of these; null where it is not.
TextBox* ActiveBox(Form& form, std::span<const std::string_view> boxes) {
    const std::string& name = form.Owner().Shared().ActiveText;
    if (std::find(boxes.begin(), boxes.end(), name) == boxes.end()) {
        return nullptr;
    }
    return dynamic_cast<TextBox*>(form.FindControl(name));
}

}  // namespace

void BindFocus(TextBox& box, MenuItem* pasteItem, std::optional<bool> paste) {
    box.GotFocus.Bind([&box, pasteItem, paste] {
        box.SelectAll();
        if (pasteItem == nullptr) {
            return;
        }
        box.Parent().Owner().Shared().ActiveText = box.Name();
        if (paste) {
            pasteItem->Enabled(*paste);
        }
    });
}

void BindTextTip(TextBox& box) {
    box.MouseMove.Bind([&box](const Mouse& /*mouse*/) { box.ToolTipText(box.Text()); });
}

void CopyActiveBox(Form& form, std::span<const std::string_view> boxes) {
    if (const TextBox* const box = ActiveBox(form, boxes)) {
        form.Owner().Clipboard().SetText(box->Text());
    }
}

void PasteIntoActiveBox(Form& form, std::span<const std::string_view> boxes) {
    if (TextBox* const box = ActiveBox(form, boxes)) {
        box->Text(form.Owner().Clipboard().GetText());
    }
}

void FollowClipboard(MenuItem& pasteItem) {
    pasteItem.Enabled(pasteItem.Parent().Owner().Clipboard().GetFormat(PlainText));
}

}  // namespace brindlex
