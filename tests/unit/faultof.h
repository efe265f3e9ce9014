// What fault a step of a test ends in.
#pragma once

#include "frame/fault.h"

#include <functional>
#include <optional>
#include <string>

namespace brindlex {

/// The number of the fault that a step ends in, if any.
inline std::optional<FaultNumber> FaultOf(const std::function<void()>& step) {
    try {
        step();
    } catch (const Fault& fault) {
        return fault.Number();
    }
    return std::nullopt;
}

/// The description of the fault that a step ends in; empty where there is none.
inline std::string WordsOf(const std::function<void()>& step) {
    try {
        step();
    } catch (const Fault& fault) {
        return fault.what();
    }
    return "";
}

}  // namespace brindlex
