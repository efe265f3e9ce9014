// What all fuzzers share: a demand, and the lines of an input as the readers of files part them.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// An input that breaks a demand is a finding.
inline void Demand(bool holds) {
    if (!holds) {
        std::abort();
    }
}

inline void DemandFinite(std::initializer_list<double> values) {
    for (const double value : values) {
        Demand(std::isfinite(value));
    }
}

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// The text up to the next mark, which goes with it.
inline std::string_view TakeUpTo(std::string_view& text, char mark) {
    const std::string_view part = text.substr(0, text.find(mark));
    text.remove_prefix(std::min(part.size() + 1, text.size()));
    return part;
}

/// The text up to the next carriage return, line feed or both, which go with it.
inline std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = text.find_first_of("\r\n");
    const std::string_view line = text.substr(0, end);
    const bool isPair = text.substr(line.size()).starts_with("\r\n");
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + (isPair ? 2 : 1));
    return line;
}

/// The lines of an input, as many as it has up to `most`; what is not there is empty.
inline std::vector<std::string> LinesOf(std::string_view text, std::size_t most) {
    std::vector<std::string> lines(most);
    for (std::string& line : lines) {
        line = TakeLine(text);
    }
    return lines;
}

/// The lines of a document: as many as it has up to `most`, up to the first empty one.
inline std::vector<std::string> DocumentOf(std::string_view text, std::size_t most) {
    std::vector<std::string> lines;
    while (lines.size() < most && !text.empty()) {
        const std::string_view line = TakeLine(text);
        if (line.empty()) {
            break;
        }
        lines.emplace_back(line);
    }
    return lines;
}

}  // namespace brindlex
