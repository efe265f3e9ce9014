// Ways of the keyboard to what the surface gives no focus: the links of a form, its toolbar, lists beneath a
// box, and a form without anything on it.
#pragma once

class QKeyEvent;

namespace brindlex {

class FormWindow;

/// The Tab key, where the next stop is a link: links come after the last control. False where it is none.
[[nodiscard]] bool TabOverLinks(FormWindow& window, bool next);
/// Keys that no control has a use for: F6 goes to the toolbar and back, Escape back; F4 and Alt+Down open the list that
/// a box lies on; Shift+F10 opens the menu of an entry; Enter, Space and Escape are a click on an empty form. False for
/// any other.
[[nodiscard]] bool TakeSideKey(FormWindow& window, const QKeyEvent& event);

}  // namespace brindlex
