// The table of commands.
#include "cli/commands.h"

#include "cli/documents.h"

#include <array>

namespace brindlex::cli {

std::span<const Command> Commands() {
    static constexpr std::array Table{ReportCommand};
    return Table;
}

}  // namespace brindlex::cli
