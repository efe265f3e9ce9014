// Message boxes and input boxes.
#pragma once

#include "frame/runtime.h"

#include <optional>
#include <string>

class QWidget;

namespace brindlex {

/// Shows the box in front of a window and waits for its answer. Where the answer is known beforehand the box stands
/// for a moment and its button is clicked.
Answer AskMessageBox(QWidget* parent, const MessageBox& box, std::optional<Answer> known);
/// The same for a text; empty on Cancel.
std::string AskInputBox(QWidget* parent, const InputBox& box, const std::optional<std::string>& known);

}  // namespace brindlex
