// The peers of buttons: command buttons, check boxes, option buttons.
#pragma once

#include "desktop/peer.h"
#include "frame/buttons.h"

class QAbstractButton;
class QCheckBox;
class QPushButton;
class QRadioButton;

namespace brindlex {

/// What the three share: caption with mnemonic, press.
class ButtonPeer : public Peer {
public:
    [[nodiscard]] std::optional<PropertyValue> Seen(std::string_view property) const override;

protected:
    ButtonPeer(FormWindow& window, Button& button, QAbstractButton* widget);
    void MirrorOwn(Aspect aspect) override;

private:
    Button& button_;
    QAbstractButton* shown_;
};

class CommandButtonPeer : public ButtonPeer {
public:
    CommandButtonPeer(FormWindow& window, CommandButton& button);

protected:
    void MirrorOwn(Aspect aspect) override;

private:
    CommandButton& button_;
    QPushButton* push_;
};

class CheckBoxPeer : public ButtonPeer {
public:
    CheckBoxPeer(FormWindow& window, CheckBox& box);
    [[nodiscard]] std::optional<PropertyValue> Seen(std::string_view property) const override;

protected:
    void MirrorOwn(Aspect aspect) override;

private:
    CheckBox& box_;
    QCheckBox* check_;
};

class OptionButtonPeer : public ButtonPeer {
public:
    OptionButtonPeer(FormWindow& window, OptionButton& option);
    [[nodiscard]] std::optional<PropertyValue> Seen(std::string_view property) const override;

protected:
    void MirrorOwn(Aspect aspect) override;

private:
    OptionButton& option_;
    QRadioButton* radio_;
};

}  // namespace brindlex
