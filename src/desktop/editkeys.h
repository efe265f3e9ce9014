// The way of keys, and of all that goes past the keys, from a widget that edits a line into the surface's editing.
#pragma once

#include "frame/editcontrol.h"

class QKeyEvent;
class QMenu;
class QString;
class QWidget;

namespace brindlex {

class FormWindow;

enum class KeyRoute {
    Surface,  ///< the surface has had the key
    Widget,   ///< it moves the caret, which the widget does itself
    Nobody,   ///< it is for somebody else
};

/// Hands a key to the surface where it is one that the surface hears.
[[nodiscard]] KeyRoute RouteKey(FormWindow& window, InputControl& control, const QKeyEvent& event);
/// Whether a box claims a key for itself before a menu or a mnemonic gets it.
[[nodiscard]] bool ClaimsKey(const QKeyEvent& event);
/// Types each character of a text, as an input method does when it commits.
void TypeText(FormWindow& window, InputControl& control, const QString& text);
/// Puts a text in by another way than the keys.
void InsertText(FormWindow& window, EditControl& box, const QString& text);
/// What has changed in a widget past all that this program watches (an assistive tool's entry, say) is done again on
/// the surface.
void TakeChange(FormWindow& window, EditControl& box, const QString& text);
/// The menu of a box, all of whose items go through the surface. Deletes itself when it closes.
[[nodiscard]] QMenu* EditMenu(QWidget* parent, FormWindow& window, EditControl& box);

}  // namespace brindlex
