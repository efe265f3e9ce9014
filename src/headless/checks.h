// What a person could do now: forms that are in front, controls that can be used. Each throws ScriptError, with the
// reason, where the person could not.
#pragma once

#include "headless/stage.h"

#include <string>
#include <string_view>

namespace brindlex {

/// Takes note of forms that came up, the latest of which is in front.
void NoteForms(Stage& stage);
/// The form that hears the Tab key.
[[nodiscard]] Form& FrontForm(Stage& stage);

/// A visible form that is not behind a modal one.
[[nodiscard]] Form& UsableForm(Stage& stage, std::string_view name);
/// A shown and enabled control of such a form.
[[nodiscard]] Control& UsableControl(Stage& stage, const std::string& name);
/// One that can have the focus.
[[nodiscard]] InputControl& FocusableControl(Stage& stage, const std::string& name);
/// Refuses a box whose text a person can't change.
void RefuseLocked(const InputControl& control, const std::string& name);
/// A menu item of such a form. Whether it is enabled shows when its menu has opened.
[[nodiscard]] MenuItem& ReachableItem(Stage& stage, const std::string& name);

/// The control as one of a kind, such as "combo box".
template <class Kind>
[[nodiscard]] Kind& As(Control& control, const char* kind);

[[noreturn]] void IsNo(const Control& control, const char* kind);

template <class Kind>
Kind& As(Control& control, const char* kind) {
    if (auto* const own = dynamic_cast<Kind*>(&control)) {
        return *own;
    }
    IsNo(control, kind);
}

}  // namespace brindlex
