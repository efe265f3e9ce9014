// Scroll bar, timer, toolbar: the small controls of the drawing board.
#pragma once

#include "frame/control.h"

#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// A scroll bar; Min may be above Max, the value then falls as the thumb goes down or right. Values are whole numbers
/// of 16 bits.
class ScrollBar : public InputControl {
public:
    enum class Direction { Horizontal, Vertical };
    ScrollBar(ControlContainer& container, std::string name, const Place& place, Direction direction);

    [[nodiscard]] Direction Orientation() const { return direction_; }
    [[nodiscard]] int Value() const { return range_.value; }
    /// Kept between the two ends. A change by code or by hand fires Change.
    void Value(int value);
    [[nodiscard]] int Min() const { return range_.min; }
    [[nodiscard]] int Max() const { return range_.max; }
    void Min(int value);
    void Max(int value);
    [[nodiscard]] int SmallChange() const { return range_.smallChange; }
    [[nodiscard]] int LargeChange() const { return range_.largeChange; }
    void SmallChange(int value);
    void LargeChange(int value);

    Event<> Change;
    /// While the thumb is dragged, before its Change.
    Event<> Scroll;

    /// A person drags the thumb: Scroll with the new value.
    void DragByPerson(int value);
    /// The thumb is let go: Change, where the drag moved it.
    void ReleaseByPerson();
    void ActOnKey(int /*keyAscii*/) override {}

protected:
    void KeepDesign() override;
    void ResetToDesign() override;

private:
    [[nodiscard]] int Within(int value) const;

    struct Range {
        int value = 0;
        int min = 0;
        int max = 32767;
        int smallChange = 1;
        int largeChange = 1;
    };
    Direction direction_;
    Range range_;
    Range design_;
    bool dragged_ = false;
};

/// Fires its Timer event every Interval milliseconds while enabled. Holds while a box or a modal form is up.
class TimerControl : public Control {
public:
    TimerControl(ControlContainer& container, std::string name);

    [[nodiscard]] int Interval() const { return interval_; }
    void Interval(int milliseconds);
    void Enabled(bool value) override;
    using Control::Enabled;

    Event<> Timer;

    /// Time has passed: what fell due fires.
    void Elapse(int milliseconds);

protected:
    void KeepDesign() override;
    void ResetToDesign() override;

private:
    int interval_ = 0;
    int designInterval_ = 0;
    int waited_ = 0;
};

struct ToolButton {
    std::string Key;  ///< empty for a separator
    std::string ToolTipText;
    std::string Caption;  ///< the word that a reader hears
    bool Group = false;   ///< one of the group is pressed at a time
    bool Enabled = true;
    int Value = 0;  ///< 1 is pressed

    [[nodiscard]] bool IsSeparator() const { return Key.empty(); }
};

/// A row of tool buttons with pictures. A click leaves the focus where it was.
class Toolbar : public Control {
public:
    Toolbar(ControlContainer& container, std::string name, const Place& place, std::vector<ToolButton> buttons);

    [[nodiscard]] const std::vector<ToolButton>& Buttons() const { return buttons_; }
    /// By index from 1 or by key; throws BadArgument where there is none.
    [[nodiscard]] const ToolButton& Buttons(int index) const;
    [[nodiscard]] const ToolButton& Buttons(std::string_view key) const;
    void ButtonEnabled(int index, bool value);
    void ButtonEnabled(std::string_view key, bool value);
    /// Pressing one of a group lets the others up. Fires nothing.
    void ButtonValue(std::string_view key, int value);

    /// Keeps the layout in the platform's settings store under key, subkey and value; brings it back.
    void SaveToolbar(const std::string& key, const std::string& subkey, const std::string& value);
    void RestoreToolbar(const std::string& key, const std::string& subkey, const std::string& value);

    /// Carries the button.
    Event<const ToolButton&> ButtonClick;
    /// The user has rearranged the buttons.
    Event<> Change;

    void PressByPerson(std::string_view key);

protected:
    void KeepDesign() override;
    void ResetToDesign() override;

private:
    [[nodiscard]] ToolButton& Find(std::string_view key);

    std::vector<ToolButton> buttons_;
    std::vector<ToolButton> design_;
};

}  // namespace brindlex
