// The commands that need the running program.
#include "headless/acts.h"

#include "frame/combobox.h"
#include "frame/scrollbar.h"
#include "headless/checks.h"
#include "headless/properties.h"
#include "headless/scripterror.h"
#include "headless/scriptjson.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace brindlex {

namespace {

void PressAct(Stage& stage, ScriptLine& line) {
    Control& control = UsableControl(stage, line.Word());
    line.End();
    const bool isButton = dynamic_cast<Button*>(&control) != nullptr;
    const bool isInput = dynamic_cast<InputControl*>(&control) != nullptr && control.TakesFocus();
    if (!isButton && (isInput || !control.Click.IsBound())) {
        throw ScriptError(control.Name() + " can't be clicked");
    }
    stage.Hands.Press(control);
}

void MenuAct(Stage& stage, ScriptLine& line) {
    const std::string name = line.Word();
    MenuItem& item = ReachableItem(stage, name);
    line.End();
    if (item.Within() == nullptr && !item.Items().empty()) {
        item.Parent().OpenMenuByPerson(item);
    } else if (!stage.Hands.Choose(item)) {
        throw ScriptError(name + " can't be chosen");
    }
}

void ToolAct(Stage& stage, ScriptLine& line) {
    auto& toolbar = As<Toolbar>(UsableControl(stage, line.Word()), "toolbar");
    const std::string key = line.Text();
    line.End();
    if (std::get<double>(ReadProperty(toolbar, key, "Enabled")) != 0) {
        stage.Hands.Tool(toolbar, key);
    } else {
        throw ScriptError("the button " + key + " is disabled");
    }
}

void FocusAct(Stage& stage, ScriptLine& line) {
    InputControl& control = FocusableControl(stage, line.Word());
    line.End();
    stage.Hands.Focus(control);
}

void FocusUnlessThere(Stage& stage, InputControl& control) {
    if (control.Parent().ActiveControl() != &control) {
        stage.Hands.Focus(control);
    }
}

// Keys go to where the focus is: a handler may have moved it on, or taken the form away.
void Strike(Stage& stage, const Form& form, int keyAscii) {
    InputControl* const active = form.ActiveControl();
    if (!stage.App.Ended() && active != nullptr && active->IsUsable()) {
        stage.Hands.Key(*active, keyAscii);
    }
}

void TypeAct(Stage& stage, ScriptLine& line) {
    const std::string name = line.Word();
    InputControl& control = FocusableControl(stage, name);
    RefuseLocked(control, name);
    const std::string text = line.Text();
    line.End();
    if (text.find('\0') != std::string::npos) {
        throw ScriptError("there is no key of code 0");
    }
    FocusUnlessThere(stage, control);
    for (const char character : text) {
        Strike(stage, control.Parent(), static_cast<unsigned char>(character));
    }
}

void KeyAct(Stage& stage, ScriptLine& line) {
    constexpr int lastCode = 255;
    constexpr int enter = 13;
    const std::string name = line.Word();
    InputControl& control = FocusableControl(stage, name);
    const int code = line.Whole();
    line.End();
    if (code < 1 || code > lastCode) {
        throw ScriptError("a code from 1 to 255 is wanted");
    }
    // Enter types nothing where it presses the default button, so a locked box passes it on.
    if (code != enter || control.Parent().DefaultButton() == nullptr) {
        RefuseLocked(control, name);
    }
    FocusUnlessThere(stage, control);
    Strike(stage, control.Parent(), code);
}

void TabAct(Stage& stage, ScriptLine& line) {
    line.End();
    stage.Hands.Tab(FrontForm(stage));
}

void ChooseAct(Stage& stage, ScriptLine& line) {
    auto& combo = As<ComboBox>(UsableControl(stage, line.Word()), "combo box");
    const std::string text = line.Text();
    line.End();
    if (combo.Locked()) {
        throw ScriptError(combo.Name() + " is locked");
    }
    const auto item = std::find(combo.List().begin(), combo.List().end(), text);
    if (item == combo.List().end()) {
        throw ScriptError("the list has no such item");
    }
    stage.Hands.ChooseItem(combo, static_cast<int>(item - combo.List().begin()));
}

void SelectAct(Stage& stage, ScriptLine& line) {
    auto& box = As<EditControl>(UsableControl(stage, line.Word()), "box with a text");
    const int start = line.Whole();
    const int length = line.Whole();
    line.End();
    if (start < 0 || length < 0) {
        throw ScriptError("a selection is not negative");
    }
    stage.Hands.Select(box, start, length);
}

void ScrollAct(Stage& stage, ScriptLine& line) {
    auto& bar = As<ScrollBar>(UsableControl(stage, line.Word()), "scroll bar");
    const int value = line.Whole();
    line.End();
    if (value < std::min(bar.Min(), bar.Max()) || value > std::max(bar.Min(), bar.Max())) {
        throw ScriptError("the value is outside the scroll bar's range");
    }
    stage.Hands.Scroll(bar, value);
}

Form& SizableForm(Stage& stage, const std::string& name) {
    Form& form = UsableForm(stage, name);
    if (!form.Sizable()) {
        throw ScriptError(name + " keeps its size");
    }
    return form;
}

void SizeAct(Stage& stage, ScriptLine& line) {
    Form& form = SizableForm(stage, line.Word());
    const double width = line.Number();
    const double height = line.Number();
    line.End();
    if (width <= 0 || height <= 0) {
        throw ScriptError("a form has a size");
    }
    stage.Hands.Resize(form, width, height);
}

void MaximizeAct(Stage& stage, ScriptLine& line) {
    Form& form = SizableForm(stage, line.Word());
    line.End();
    stage.Hands.Maximize(form);
}

void CloseAct(Stage& stage, ScriptLine& line) {
    Form& form = UsableForm(stage, line.Word());
    line.End();
    stage.Hands.Close(form);
}

struct MouseWord {
    std::string_view word;
    MouseAct act;
};
constexpr MouseWord MouseWords[] = {
    {"move", MouseAct::Move}, {"down", MouseAct::Down}, {"up", MouseAct::Up}, {"dblclick", MouseAct::DoubleClick}};

MouseAct ReadMouseAct(ScriptLine& line) {
    const std::string word = line.Word();
    for (const MouseWord& row : MouseWords) {
        if (row.word == word) {
            return row.act;
        }
    }
    throw ScriptError("move, down, up or dblclick is wanted");
}

int ReadButton(ScriptLine& line, int lowest) {
    const int button = line.Whole();
    if (button < lowest || button > RightButton) {
        throw ScriptError("there is no such mouse button");
    }
    return button;
}

Mouse ReadMouse(ScriptLine& line, MouseAct act) {
    Mouse mouse;
    if (act == MouseAct::Down || act == MouseAct::Up) {
        mouse.Button = ReadButton(line, LeftButton);
    }
    mouse.X = line.Number();
    mouse.Y = line.Number();
    if (act == MouseAct::Move && !line.AtEnd()) {
        mouse.Button = ReadButton(line, 0);
    }
    if (act == MouseAct::DoubleClick) {
        mouse.Button = LeftButton;
    }
    line.End();
    return mouse;
}

void MouseActOn(Stage& stage, ScriptLine& line) {
    const std::string name = line.Word();
    const MouseAct act = ReadMouseAct(line);
    if (name.find('.') != std::string::npos) {
        Control& control = UsableControl(stage, name);
        const Mouse mouse = ReadMouse(line, act);
        stage.Hands.MouseOn(control, act, mouse);
        return;
    }
    Form& form = UsableForm(stage, name);
    if (act == MouseAct::DoubleClick) {
        throw ScriptError("a form takes no double click");
    }
    const Mouse mouse = ReadMouse(line, act);
    stage.Hands.MouseOn(form, act, mouse);
}

void CheckLoaded(const Form& form) {
    if (!form.Loaded()) {
        throw ScriptError(form.Name() + " is not loaded");
    }
}

void SetAct(Stage& stage, ScriptLine& line) {
    const NamedProperty named = PropertyNamed(stage.App, line.Word());
    const PropertyValue value = PropertyOf(line.Value());
    // Showing a form loads it; it is the only way to one that nothing in the program opens.
    if (named.Of.What != nullptr || named.Of.Item != nullptr || named.Property != "Visible") {
        CheckLoaded(*named.Of.Where);
    }
    if (!named.Key.empty()) {
        SetProperty(dynamic_cast<Toolbar&>(*named.Of.What), named.Key, named.Property, value);
    } else if (named.Of.What != nullptr) {
        SetProperty(*named.Of.What, named.Property, value);
    } else if (named.Of.Item != nullptr) {
        SetProperty(*named.Of.Item, named.Property, value);
    } else {
        SetProperty(*named.Of.Where, named.Property, value);
    }
}

void AddItemAct(Stage& stage, ScriptLine& line) {
    const std::string name = line.Word();
    const Named thing = ThingNamed(stage.App, name);
    if (thing.What == nullptr) {
        throw ScriptError(name + " is no combo box");
    }
    auto& combo = As<ComboBox>(*thing.What, "combo box");
    const std::string text = line.Text();
    line.End();
    CheckLoaded(*thing.Where);
    combo.AddItem(text);
}

void WaitAct(Stage& stage, ScriptLine& line) {
    const int milliseconds = line.Whole();
    line.End();
    if (milliseconds < 0) {
        throw ScriptError("time does not go back");
    }
    stage.App.PassTime(milliseconds);
}

void ShotAct(Stage& stage, ScriptLine& line) {
    const std::string name = line.Word();
    const std::string file = line.Text();
    line.End();
    Form& form = FormNamed(stage.App, name);
    if (!form.Visible()) {
        throw ScriptError(name + " is not visible");
    }
    if (!stage.Hands.Shot(form, stage.App.Files().PathOf(file).string())) {
        throw ScriptError("there is no picture of " + name);
    }
}

struct ActRow {
    std::string_view word;
    Act act;
};
constexpr ActRow Acts[] = {
    {"press", PressAct},   {"menu", MenuAct},         {"tool", ToolAct},       {"focus", FocusAct},
    {"type", TypeAct},     {"key", KeyAct},           {"tab", TabAct},         {"choose", ChooseAct},
    {"select", SelectAct}, {"set", SetAct},           {"additem", AddItemAct}, {"scroll", ScrollAct},
    {"size", SizeAct},     {"maximize", MaximizeAct}, {"close", CloseAct},     {"mouse", MouseActOn},
    {"wait", WaitAct},     {"shot", ShotAct},
};

}  // namespace

Act ActNamed(std::string_view word) {
    for (const ActRow& row : Acts) {
        if (row.word == word) {
            return row.act;
        }
    }
    return nullptr;
}

}  // namespace brindlex
