// One command of a script, read from left to right: bare words, numbers, texts in double quotes with JSON escapes, and
// a JSON value as the last of the line. Whatever is missing or malformed throws ScriptError.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <string_view>
#include <utility>

namespace brindlex {

class ScriptLine {
public:
    explicit ScriptLine(std::string text) : text_(std::move(text)) {}

    /// The next word, up to a blank.
    std::string Word();
    /// The next text in double quotes, as program text.
    std::string Text();
    double Number();
    int Whole();
    /// All that is left, as one JSON value.
    nlohmann::json Value();

    [[nodiscard]] bool AtEnd();
    [[nodiscard]] bool AtText();
    /// Throws where something is left.
    void End();

private:
    void SkipBlanks();

    std::string text_;
    std::size_t at_ = 0;
};

/// A number as a whole word; throws ScriptError where it is none.
[[nodiscard]] double NumberOf(std::string_view word);

}  // namespace brindlex
