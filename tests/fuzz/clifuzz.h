// What the fuzzers of brindlex-cli share: a demand that says what is broken, words, the order that an input is, and one
// run of a command.
#pragma once

#include "readfuzz.h"

#include "cli/commandline.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::cli {

inline void Require(bool holds, const char* invariant) {
    if (!holds) {
        std::fprintf(stderr, "broken: %s\n", invariant);
        std::abort();
    }
}

inline std::vector<std::string> Split(std::string_view text, char mark) {
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(mark), text.size());
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

/// An input whose first line is words parted by tabs, the first of them what is to be done.
struct Order {
    std::string Deed;
    std::vector<std::string> Options;
    std::string_view Rest;
};

inline Order OrderOf(const std::uint8_t* data, std::size_t size) {
    Order order;
    order.Rest = TextOf(data, size);
    order.Options = Split(TakeLine(order.Rest), '\t');
    if (!order.Options.empty()) {
        order.Deed = order.Options.front();
        order.Options.erase(order.Options.begin());
    }
    return order;
}

/// How a command ended: done, or a reason in one line and the code that goes with it.
inline Outcome Run(std::span<const Command> commands, const std::vector<std::string>& words, std::string_view input) {
    Outcome outcome = RunWords(commands, words, [&] { return std::string(input); });
    Require(outcome.Code == 0 || (outcome.Code >= 2 && outcome.Code <= 5), "a code that scripts know");
    Require((outcome.Code == 0) == outcome.Err.empty(), "an answer or a reason");
    Require(outcome.Code == 0 || std::count(outcome.Err.begin(), outcome.Err.end(), '\n') == 1, "a reason in one line");
    return outcome;
}

}  // namespace brindlex::cli
