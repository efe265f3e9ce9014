// The command line: from words to a command and its arguments, and their help.
#pragma once

#include "cli/command.h"

#include <span>
#include <string>
#include <vector>

namespace brindlex::cli {

/// The arguments of a command; nothing where its help is asked for. Throws Failure (Usage).
[[nodiscard]] std::optional<Arguments> ParseArguments(const Command& command, const std::vector<std::string>& words);

[[nodiscard]] std::string HelpOf(const Command& command);
[[nodiscard]] std::string HelpOf(std::span<const Command> commands);

/// How a run ended. With a code other than Done nothing but the findings of a check goes to the standard output.
struct Outcome {
    int Code = 0;
    std::string Out;  ///< for the standard output
    std::string Err;  ///< for the standard error: one line
};
/// Runs the command that the words ask for; the first word is the command's name.
[[nodiscard]] Outcome RunWords(std::span<const Command> commands, const std::vector<std::string>& words,
                               const StandardInput& input);

}  // namespace brindlex::cli
