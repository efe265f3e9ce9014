// Command buttons, check boxes, option buttons.
#include "frame/buttons.h"

#include "frame/form.h"

namespace brindlex {

Button::Button(ControlContainer& container, std::string name, const Place& place, std::string caption)
    : InputControl(container, std::move(name), place), caption_(std::move(caption)) {
}

void Button::Caption(const std::string& value) {
    if (value != caption_) {
        caption_ = value;
        Changed(Aspect::Caption);
    }
}

void Button::ActOnKey(int keyAscii) {
    if (keyAscii == ' ') {
        PressByPerson();
    }
}

void Button::KeepDesign() {
    Control::KeepDesign();
    designCaption_ = caption_;
}

void Button::ResetToDesign() {
    Control::ResetToDesign();
    caption_ = designCaption_;
}

CommandButton::CommandButton(ControlContainer& container, std::string name, const Place& place, std::string caption)
    : Button(container, std::move(name), place, std::move(caption)) {
}

void CommandButton::Value(bool pressed) {
    if (pressed) {
        Fire(Click, "Click");
    }
}

bool CommandButton::Default() const {
    return Parent().DefaultButton() == this;
}

void CommandButton::Default(bool value) {
    if (value != Default()) {
        Parent().DefaultButton(value ? this : nullptr);
        Changed(Aspect::Default);
    }
}

bool CommandButton::Cancel() const {
    return Parent().CancelButton() == this;
}

void CommandButton::Cancel(bool value) {
    if (value != Cancel()) {
        Parent().CancelButton(value ? this : nullptr);
        Changed(Aspect::Default);
    }
}

void CommandButton::PressByPerson() {
    Value(true);
}

CheckBox::CheckBox(ControlContainer& container, std::string name, const Place& place, std::string caption)
    : Button(container, std::move(name), place, std::move(caption)) {
}

void CheckBox::Value(int value) {
    const int taken = value == 0 ? 0 : 1;
    if (taken != value_) {
        value_ = taken;
        Changed(Aspect::Value);
        Fire(Click, "Click");
    }
}

void CheckBox::PressByPerson() {
    Value(1 - value_);
}

void CheckBox::KeepDesign() {
    Button::KeepDesign();
    designValue_ = value_;
}

void CheckBox::ResetToDesign() {
    Button::ResetToDesign();
    value_ = designValue_;
}

OptionButton::OptionButton(ControlContainer& container, std::string name, const Place& place, std::string caption,
                           bool value)
    : Button(container, std::move(name), place, std::move(caption)), value_(value) {
}

void OptionButton::Value(bool value) {
    if (value == value_) {
        return;
    }
    value_ = value;
    Changed(Aspect::Value);
    if (!value) {
        return;
    }
    for (Control* const other : Container().Children()) {
        auto* const option = dynamic_cast<OptionButton*>(other);
        if (option != nullptr && option != this && option->value_) {
            option->value_ = false;
            option->Changed(Aspect::Value);
        }
    }
    Fire(Click, "Click");
}

void OptionButton::PressByPerson() {
    Value(true);
}

void OptionButton::KeepDesign() {
    Button::KeepDesign();
    designValue_ = value_;
}

void OptionButton::ResetToDesign() {
    Button::ResetToDesign();
    value_ = designValue_;
}

}  // namespace brindlex
