// The three kinds of button: command button, check box, option button.
#pragma once

#include "frame/control.h"

#include <string>

namespace brindlex {

/// What the three share: a caption with its mnemonic, and a press.
class Button : public InputControl {
public:
    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void Caption(const std::string& value);
    /// What a mouse click, the space bar or the mnemonic does, the focus apart.
    virtual void PressByPerson() = 0;
    /// The space bar presses.
    void ActOnKey(int keyAscii) override;

protected:
    Button(ControlContainer& container, std::string name, const Place& place, std::string caption);
    void KeepDesign() override;
    void ResetToDesign() override;

private:
    std::string caption_;
    std::string designCaption_;
};

class CommandButton : public Button {
public:
    CommandButton(ControlContainer& container, std::string name, const Place& place, std::string caption = {});

    /// True presses the button: Click runs at once. Reads false always.
    [[nodiscard]] bool Value() const { return false; }
    void Value(bool pressed);
    /// Enter presses the default button of a form. Making one the default takes it from the other.
    [[nodiscard]] bool Default() const;
    void Default(bool value);
    /// Escape presses the cancel button of a form.
    [[nodiscard]] bool Cancel() const;
    void Cancel(bool value);

    void PressByPerson() override;
};

class CheckBox : public Button {
public:
    CheckBox(ControlContainer& container, std::string name, const Place& place, std::string caption = {});

    /// 0 or 1. A change by hand or by code fires Click.
    [[nodiscard]] int Value() const { return value_; }
    void Value(int value);

    void PressByPerson() override;

protected:
    void KeepDesign() override;
    void ResetToDesign() override;

private:
    int value_ = 0;
    int designValue_ = 0;
};

class OptionButton : public Button {
public:
    OptionButton(ControlContainer& container, std::string name, const Place& place, std::string caption = {},
                 bool value = false);

    /// One of the options in a container is set at most: setting one clears the others. An option fires Click when it
    /// becomes set, by hand or by code; the one that is cleared by it fires nothing.
    [[nodiscard]] bool Value() const { return value_; }
    void Value(bool value);

    void PressByPerson() override;

protected:
    void KeepDesign() override;
    void ResetToDesign() override;

private:
    bool value_;
    bool designValue_ = false;
};

}  // namespace brindlex
