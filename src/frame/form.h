// A form: its controls and menus, its focus and tab order, its window. Its header is its control table.
// Units: the design size and what stands on the form in twips, or in inches where the form scales itself so.
#pragma once

#include "frame/buttons.h"
#include "frame/control.h"
#include "frame/menuitem.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

class Program;

class Form : public ControlContainer {
public:
    /// Width and height of the design's inside, in twips.
    Form(Program& program, std::string name, double innerWidth, double innerHeight);
    ~Form() override = default;

    [[nodiscard]] const std::string& Name() const { return name_; }
    [[nodiscard]] Program& Owner() const { return program_; }

    // Life. The form's handlers are the virtual functions further down.

    void Load();
    /// Runs Form_Unload, takes the dialogs of the form with it, lets go of the window; destroys nothing.
    void Unload();
    /// Modeless. The first Show loads the form.
    void Show();
    /// Returns when the form is hidden or unloaded.
    void ShowModal();
    void Hide();
    void Refresh();
    [[nodiscard]] bool Loaded() const { return loaded_; }
    [[nodiscard]] bool Visible() const { return visible_; }
    /// The form on which a small dialog depends, by name; empty for others.
    [[nodiscard]] const std::string& DialogOf() const { return dialogOf_; }

    // The window.

    [[nodiscard]] const std::string& Caption() const { return state_.caption; }
    void Caption(const std::string& value);
    /// The window's outer place on the screen in twips, whatever the scale inside.
    [[nodiscard]] double Left() const { return state_.left; }
    [[nodiscard]] double Top() const { return state_.top; }
    [[nodiscard]] double Width() const;
    [[nodiscard]] double Height() const;
    void Left(double value);
    void Top(double value);
    void Width(double value);
    void Height(double value);
    /// The inner size in the form's own scale.
    [[nodiscard]] double ScaleWidth() const { return state_.innerWidth / twipsPerUnit_; }
    [[nodiscard]] double ScaleHeight() const { return state_.innerHeight / twipsPerUnit_; }
    /// 1 twips, 5 inches. Part of the design.
    [[nodiscard]] int ScaleMode() const { return twipsPerUnit_ == 1 ? 1 : 5; }
    void ScaleMode(int mode);
    /// The inner size in twips.
    [[nodiscard]] double InnerWidth() const { return state_.innerWidth; }
    [[nodiscard]] double InnerHeight() const { return state_.innerHeight; }
    /// Part of the design: whether a person can change the size.
    [[nodiscard]] bool Sizable() const { return sizable_; }
    [[nodiscard]] int hWnd() const { return 1; }

    /// Placement of a calculator: at 0, 0 below 600 pixels of screen height, else in the middle of the screen.
    void PlaceOnScreen();
    void PopupMenu(MenuItem& menu);
    /// Hides this form and shows another, modeless.
    void GoTo(std::string_view form);

    // Controls and menus.

    [[nodiscard]] const std::vector<Control*>& Controls() const { return controls_; }
    [[nodiscard]] const std::vector<MenuItem*>& Menus() const { return menus_; }
    [[nodiscard]] Control* FindControl(std::string_view name) const;
    [[nodiscard]] MenuItem* FindMenu(std::string_view name) const;
    /// The control that has the focus; null where none has.
    [[nodiscard]] InputControl* ActiveControl() const { return focus_; }
    [[nodiscard]] CommandButton* DefaultButton() const { return defaultButton_; }
    [[nodiscard]] CommandButton* CancelButton() const { return cancelButton_; }
    void DefaultButton(CommandButton* button);
    void CancelButton(CommandButton* button) { cancelButton_ = button; }
    [[nodiscard]] const std::vector<Control*>& TabOrder() const { return tabOrder_; }

    // What a person does, handed on by a runtime.

    /// A key by its code: Enter and Escape go to their buttons; any other to KeyPress and then to the control.
    void TypeByPerson(InputControl& control, int keyAscii);
    /// A mouse click or mnemonic: the focus moves to the control first where it can take it, then Click.
    void PressByPerson(Control& control);
    void FocusByPerson(InputControl& control);
    void TabByPerson(bool backwards = false);
    /// Opens the menu that holds the item and chooses it; false where it turns out disabled or hidden.
    bool ChooseByPerson(MenuItem& item);
    void OpenMenuByPerson(MenuItem& menu);
    void CloseByPerson();
    void ResizeByPerson(double innerWidth, double innerHeight);
    void MoveByPerson(double left, double top);
    void MouseMoveByPerson(const Mouse& mouse);
    void MouseDownByPerson(const Mouse& mouse);
    void MouseUpByPerson(const Mouse& mouse);

    // For controls and program.

    void Adopt(Control& control) {
        controls_.push_back(&control);
        tabOrder_.push_back(&control);
    }
    void Adopt(MenuItem& item, bool onBar);
    void Tell(Control& control, Aspect aspect);
    void Tell(MenuItem& item);
    /// Focus by code; does nothing where the control can't take it.
    void MoveFocus(InputControl* control);
    /// A control that was disabled or hidden loses the focus, and no other is given it.
    void DropLostFocus();
    [[nodiscard]] int TabIndexOf(const Control& control) const;
    void MoveInTabOrder(Control& control, int index);
    /// The present state of form, controls and menus becomes the design. The program calls it once after construction.
    void KeepDesign();

    [[nodiscard]] Form& ContainerForm() override { return *this; }
    [[nodiscard]] Place ToTwips(const Place& place) const override;

protected:
    // Handlers.

    virtual void Form_Initialize() {}
    virtual void Form_Load() {}
    virtual void Form_Unload() {}
    virtual void Form_Resize() {}
    virtual void Form_Click() {}
    virtual void Form_MouseMove(const Mouse& /*mouse*/) {}
    virtual void Form_MouseDown(const Mouse& /*mouse*/) {}
    virtual void Form_MouseUp(const Mouse& /*mouse*/) {}
    /// The close box; a small dialog does here what its Cancel does.
    virtual void CloseBox() { Unload(); }

    void Sizable(bool value) { sizable_ = value; }
    /// Makes this a small dialog of another form, unloaded with it.
    void DialogOf(std::string owner) { dialogOf_ = std::move(owner); }

private:
    struct State {
        std::string caption;
        double left = 0;
        double top = 0;
        double innerWidth = 0;
        double innerHeight = 0;
    };

    void ResetToDesign();
    void FireSelf(const char* what, const std::function<void()>& handler);
    void FirePaints();
    [[nodiscard]] bool CanTakeFocus(const InputControl& control) const;
    [[nodiscard]] InputControl* FirstInTabOrder() const;
    void SetInner(double innerWidth, double innerHeight);
    [[nodiscard]] double Chrome() const;

    Program& program_;
    std::string name_;
    std::string dialogOf_;
    State state_;
    State design_;
    double twipsPerUnit_ = 1;
    bool sizable_ = false;
    bool loaded_ = false;
    bool unloading_ = false;
    bool visible_ = false;
    bool resized_ = false;
    bool painting_ = false;
    std::vector<Control*> controls_;
    std::vector<Control*> tabOrder_;
    std::vector<Control*> designTabOrder_;
    std::vector<MenuItem*> menus_;
    std::vector<MenuItem*> items_;
    InputControl* focus_ = nullptr;
    CommandButton* defaultButton_ = nullptr;
    CommandButton* designDefault_ = nullptr;
    CommandButton* cancelButton_ = nullptr;
};

}  // namespace brindlex
