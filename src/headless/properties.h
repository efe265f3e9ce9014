// The properties of controls, menu items, toolbar buttons and forms by their names, as scripts tell and set them.
// A Boolean is -1 or 0, a colour its number.
#pragma once

#include "frame/player.h"

#include <string_view>

namespace brindlex {

// Both ways throw ScriptError for a name that the object has no property of; setting also for a property that can only
// be read, and for a value of the wrong kind. Setting fires what setting by code fires.

[[nodiscard]] PropertyValue ReadProperty(Control& control, std::string_view property);
void SetProperty(Control& control, std::string_view property, const PropertyValue& value);

[[nodiscard]] PropertyValue ReadProperty(MenuItem& item, std::string_view property);
void SetProperty(MenuItem& item, std::string_view property, const PropertyValue& value);

[[nodiscard]] PropertyValue ReadProperty(Form& form, std::string_view property);
/// Visible shows and hides.
void SetProperty(Form& form, std::string_view property, const PropertyValue& value);

/// Of the toolbar's button with that key.
[[nodiscard]] PropertyValue ReadProperty(Toolbar& toolbar, std::string_view key, std::string_view property);
void SetProperty(Toolbar& toolbar, std::string_view key, std::string_view property, const PropertyValue& value);

}  // namespace brindlex
