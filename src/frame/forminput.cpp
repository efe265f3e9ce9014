// What a person does to a form: focus, keys, presses, menus, the window. The rules of firing that both runtimes share.
#include "frame/form.h"

#include "frame/combobox.h"
#include "frame/program.h"

#include <algorithm>

namespace brindlex {

namespace {

constexpr int EnterKey = 13;
constexpr int EscapeKey = 27;

// Tab comes to the set option of a group only, or to any of a group with none set.
bool SkippedByTab(const Control& control) {
    const auto* const option = dynamic_cast<const OptionButton*>(&control);
    if (option == nullptr || option->Value()) {
        return false;
    }
    const auto& group = option->Container().Children();
    return std::any_of(group.begin(), group.end(), [](const Control* other) {
        const auto* const candidate = dynamic_cast<const OptionButton*>(other);
        return candidate != nullptr && candidate->Value() && candidate->IsUsable();
    });
}

}  // namespace

bool Form::CanTakeFocus(const InputControl& control) const {
    if (!control.TakesFocus()) {
        return false;
    }
    if (visible_) {
        return control.IsUsable();
    }
    return control.Visible() && control.Enabled();
}

void Form::MoveFocus(InputControl* control) {
    if (control == focus_ || (control != nullptr && !CanTakeFocus(*control))) {
        return;
    }
    InputControl* const before = focus_;
    focus_ = control;
    if (!visible_) {
        return;
    }
    if (control != nullptr) {
        program_.Platform().ControlChanged(*control, Aspect::Focus);
    }
    if (before != nullptr) {
        before->Fire(before->LostFocus, "LostFocus");
    }
    if (focus_ == control && control != nullptr) {
        control->Fire(control->GotFocus, "GotFocus");
    }
}

void Form::DropLostFocus() {
    if (focus_ == nullptr || !visible_ || focus_->IsUsable()) {
        return;
    }
    InputControl* const before = focus_;
    focus_ = nullptr;
    program_.Platform().ControlChanged(*before, Aspect::Focus);
    before->Fire(before->LostFocus, "LostFocus");
}

InputControl* Form::FirstInTabOrder() const {
    for (Control* const control : tabOrder_) {
        auto* const input = dynamic_cast<InputControl*>(control);
        if (input != nullptr && input->TabStop() && CanTakeFocus(*input) && !SkippedByTab(*input)) {
            return input;
        }
    }
    return nullptr;
}

void Form::TabByPerson(bool backwards) {
    const int count = static_cast<int>(tabOrder_.size());
    const int step = backwards ? -1 : 1;
    int at = focus_ != nullptr ? TabIndexOf(*focus_) : (backwards ? count : -1);
    for (int tries = 0; tries < count; ++tries) {
        at = (at + step + count) % count;
        auto* const input = dynamic_cast<InputControl*>(tabOrder_[static_cast<std::size_t>(at)]);
        if (input != nullptr && input->TabStop() && CanTakeFocus(*input) && !SkippedByTab(*input)) {
            MoveFocus(input);
            return;
        }
    }
}

void Form::FocusByPerson(InputControl& control) {
    MoveFocus(&control);
}

void Form::TypeByPerson(InputControl& control, int keyAscii) {
    FocusByPerson(control);
    if (!control.IsUsable()) {
        return;
    }
    auto* const ownButton = dynamic_cast<CommandButton*>(&control);
    CommandButton* const goesTo = keyAscii == EnterKey    ? (ownButton != nullptr ? ownButton : defaultButton_)
                                  : keyAscii == EscapeKey ? cancelButton_
                                                          : nullptr;
    if (goesTo != nullptr) {
        if (goesTo->IsUsable()) {
            goesTo->PressByPerson();
        }
        return;
    }
    int key = keyAscii;
    control.Fire(control.KeyPress, "KeyPress", key);
    if (key != 0 && !program_.Ended() && control.IsUsable()) {
        control.ActOnKey(key);
    }
}

void Form::PressByPerson(Control& control) {
    if (auto* const input = dynamic_cast<InputControl*>(&control)) {
        FocusByPerson(*input);
    }
    if (!control.IsUsable() || program_.Ended()) {
        return;
    }
    if (auto* const button = dynamic_cast<Button*>(&control)) {
        button->PressByPerson();
    } else {
        control.Fire(control.Click, "Click");
    }
}

void Form::OpenMenuByPerson(MenuItem& menu) {
    menu.FireClick();
}

bool Form::ChooseByPerson(MenuItem& item) {
    MenuItem* top = &item;
    while (top->Within() != nullptr) {
        top = top->Within();
    }
    if (top != &item && top->IsUsable()) {
        OpenMenuByPerson(*top);
    }
    if (!item.IsUsable() || item.IsSeparator() || !item.Items().empty()) {
        return false;
    }
    item.FireClick();
    return true;
}

void Form::CloseByPerson() {
    FireSelf("Close", [this] { CloseBox(); });
}

void Form::ResizeByPerson(double innerWidth, double innerHeight) {
    state_.innerWidth = std::max(innerWidth, 0.0);
    state_.innerHeight = std::max(innerHeight, 0.0);
    if (resized_) {
        FireSelf("Resize", [this] { Form_Resize(); });
    }
}

void Form::MoveByPerson(double left, double top) {
    state_.left = left;
    state_.top = top;
}

void Form::MouseMoveByPerson(const Mouse& mouse) {
    FireSelf("MouseMove", [&] { Form_MouseMove(mouse); });
}

void Form::MouseDownByPerson(const Mouse& mouse) {
    FireSelf("MouseDown", [&] { Form_MouseDown(mouse); });
}

void Form::MouseUpByPerson(const Mouse& mouse) {
    FireSelf("MouseUp", [&] { Form_MouseUp(mouse); });
    if (mouse.Button == LeftButton) {
        FireSelf("Click", [this] { Form_Click(); });
    }
}

}  // namespace brindlex
