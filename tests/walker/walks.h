// Walks over one program after the other, on any runtime, until the acts are done.
#pragma once

#include "frame/drivenrun.h"
#include "frame/player.h"
#include "frame/program.h"
#include "frame/runtime.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace brindlex {

struct WalkParts {
    std::function<std::unique_ptr<Runtime>(DrivenRun& run)> MakeRuntime;
    std::function<std::unique_ptr<Player>(Runtime& runtime)> MakePlayer;
    /// What is wrong with the windows after an act; empty where nothing is. May be null.
    std::function<std::string(Program& program, Runtime& runtime)> LookAtWindows;
    /// The same when the program and its runtime are gone.
    std::function<std::string()> LookAfterwards;
    /// By how many bytes the heap may grow after the first programs.
    std::size_t Slack = std::size_t{256} << 10U;
};

/// The program of a walk: NAME [ACTS [SEED]]. Ends with 1 and the trail where something did not hold.
int RunWalks(int argc, const char* const* argv, const WalkParts& parts);

}  // namespace brindlex
