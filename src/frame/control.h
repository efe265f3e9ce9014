// The controls of a form, and what contains them. The state in the object is the truth; a runtime mirrors it.
// Units: places in the scale of the container, fonts in points.
#pragma once

#include "frame/dispatch.h"
#include "frame/event.h"
#include "frame/place.h"

#include <string>
#include <utility>
#include <vector>

namespace brindlex {

class Control;
class Form;

/// What changed of a control, told to the runtime so that it can mirror it.
enum class Aspect {
    Place,
    Visible,
    Enabled,
    Text,
    Selection,
    Caption,
    Value,
    List,
    Look,  ///< font and colour
    ToolTip,
    Locked,
    Order,  ///< container, stacking or tab order
    Drawing,
    Focus,
    Default,
    Range,    ///< a scroll bar's ends and steps, a timer's interval
    Buttons,  ///< a toolbar's
    All,
};

/// What controls stand on: a form, a frame, a picture box.
class ControlContainer {
public:
    virtual ~ControlContainer() = default;
    ControlContainer(const ControlContainer&) = delete;
    ControlContainer& operator=(const ControlContainer&) = delete;

    [[nodiscard]] virtual Form& ContainerForm() = 0;
    /// The control that this container is; null for a form.
    [[nodiscard]] virtual Control* ContainerControl() { return nullptr; }
    /// A place in this container's scale, in twips from its inner top left corner.
    [[nodiscard]] virtual Place ToTwips(const Place& place) const = 0;
    /// What stands on it, back to front.
    [[nodiscard]] const std::vector<Control*>& Children() const { return children_; }

protected:
    ControlContainer() = default;

private:
    friend class Control;
    friend class Form;
    std::vector<Control*> children_;
    std::vector<Control*> designChildren_;
};

/// What all controls share. A control is declared in its form's header with its design; Form::Load puts it back to it.
class Control {
public:
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    [[nodiscard]] const std::string& Name() const { return name_; }
    [[nodiscard]] Form& Parent() const { return *form_; }

    [[nodiscard]] double Left() const { return common_.place.Left; }
    [[nodiscard]] double Top() const { return common_.place.Top; }
    [[nodiscard]] double Width() const { return common_.place.Width; }
    [[nodiscard]] double Height() const { return common_.place.Height; }
    void Left(double value);
    void Top(double value);
    void Width(double value);
    void Height(double value);
    void Move(double left, double top, double width, double height);
    void Move(double left, double top) { Move(left, top, Width(), Height()); }
    /// The place within the container, in twips.
    [[nodiscard]] Place PlaceInTwips() const { return container_->ToTwips(common_.place); }

    [[nodiscard]] bool Visible() const { return common_.visible; }
    void Visible(bool value);
    [[nodiscard]] bool Enabled() const { return common_.enabled; }
    virtual void Enabled(bool value);
    /// Visible, with all that contains it and its form.
    [[nodiscard]] bool IsShown() const;
    /// Shown, and enabled with all that contains it.
    [[nodiscard]] bool IsUsable() const;

    [[nodiscard]] const std::string& ToolTipText() const { return common_.toolTip; }
    void ToolTipText(const std::string& value);
    [[nodiscard]] Colour ForeColor() const { return common_.foreColor; }
    void ForeColor(Colour value);
    [[nodiscard]] bool FontBold() const { return common_.fontBold; }
    void FontBold(bool value);
    [[nodiscard]] double FontSize() const { return common_.fontSize; }
    void FontSize(double points);
    [[nodiscard]] const std::string& FontName() const { return common_.fontName; }
    void FontName(const std::string& value);

    /// Position in the form's tab order, from 0; setting it moves the others along.
    [[nodiscard]] int TabIndex() const;
    void TabIndex(int value);
    [[nodiscard]] bool TabStop() const { return common_.tabStop; }
    void TabStop(bool value);

    [[nodiscard]] ControlContainer& Container() const { return *container_; }
    /// Moves the control, with its place as it reads, onto another container of the same form.
    void Container(ControlContainer& value);
    /// 0 brings the control to the front of its container, 1 puts it behind all others.
    void ZOrder(int position = 0);

    /// Whether the focus can ever come to a control of this kind.
    [[nodiscard]] virtual bool TakesFocus() const { return false; }

    Event<> Click;
    Event<> DblClick;
    Event<const Mouse&> MouseDown;
    Event<const Mouse&> MouseMove;
    Event<const Mouse&> MouseUp;

    /// Runs an event's handler by way of the program's dispatch. `what` is the event's name.
    template <class... Arguments, class... Given>
    void Fire(const Event<Arguments...>& event, const char* what, Given&&... given);

protected:
    Control(ControlContainer& container, std::string name, const Place& place);

    /// Tells the runtime.
    void Changed(Aspect aspect);
    friend class Form;
    /// The present state becomes the design; the design becomes the present state.
    virtual void KeepDesign();
    virtual void ResetToDesign();
    virtual void FontChanged() {}
    virtual void PlaceChanged() {}

private:
    struct Common {
        Place place;
        bool visible = true;
        bool enabled = true;
        bool fontBold = false;
        bool tabStop = true;
        double fontSize = 8.25;
        std::string fontName = "Arial";
        Colour foreColor = Black;
        std::string toolTip;
    };

    std::string name_;
    Form* form_;
    ControlContainer* container_;
    ControlContainer* designContainer_;
    Common common_;
    Common design_;
};

/// A control that can have the focus and hears keys.
class InputControl : public Control {
public:
    /// Gives the control the focus where it can take it; does nothing where it can't.
    void SetFocus();
    [[nodiscard]] bool TakesFocus() const override { return true; }

    Event<> GotFocus;
    Event<> LostFocus;
    /// The key's code, before the control does anything with it; a handler swallows the key by setting it to 0.
    Event<int&> KeyPress;

    /// What the control itself does with a key that its handler let through.
    virtual void ActOnKey(int keyAscii) = 0;

protected:
    using Control::Control;
};

template <class... Arguments, class... Given>
void Control::Fire(const Event<Arguments...>& event, const char* what, Given&&... given) {
    if (event.IsBound()) {
        DispatcherOf(Parent()).Run(Name(), what, [&] { event.Call(std::forward<Given>(given)...); });
    }
}

}  // namespace brindlex
