// The commands that do something to the program: what a person does, what code would set, the time that passes; and
// those that lay out the world beforehand: answers, clipboard, files.
#pragma once

#include "headless/scriptline.h"
#include "headless/stage.h"

#include <string_view>

namespace brindlex {

/// Reads the rest of the line and does it. Throws ScriptError, with nothing done, where it can't be.
using Act = void (*)(Stage& stage, ScriptLine& line);

/// A command that needs the running program, by its word; null where there is none.
[[nodiscard]] Act ActNamed(std::string_view word);
/// A command that may come before the start, by its word; null where there is none.
[[nodiscard]] Act PreparationNamed(std::string_view word);

}  // namespace brindlex
