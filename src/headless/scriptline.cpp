// Reading of one command line.
#include "headless/scriptline.h"

#include "headless/scripterror.h"
#include "headless/scriptjson.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <cmath>
#include <limits>

namespace brindlex {

namespace {

constexpr std::string_view Blanks = " \t\r";

nlohmann::json Parsed(std::string_view text) {
    auto value = nlohmann::json::parse(text.begin(), text.end(), nullptr, false);
    if (value.is_discarded()) {
        throw ScriptError("a value is not understood");
    }
    return value;
}

}  // namespace

double NumberOf(std::string_view word) {
    double number = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, failure] = std::from_chars(word.data(), end, number);
    if (failure != std::errc() || stop != end || !std::isfinite(number)) {
        throw ScriptError("a number is wanted");
    }
    return number;
}

void ScriptLine::SkipBlanks() {
    at_ = std::min(text_.find_first_not_of(Blanks, at_), text_.size());
}

bool ScriptLine::AtEnd() {
    SkipBlanks();
    return at_ == text_.size();
}

bool ScriptLine::AtText() {
    return !AtEnd() && text_[at_] == '"';
}

void ScriptLine::End() {
    if (!AtEnd()) {
        throw ScriptError("too much is said");
    }
}

std::string ScriptLine::Word() {
    if (AtEnd()) {
        throw ScriptError("too little is said");
    }
    const std::size_t start = at_;
    at_ = std::min(text_.find_first_of(Blanks, start), text_.size());
    return text_.substr(start, at_ - start);
}

std::string ScriptLine::Text() {
    if (!AtText()) {
        throw ScriptError("a text in double quotes is wanted");
    }
    const std::size_t start = at_;
    std::size_t end = start + 1;
    while (end < text_.size() && text_[end] != '"') {
        end += text_[end] == '\\' ? 2 : 1;
    }
    if (end >= text_.size()) {
        throw ScriptError("a text does not end");
    }
    at_ = end + 1;
    if (at_ < text_.size() && Blanks.find(text_[at_]) == std::string_view::npos) {
        throw ScriptError("a blank is wanted behind a text");
    }
    return TextOf(Parsed(std::string_view(text_).substr(start, at_ - start)));
}

double ScriptLine::Number() {
    return NumberOf(Word());
}

int ScriptLine::Whole() {
    const double number = Number();
    if (number != std::trunc(number) || std::fabs(number) > std::numeric_limits<int>::max()) {
        throw ScriptError("a whole number is wanted");
    }
    return static_cast<int>(number);
}

nlohmann::json ScriptLine::Value() {
    if (AtEnd()) {
        throw ScriptError("a value is wanted");
    }
    return Parsed(std::string_view(text_).substr(std::exchange(at_, text_.size())));
}

}  // namespace brindlex
