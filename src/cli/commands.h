// The commands of brindlex-cli.
#pragma once

#include "cli/command.h"

#include <span>

namespace brindlex::cli {

/// In the order in which --help lists them.
[[nodiscard]] std::span<const Command> Commands();

}  // namespace brindlex::cli
