// Buttons.
#include "desktop/buttonpeer.h"

#include "desktop/presswidget.h"
#include "desktop/texts.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <vector>

namespace brindlex {

namespace {

template <class Widget>
QAbstractButton* MakeButton(FormWindow& window, Button& button) {
    return new PressWidget<Widget>(window.Inside(button.Container()), window, button);
}

// The options of a container that can be chosen, in tab order.
std::vector<OptionButton*> GroupOf(const OptionButton& option) {
    std::vector<OptionButton*> group;
    for (Control* const control : option.Parent().TabOrder()) {
        auto* const candidate = dynamic_cast<OptionButton*>(control);
        if (candidate != nullptr && &candidate->Container() == &option.Container() && candidate->IsUsable()) {
            group.push_back(candidate);
        }
    }
    return group;
}

}  // namespace

bool WalkButtons(FormWindow& window, Button& button, int key) {
    const bool forward = key == Qt::Key_Right || key == Qt::Key_Down;
    if (!forward && key != Qt::Key_Left && key != Qt::Key_Up) {
        return false;
    }
    window.ByPerson([&] {
        const auto* const option = dynamic_cast<OptionButton*>(&button);
        if (option == nullptr) {
            window.Surface().TabByPerson(!forward);
            return;
        }
        const auto group = GroupOf(*option);
        const auto here = std::find(group.begin(), group.end(), option);
        if (here != group.end() && group.size() > 1) {
            const std::size_t at = static_cast<std::size_t>(here - group.begin());
            const std::size_t next = (at + (forward ? 1 : group.size() - 1)) % group.size();
            window.Surface().PressByPerson(*group[next]);
        }
    });
    return true;
}

ButtonPeer::ButtonPeer(FormWindow& window, Button& button, QAbstractButton* widget)
    : Peer(window, button, widget), button_(button), shown_(widget) {
    connect(shown_, &QAbstractButton::clicked, this,
            [this] { Window().ByPerson([this] { Window().Surface().PressByPerson(button_); }); });
}

void ButtonPeer::MirrorOwn(Aspect aspect) {
    if (aspect == Aspect::All || aspect == Aspect::Caption) {
        shown_->setText(FromText(button_.Caption()));
    }
}

std::optional<PropertyValue> ButtonPeer::Seen(std::string_view property) const {
    if (property == "Caption") {
        return ToText(shown_->text());
    }
    return Peer::Seen(property);
}

CommandButtonPeer::CommandButtonPeer(FormWindow& window, CommandButton& button)
    : ButtonPeer(window, button, MakeButton<QPushButton>(window, button)),
      button_(button),
      push_(static_cast<QPushButton*>(Widget())) {
    push_->setAutoDefault(false);
}

void CommandButtonPeer::MirrorOwn(Aspect aspect) {
    ButtonPeer::MirrorOwn(aspect);
    if (aspect == Aspect::All || aspect == Aspect::Default) {
        push_->setDefault(button_.Default());
    }
}

CheckBoxPeer::CheckBoxPeer(FormWindow& window, CheckBox& box)
    : ButtonPeer(window, box, MakeButton<QCheckBox>(window, box)),
      box_(box),
      check_(static_cast<QCheckBox*>(Widget())) {
}

void CheckBoxPeer::MirrorOwn(Aspect aspect) {
    ButtonPeer::MirrorOwn(aspect);
    if (aspect == Aspect::All || aspect == Aspect::Value) {
        check_->setChecked(box_.Value() != 0);
    }
}

std::optional<PropertyValue> CheckBoxPeer::Seen(std::string_view property) const {
    if (property == "Value") {
        return check_->isChecked() ? 1.0 : 0.0;
    }
    return ButtonPeer::Seen(property);
}

OptionButtonPeer::OptionButtonPeer(FormWindow& window, OptionButton& option)
    : ButtonPeer(window, option, MakeButton<QRadioButton>(window, option)),
      option_(option),
      radio_(static_cast<QRadioButton*>(Widget())) {
    radio_->setAutoExclusive(false);
}

void OptionButtonPeer::MirrorOwn(Aspect aspect) {
    ButtonPeer::MirrorOwn(aspect);
    if (aspect == Aspect::All || aspect == Aspect::Value) {
        radio_->setChecked(option_.Value());
    }
}

std::optional<PropertyValue> OptionButtonPeer::Seen(std::string_view property) const {
    if (property == "Value") {
        return FlagSeen(radio_->isChecked());
    }
    return ButtonPeer::Seen(property);
}

}  // namespace brindlex
