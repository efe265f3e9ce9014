// The script driver as a program: options in, one line of answer for each command out.
//
//     NAME [--dir DIR] [--screen 1024x768] [--desktop] [SCRIPT]
//
// Which runtime and which hands stand behind it is the caller's choice; --desktop is passed over here.
// Units: the screen in pixels.
#pragma once

#include "frame/drivenrun.h"
#include "frame/player.h"
#include "frame/program.h"
#include "frame/runtime.h"

#include <functional>
#include <memory>

namespace brindlex {

struct DriverParts {
    /// Makes the runtime of a screen of this size; it reads and fills the run.
    std::function<std::unique_ptr<Runtime>(DrivenRun& run, Size screenPixels)> MakeRuntime;
    /// Makes the hands for that runtime. They may keep references to both, and are destroyed before them, but after
    /// the program and its forms, all of which the runtime was told to let go of by then. Seen is also asked for a
    /// form's Focus, and for the buttons of a toolbar by key, such as "Zoom.Enabled".
    std::function<std::unique_ptr<Player>(Runtime& runtime, DrivenRun& run)> MakePlayer;
    std::function<void(Program& program)> RegisterForms;
};

/// Runs commands from the script, or from standard input, and returns the process's exit code: 0, or 1 where a script
/// stopped at an error, or 2 where the options are not understood.
int RunDriver(int argc, const char* const* argv, const DriverParts& parts);

}  // namespace brindlex
