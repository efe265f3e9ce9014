// What `show` tells: properties, the state of the run, and the records since they were last shown.
#pragma once

#include "headless/scriptline.h"
#include "headless/stage.h"

#include <nlohmann/json_fwd.hpp>

#include <string>

namespace brindlex {

/// Something to be shown, as it was asked for.
struct Question {
    std::string What;
    std::string File;  ///< the name behind `file`
};

/// Takes the next words of the line.
[[nodiscard]] Question ReadQuestion(ScriptLine& line);

/// Tells it. Records are told once. Throws ScriptError where there is no such thing.
[[nodiscard]] nlohmann::json Tell(Stage& stage, const Question& question);

}  // namespace brindlex
