// Message boxes and input boxes.
#pragma once

#include "frame/runtime.h"

#include <QString>

#include <optional>
#include <string>

class QWidget;

namespace brindlex {

/// Shows the box in front of a window and waits for its answer. Where the answer is known beforehand the box stands
/// for a moment, a picture of it is written to the file of that name where there is one, and its button is clicked.
Answer AskMessageBox(QWidget* parent, const MessageBox& box, std::optional<Answer> known, const QString& picture = {});
/// The same for a text; empty on Cancel.
std::string AskInputBox(QWidget* parent, const InputBox& box, const std::optional<std::string>& known,
                        const QString& picture = {});

}  // namespace brindlex
