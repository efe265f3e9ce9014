// One solve of an oblique triangle, as the form runs it.
#pragma once

#include "frame/fault.h"
#include "oblique/solver.h"

#include <string_view>

namespace brindlex::oblique {

/// What it was refused for, if anything.
inline Refusal RunCase(Triangle& triangle, std::string_view entry, double first, double second, double third,
                       bool again = false) {
    try {
        SolveOblique(triangle, entry, first, second, third, again);
    } catch (const Fault& fault) {
        return RefusalOf(fault.Number());
    }
    return AcceptOblique(triangle) ? Refusal::None : Refusal::NotPositive;
}

}  // namespace brindlex::oblique
