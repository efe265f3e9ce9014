// Which forms exist in this program.
#pragma once

namespace brindlex {

class Program;

/// Makes every form known to the program; none is built before its first use.
void RegisterForms(Program& program);

}  // namespace brindlex
