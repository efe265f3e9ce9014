// The hands of a person who uses the program, as a script moves them. The script checks beforehand that a person could
// do what it asks; a player does it: straight on the surface, or by key and mouse events on real widgets.
// Units: positions in the control's own scale, sizes in twips.
#pragma once

#include "frame/form.h"
#include "frame/place.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace brindlex {

class ComboBox;
class EditControl;
class InputControl;
class ScrollBar;
class Toolbar;

enum class MouseAct { Move, Down, Up, DoubleClick };

/// What a property reads: a text, a number, a list.
using PropertyValue = std::variant<std::string, double, std::vector<std::string>>;

class Player {
public:
    virtual ~Player() = default;
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    virtual void Press(Control& control) = 0;
    /// Opens the menu and chooses the item; false where it turned out disabled or hidden.
    virtual bool Choose(MenuItem& item) = 0;
    virtual void Tool(Toolbar& toolbar, std::string_view key) = 0;
    virtual void Focus(InputControl& control) = 0;
    virtual void Key(InputControl& control, int keyAscii) = 0;
    virtual void Tab(Form& form) = 0;
    virtual void ChooseItem(ComboBox& combo, int index) = 0;
    virtual void Select(EditControl& box, int start, int length) = 0;
    virtual void Scroll(ScrollBar& bar, int value) = 0;
    virtual void Resize(Form& form, double innerWidth, double innerHeight) = 0;
    virtual void Maximize(Form& form) = 0;
    virtual void Close(Form& form) = 0;
    virtual void MouseOn(Control& control, MouseAct act, const Mouse& mouse) = 0;
    virtual void MouseOn(Form& form, MouseAct act, const Mouse& mouse) = 0;

    /// What a widget shows of a property, where a person can see it there; nothing where the surface is to be asked.
    [[nodiscard]] virtual std::optional<PropertyValue> Seen(Control& control, std::string_view property) = 0;
    [[nodiscard]] virtual std::optional<PropertyValue> Seen(MenuItem& item, std::string_view property) = 0;
    [[nodiscard]] virtual std::optional<PropertyValue> Seen(Form& form, std::string_view property) = 0;
    /// Lets all events run that wait, so that the next command finds the program at rest.
    virtual void Settle() = 0;
    /// A picture of the form's window as a file; false where there are no windows or the file can't be written.
    virtual bool Shot(Form& form, const std::string& path) = 0;

protected:
    Player() = default;
};

}  // namespace brindlex
