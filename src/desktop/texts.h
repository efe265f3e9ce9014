// Between the program's single-byte texts (Windows-1252) and the window system's.
#pragma once

#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

[[nodiscard]] QString FromText(std::string_view text);
/// The same with the program's line ends as the window system has them.
[[nodiscard]] QString FromLines(std::string_view text);
/// '?' stands for a character that the code page has not.
[[nodiscard]] std::string ToText(const QString& text);
/// Nothing where the code page lacks one of the characters.
[[nodiscard]] std::optional<std::string> ToExactText(const QString& text);
/// The key code of a typed character; nothing where the code page lacks it.
[[nodiscard]] std::optional<int> KeyCodeOf(QChar character);

}  // namespace brindlex
