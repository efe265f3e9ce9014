// The property tables.
#include "headless/properties.h"

#include "frame/buttons.h"
#include "frame/combobox.h"
#include "frame/commondialog.h"
#include "frame/form.h"
#include "frame/label.h"
#include "frame/menuitem.h"
#include "frame/picturebox.h"
#include "frame/scrollbar.h"
#include "frame/textbox.h"
#include "headless/propertyrow.h"

#include <optional>
#include <vector>

namespace brindlex {

namespace {

using ControlRow = PropertyRow<Control>;
using ControlRows = std::vector<ControlRow>;

std::string NameOf(ControlContainer& container) {
    const Control* const control = container.ContainerControl();
    return control != nullptr ? control->Name() : container.ContainerForm().Name();
}

// The container of that name on the control's form, and no loop of containers.
void MoveInto(Control& control, const PropertyValue& value) {
    Form& form = control.Parent();
    const std::string& name = AsText(value);
    if (name == form.Name()) {
        control.Container(form);
        return;
    }
    auto* const container = dynamic_cast<ControlContainer*>(form.FindControl(name));
    if (container == nullptr) {
        throw ScriptError("there is no container " + name);
    }
    for (Control* outer = container->ContainerControl(); outer != nullptr;
         outer = outer->Container().ContainerControl()) {
        if (outer == &control) {
            throw ScriptError("a control cannot contain itself");
        }
    }
    control.Container(*container);
}

ControlRows CommonRows() {
    using R = RowsOf<Control>;
    return {
        R::ReadOnly("Name", [](Control& c) { return c.Name(); }),
        R::Number("Left", &Control::Left, &Control::Left),
        R::Number("Top", &Control::Top, &Control::Top),
        R::Number("Width", &Control::Width, &Control::Width),
        R::Number("Height", &Control::Height, &Control::Height),
        R::Flag("Visible", &Control::Visible, &Control::Visible),
        R::Flag("Enabled", &Control::Enabled, &Control::Enabled),
        R::Text("ToolTipText", &Control::ToolTipText, &Control::ToolTipText),
        R::Of(
            "ForeColor", [](Control& c) { return double(c.ForeColor().Number()); },
            [](Control& c, const PropertyValue& value) { c.ForeColor(Colour::FromNumber(AsWhole(value))); }),
        R::Flag("FontBold", &Control::FontBold, &Control::FontBold),
        R::Number("FontSize", &Control::FontSize, &Control::FontSize),
        R::Text("FontName", &Control::FontName, &Control::FontName),
        R::Whole("TabIndex", &Control::TabIndex, &Control::TabIndex),
        R::Flag("TabStop", &Control::TabStop, &Control::TabStop),
        R::Of(
            "Container", [](Control& c) { return NameOf(c.Container()); }, MoveInto),
    };
}

ControlRows EditRows() {
    using R = RowsOf<Control, EditControl>;
    return {
        R::Whole("SelStart", &EditControl::SelStart, &EditControl::SelStart),
        R::Whole("SelLength", &EditControl::SelLength, &EditControl::SelLength),
        R::ReadOnly("SelText", [](EditControl& box) { return box.SelText(); }),
        R::Flag("Locked", &EditControl::Locked, &EditControl::Locked),
        R::Whole("MaxLength", &EditControl::MaxLength, &EditControl::MaxLength),
        R::Flag("MultiLine", &EditControl::MultiLine),
        RowsOf<Control, TextBox>::Of(
            "Text", [](TextBox& box) { return box.Text(); },
            [](TextBox& box, const PropertyValue& value) { box.Text(AsText(value)); }),
    };
}

ControlRows ComboRows() {
    using R = RowsOf<Control, ComboBox>;
    return {
        R::Of(
            "Text", [](ComboBox& box) { return box.Text(); },
            [](ComboBox& box, const PropertyValue& value) { box.Text(AsText(value)); }),
        R::ReadOnly("List", [](ComboBox& box) { return box.List(); }),
        R::Whole("ListCount", &ComboBox::ListCount),
        R::Whole("ListIndex", &ComboBox::ListIndex, &ComboBox::ListIndex),
    };
}

ControlRows ButtonRows() {
    using Command = RowsOf<Control, CommandButton>;
    using Option = RowsOf<Control, OptionButton>;
    return {
        RowsOf<Control, Button>::Text("Caption", &Button::Caption, &Button::Caption),
        Command::Flag("Value", &CommandButton::Value, &CommandButton::Value),
        Command::Flag("Default", &CommandButton::Default, &CommandButton::Default),
        Command::Flag("Cancel", &CommandButton::Cancel, &CommandButton::Cancel),
        // True ticks a check box too, whose own value is 1.
        RowsOf<Control, CheckBox>::Whole("Value", &CheckBox::Value, &CheckBox::Value),
        Option::Flag("Value", &OptionButton::Value, &OptionButton::Value),
    };
}

ControlRows StandingRows() {
    using Standing = RowsOf<Control, Label>;
    return {
        Standing::Text("Caption", &Label::Caption, &Label::Caption),
        Standing::Flag("AutoSize", &Label::AutoSize),
        RowsOf<Control, Frame>::Text("Caption", &Frame::Caption, &Frame::Caption),
    };
}

ControlRows PictureRows() {
    using R = RowsOf<Control, PictureBox>;
    return {
        R::Flag("AutoRedraw", &PictureBox::AutoRedraw, &PictureBox::AutoRedraw),
        R::Number("CurrentX", &PictureBox::CurrentX, &PictureBox::CurrentX),
        R::Number("CurrentY", &PictureBox::CurrentY, &PictureBox::CurrentY),
        R::Whole("DrawWidth", &PictureBox::DrawWidth, &PictureBox::DrawWidth),
        R::Whole("DrawStyle", &PictureBox::DrawStyle, &PictureBox::DrawStyle),
        R::Whole("DrawMode", &PictureBox::DrawMode, &PictureBox::DrawMode),
        R::Whole("ScaleMode", &PictureBox::ScaleMode, &PictureBox::ScaleMode),
        R::Number("ScaleLeft", &PictureBox::ScaleLeft, &PictureBox::ScaleLeft),
        R::Number("ScaleTop", &PictureBox::ScaleTop, &PictureBox::ScaleTop),
        R::Number("ScaleWidth", &PictureBox::ScaleWidth, &PictureBox::ScaleWidth),
        R::Number("ScaleHeight", &PictureBox::ScaleHeight, &PictureBox::ScaleHeight),
    };
}

ControlRows ToolRows() {
    using Bar = RowsOf<Control, ScrollBar>;
    using Dialog = RowsOf<Control, CommonDialog>;
    return {
        Bar::Whole("Value", &ScrollBar::Value, &ScrollBar::Value),
        Bar::Whole("Min", &ScrollBar::Min, &ScrollBar::Min),
        Bar::Whole("Max", &ScrollBar::Max, &ScrollBar::Max),
        Bar::Whole("SmallChange", &ScrollBar::SmallChange, &ScrollBar::SmallChange),
        Bar::Whole("LargeChange", &ScrollBar::LargeChange, &ScrollBar::LargeChange),
        RowsOf<Control, TimerControl>::Whole("Interval", &TimerControl::Interval, &TimerControl::Interval),
        Dialog::Flag("CancelError", &CommonDialog::CancelError, &CommonDialog::CancelError),
        Dialog::Whole("Flags", &CommonDialog::Flags, &CommonDialog::Flags),
        Dialog::Text("Filter", &CommonDialog::Filter, &CommonDialog::Filter),
        Dialog::Text("FileName", &CommonDialog::FileName, &CommonDialog::FileName),
        Dialog::Whole("Copies", &CommonDialog::Copies),
        Dialog::Whole("FromPage", &CommonDialog::FromPage),
        Dialog::Whole("ToPage", &CommonDialog::ToPage),
        Dialog::Whole("hDC", &CommonDialog::hDC),
    };
}

const ControlRows& ControlTable() {
    static const ControlRows table = [] {
        ControlRows all;
        for (const ControlRows& rows :
             {CommonRows(), EditRows(), ComboRows(), ButtonRows(), StandingRows(), PictureRows(), ToolRows()}) {
            all.insert(all.end(), rows.begin(), rows.end());
        }
        return all;
    }();
    return table;
}

const std::vector<PropertyRow<Form>>& FormTable() {
    using R = RowsOf<Form>;
    static const std::vector<PropertyRow<Form>> table = {
        R::ReadOnly("Name", [](Form& f) { return f.Name(); }),
        R::Text("Caption", &Form::Caption, &Form::Caption),
        R::Of(
            "Visible", [](Form& f) { return NumberOfFlag(f.Visible()); },
            [](Form& f, const PropertyValue& value) { AsFlag(value) ? f.Show() : f.Hide(); }),
        R::Number("Left", &Form::Left, &Form::Left),
        R::Number("Top", &Form::Top, &Form::Top),
        R::Number("Width", &Form::Width, &Form::Width),
        R::Number("Height", &Form::Height, &Form::Height),
        R::Number("ScaleWidth", &Form::ScaleWidth),
        R::Number("ScaleHeight", &Form::ScaleHeight),
        R::Whole("ScaleMode", &Form::ScaleMode),
        R::Whole("hWnd", &Form::hWnd),
    };
    return table;
}

// Makes one row of the table of menu items, whose class has no descendants.
struct MenuRow {
    std::string_view Name;
    PropertyValue (*Read)(const MenuItem&);
    void (*Set)(MenuItem&, const PropertyValue&);
};

constexpr MenuRow MenuTable[] = {
    {"Name", [](const MenuItem& m) -> PropertyValue { return m.Name(); }, nullptr},
    {"Caption", [](const MenuItem& m) -> PropertyValue { return m.Caption(); },
     [](MenuItem& m, const PropertyValue& value) { m.Caption(AsText(value)); }},
    {"Checked", [](const MenuItem& m) -> PropertyValue { return NumberOfFlag(m.Checked()); },
     [](MenuItem& m, const PropertyValue& value) { m.Checked(AsFlag(value)); }},
    {"Enabled", [](const MenuItem& m) -> PropertyValue { return NumberOfFlag(m.Enabled()); },
     [](MenuItem& m, const PropertyValue& value) { m.Enabled(AsFlag(value)); }},
    {"Visible", [](const MenuItem& m) -> PropertyValue { return NumberOfFlag(m.Visible()); },
     [](MenuItem& m, const PropertyValue& value) { m.Visible(AsFlag(value)); }},
};

struct ToolRow {
    std::string_view Name;
    PropertyValue (*Read)(const ToolButton&);
    void (*Set)(Toolbar&, std::string_view key, const PropertyValue&);
};

constexpr ToolRow ToolTable[] = {
    {"Key", [](const ToolButton& b) -> PropertyValue { return b.Key; }, nullptr},
    {"ToolTipText", [](const ToolButton& b) -> PropertyValue { return b.ToolTipText; }, nullptr},
    {"Caption", [](const ToolButton& b) -> PropertyValue { return b.Caption; }, nullptr},
    {"Enabled", [](const ToolButton& b) -> PropertyValue { return NumberOfFlag(b.Enabled); },
     [](Toolbar& t, std::string_view key, const PropertyValue& value) { t.ButtonEnabled(key, AsFlag(value)); }},
    {"Value", [](const ToolButton& b) -> PropertyValue { return double(b.Value); },
     [](Toolbar& t, std::string_view key, const PropertyValue& value) { t.ButtonValue(key, AsFlag(value) ? 1 : 0); }},
};

[[noreturn]] void HasNone(const std::string& owner, std::string_view property) {
    throw ScriptError(owner + " has no property " + std::string(property));
}

[[noreturn]] void IsReadOnly(const std::string& owner, std::string_view property) {
    throw ScriptError(owner + "." + std::string(property) + " can only be read");
}

template <class Base>
PropertyValue ReadByTable(const std::vector<PropertyRow<Base>>& table, Base& object, std::string_view property) {
    for (const auto& row : table) {
        if (row.Name == property) {
            if (auto value = row.Read(object)) {
                return *std::move(value);
            }
        }
    }
    HasNone(object.Name(), property);
}

template <class Base>
void SetByTable(const std::vector<PropertyRow<Base>>& table, Base& object, std::string_view property,
                const PropertyValue& value) {
    for (const auto& row : table) {
        if (row.Name == property && row.Read(object)) {
            if (!row.Set) {
                IsReadOnly(object.Name(), property);
            }
            row.Set(object, value);
            return;
        }
    }
    HasNone(object.Name(), property);
}

const MenuRow& RowFor(MenuItem& item, std::string_view property) {
    for (const MenuRow& row : MenuTable) {
        if (row.Name == property) {
            return row;
        }
    }
    HasNone(item.Name(), property);
}

const ToolRow& RowFor(Toolbar& toolbar, std::string_view property) {
    for (const ToolRow& row : ToolTable) {
        if (row.Name == property) {
            return row;
        }
    }
    HasNone(toolbar.Name(), property);
}

const ToolButton& ButtonFor(Toolbar& toolbar, std::string_view key) {
    for (const ToolButton& button : toolbar.Buttons()) {
        if (!button.IsSeparator() && button.Key == key) {
            return button;
        }
    }
    throw ScriptError(toolbar.Name() + " has no button " + std::string(key));
}

}  // namespace

PropertyValue ReadProperty(Control& control, std::string_view property) {
    return ReadByTable(ControlTable(), control, property);
}

void SetProperty(Control& control, std::string_view property, const PropertyValue& value) {
    SetByTable(ControlTable(), control, property, value);
}

PropertyValue ReadProperty(Form& form, std::string_view property) {
    return ReadByTable(FormTable(), form, property);
}

void SetProperty(Form& form, std::string_view property, const PropertyValue& value) {
    SetByTable(FormTable(), form, property, value);
}

PropertyValue ReadProperty(MenuItem& item, std::string_view property) {
    return RowFor(item, property).Read(item);
}

void SetProperty(MenuItem& item, std::string_view property, const PropertyValue& value) {
    const MenuRow& row = RowFor(item, property);
    if (row.Set == nullptr) {
        IsReadOnly(item.Name(), property);
    }
    row.Set(item, value);
}

PropertyValue ReadProperty(Toolbar& toolbar, std::string_view key, std::string_view property) {
    const ToolButton& button = ButtonFor(toolbar, key);
    return RowFor(toolbar, property).Read(button);
}

void SetProperty(Toolbar& toolbar, std::string_view key, std::string_view property, const PropertyValue& value) {
    ButtonFor(toolbar, key);
    const ToolRow& row = RowFor(toolbar, property);
    if (row.Set == nullptr) {
        IsReadOnly(toolbar.Name(), property);
    }
    row.Set(toolbar, key, value);
}

}  // namespace brindlex
