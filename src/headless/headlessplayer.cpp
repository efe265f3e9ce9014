// What a person does, straight on the surface.
#include "headless/headlessplayer.h"

#include "frame/buttons.h"
#include "frame/combobox.h"
#include "frame/program.h"
#include "frame/scrollbar.h"

namespace brindlex {

namespace {

// The left button has gone up again over the control that it went down on.
void ClickOn(Control& control) {
    if (!control.IsUsable() || control.Parent().Owner().Ended()) {
        return;
    }
    if (auto* const button = dynamic_cast<Button*>(&control)) {
        button->PressByPerson();
    } else if (dynamic_cast<ComboBox*>(&control) == nullptr) {
        // A combo box's Click tells of a choice, not of the mouse.
        control.Fire(control.Click, "Click");
    }
}

}  // namespace

void HeadlessPlayer::Press(Control& control) {
    control.Parent().PressByPerson(control);
}

bool HeadlessPlayer::Choose(MenuItem& item) {
    return item.Parent().ChooseByPerson(item);
}

void HeadlessPlayer::Tool(Toolbar& toolbar, std::string_view key) {
    toolbar.PressByPerson(key);
}

void HeadlessPlayer::Focus(InputControl& control) {
    control.Parent().FocusByPerson(control);
}

void HeadlessPlayer::Key(InputControl& control, int keyAscii) {
    control.Parent().TypeByPerson(control, keyAscii);
}

void HeadlessPlayer::Tab(Form& form) {
    form.TabByPerson();
}

void HeadlessPlayer::ChooseItem(ComboBox& combo, int index) {
    Focus(combo);
    if (combo.IsUsable() && !combo.Parent().Owner().Ended()) {
        combo.ChooseByPerson(index);
    }
}

void HeadlessPlayer::Select(EditControl& box, int start, int length) {
    Focus(box);
    box.SelectByPerson(start, length);
}

void HeadlessPlayer::Scroll(ScrollBar& bar, int value) {
    bar.Value(value);
}

void HeadlessPlayer::Resize(Form& form, double innerWidth, double innerHeight) {
    form.ResizeByPerson(innerWidth, innerHeight);
}

void HeadlessPlayer::Maximize(Form& form) {
    const Size screen = runtime_.ScreenPixels();
    const double borders = form.Width() - form.InnerWidth();
    const double bars = form.Height() - form.InnerHeight();
    form.MoveByPerson(0, 0);
    form.ResizeByPerson(screen.Width * TwipsPerPixel - borders, screen.Height * TwipsPerPixel - bars);
}

void HeadlessPlayer::Close(Form& form) {
    form.CloseByPerson();
}

void HeadlessPlayer::MouseOn(Control& control, MouseAct act, const Mouse& mouse) {
    switch (act) {
        case MouseAct::Move:
            control.Fire(control.MouseMove, "MouseMove", mouse);
            break;
        case MouseAct::Down:
            if (auto* const input = dynamic_cast<InputControl*>(&control)) {
                Focus(*input);
            }
            control.Fire(control.MouseDown, "MouseDown", mouse);
            break;
        case MouseAct::Up:
            control.Fire(control.MouseUp, "MouseUp", mouse);
            if (mouse.Button == LeftButton) {
                ClickOn(control);
            }
            break;
        case MouseAct::DoubleClick:
            control.Fire(control.DblClick, "DblClick");
            break;
    }
}

void HeadlessPlayer::MouseOn(Form& form, MouseAct act, const Mouse& mouse) {
    switch (act) {
        case MouseAct::Move:
            form.MouseMoveByPerson(mouse);
            break;
        case MouseAct::Down:
            form.MouseDownByPerson(mouse);
            break;
        case MouseAct::Up:
            form.MouseUpByPerson(mouse);
            break;
        case MouseAct::DoubleClick:
            break;
    }
}

}  // namespace brindlex
