// The text box that last took the focus on a calculator: what Copy and Paste work on, and what a box does on focus.
#pragma once

#include "frame/menuitem.h"
#include "frame/textbox.h"

#include <optional>
#include <span>
#include <string_view>

namespace brindlex {

/// On focus a box selects its whole text; on a calculator it also stores its name in ActiveText and sets the form's
/// Paste item, where `paste` says how.
void BindFocus(TextBox& box, MenuItem* pasteItem = nullptr, std::optional<bool> paste = std::nullopt);
/// The tip follows the text when the pointer comes, so that a long number can be read.
void BindTextTip(TextBox& box);
/// Copies the box that ActiveText names, where it is one of these names ("Text1" to "Text8"), to the clipboard.
void CopyActiveBox(Form& form, std::span<const std::string_view> boxes);
/// The box that ActiveText names, where it is one of these names, takes the clipboard's text.
void PasteIntoActiveBox(Form& form, std::span<const std::string_view> boxes);
/// Called by the handler of the Edit menu when that opens: Paste is enabled if the clipboard holds text.
void FollowClipboard(MenuItem& pasteItem);

}  // namespace brindlex
