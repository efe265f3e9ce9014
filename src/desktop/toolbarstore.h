// Layouts of toolbars in the user's settings.
#pragma once

#include "frame/scrollbar.h"

#include <string>

namespace brindlex {

/// Keeps the order of the toolbar's buttons under key, subkey and value.
void KeepLayout(const Toolbar& toolbar, const std::string& key, const std::string& subkey, const std::string& value);

}  // namespace brindlex
