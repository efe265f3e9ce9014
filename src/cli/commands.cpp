// The table of commands.
#include "cli/commands.h"

#include "cli/bolt.h"
#include "cli/data.h"
#include "cli/documents.h"
#include "cli/exportcommand.h"
#include "cli/plates.h"
#include "cli/speeds.h"
#include "cli/triangles.h"

#include <array>

namespace brindlex::cli {

std::span<const Command> Commands() {
    static constexpr std::array Table{RightCommand,  ObliqueCommand, BoltCommand,   SineCommand,   PolygonCommand,
                                      SpeedsCommand, SolveCommand,   ReportCommand, ExportCommand, DataCommand};
    return Table;
}

}  // namespace brindlex::cli
