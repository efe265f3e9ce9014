// Scroll bars, timers, toolbars.
#include "frame/scrollbar.h"

#include "frame/form.h"
#include "frame/program.h"

#include <algorithm>
#include <utility>

namespace brindlex {

ScrollBar::ScrollBar(ControlContainer& container, std::string name, const Place& place, Direction direction)
    : InputControl(container, std::move(name), place), direction_(direction) {
}

int ScrollBar::Within(int value) const {
    return std::clamp(value, std::min(range_.min, range_.max), std::max(range_.min, range_.max));
}

void ScrollBar::Value(int value) {
    const int taken = Within(value);
    if (taken != range_.value) {
        range_.value = taken;
        Changed(Aspect::Value);
        Fire(Change, "Change");
    }
}

void ScrollBar::Min(int value) {
    range_.min = value;
    Changed(Aspect::Range);
    Value(range_.value);
}

void ScrollBar::Max(int value) {
    range_.max = value;
    Changed(Aspect::Range);
    Value(range_.value);
}

void ScrollBar::SmallChange(int value) {
    range_.smallChange = value;
    Changed(Aspect::Range);
}

void ScrollBar::LargeChange(int value) {
    range_.largeChange = value;
    Changed(Aspect::Range);
}

void ScrollBar::DragByPerson(int value) {
    const int taken = Within(value);
    if (taken != range_.value) {
        range_.value = taken;
        dragged_ = true;
        Changed(Aspect::Value);
        Fire(Scroll, "Scroll");
    }
}

void ScrollBar::ReleaseByPerson() {
    if (std::exchange(dragged_, false)) {
        Fire(Change, "Change");
    }
}

void ScrollBar::KeepDesign() {
    Control::KeepDesign();
    design_ = range_;
}

void ScrollBar::ResetToDesign() {
    Control::ResetToDesign();
    range_ = design_;
}

TimerControl::TimerControl(ControlContainer& container, std::string name)
    : Control(container, std::move(name), Place{}) {
}

void TimerControl::Interval(int milliseconds) {
    interval_ = std::max(milliseconds, 0);
    waited_ = 0;
    Changed(Aspect::Range);
}

void TimerControl::Enabled(bool value) {
    waited_ = 0;
    Control::Enabled(value);
}

void TimerControl::Elapse(int milliseconds) {
    waited_ += milliseconds;
    while (Control::Enabled() && interval_ > 0 && waited_ >= interval_ && Parent().Loaded() &&
           !Parent().Owner().TimersHeld()) {
        waited_ -= interval_;
        Fire(Timer, "Timer");
    }
}

void TimerControl::KeepDesign() {
    Control::KeepDesign();
    designInterval_ = interval_;
}

void TimerControl::ResetToDesign() {
    Control::ResetToDesign();
    interval_ = designInterval_;
    waited_ = 0;
}

Toolbar::Toolbar(ControlContainer& container, std::string name, const Place& place, std::vector<ToolButton> buttons)
    : Control(container, std::move(name), place), buttons_(std::move(buttons)) {
}

const ToolButton& Toolbar::Buttons(int index) const {
    if (index < 1 || index > static_cast<int>(buttons_.size())) {
        throw Fault(FaultNumber::BadArgument);
    }
    return buttons_[static_cast<std::size_t>(index - 1)];
}

const ToolButton& Toolbar::Buttons(std::string_view key) const {
    const auto found = std::find_if(buttons_.begin(), buttons_.end(),
                                    [&](const ToolButton& b) { return !b.IsSeparator() && b.Key == key; });
    if (found == buttons_.end()) {
        throw Fault(FaultNumber::BadArgument);
    }
    return *found;
}

ToolButton& Toolbar::Find(std::string_view key) {
    return const_cast<ToolButton&>(std::as_const(*this).Buttons(key));  // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

void Toolbar::ButtonEnabled(int index, bool value) {
    ButtonEnabled(Buttons(index).Key, value);
}

void Toolbar::ButtonEnabled(std::string_view key, bool value) {
    ToolButton& button = Find(key);
    if (button.Enabled != value) {
        button.Enabled = value;
        Changed(Aspect::Buttons);
    }
}

void Toolbar::ButtonValue(std::string_view key, int value) {
    ToolButton& button = Find(key);
    if (button.Group && value != 0) {
        for (ToolButton& other : buttons_) {
            if (other.Group) {
                other.Value = 0;
            }
        }
    }
    button.Value = value;
    Changed(Aspect::Buttons);
}

void Toolbar::PressByPerson(std::string_view key) {
    const ToolButton& button = Buttons(key);
    if (!button.Enabled || !IsUsable()) {
        return;
    }
    if (button.Group) {
        ButtonValue(key, 1);
    }
    Fire(ButtonClick, "ButtonClick", Buttons(key));
}

void Toolbar::SaveToolbar(const std::string& key, const std::string& subkey, const std::string& value) {
    Parent().Owner().Platform().SaveToolbar(*this, key, subkey, value);
}

void Toolbar::RestoreToolbar(const std::string& key, const std::string& subkey, const std::string& value) {
    Parent().Owner().Platform().RestoreToolbar(*this, key, subkey, value);
}

void Toolbar::KeepDesign() {
    Control::KeepDesign();
    design_ = buttons_;
}

void Toolbar::ResetToDesign() {
    Control::ResetToDesign();
    buttons_ = design_;
}

}  // namespace brindlex
