// What the calculators have in common: options, one answer or one for each line of a table, faults as failures.
#pragma once

#include "cli/answer.h"
#include "cli/command.h"
#include "cli/failure.h"
#include "cli/values.h"
#include "frame/fault.h"
#include "frame/shared.h"

#include <array>
#include <cstddef>
#include <string>

namespace brindlex::cli {

inline constexpr OptionRow UnitOption{"--unit", "in|mm", "the unit of all lengths; in without it"};
inline constexpr OptionRow PlacesOption{"--places", "N", "decimal places, 1 to 15; 4 without it"};
inline constexpr OptionRow DmsOption{"--dms", "", "angles in degrees, minutes and seconds"};
inline constexpr OptionRow JsonOption{"--json", "", "the answer as JSON"};
inline constexpr OptionRow CsvOption{"--csv", "", "the answer as CSV"};
inline constexpr OptionRow BatchOption{
    "--batch", "", "reads CSV from the standard input: a head of option names, a calculation a line"};

/// Rows of a calculator and then the common ones.
template <std::size_t Own, std::size_t Common>
[[nodiscard]] constexpr std::array<OptionRow, Own + Common> Joined(const OptionRow (&own)[Own],
                                                                   const OptionRow (&common)[Common]) {
    std::array<OptionRow, Own + Common> rows{};
    for (std::size_t i = 0; i < Own; ++i) {
        rows[i] = own[i];
    }
    for (std::size_t i = 0; i < Common; ++i) {
        rows[Own + i] = common[i];
    }
    return rows;
}

/// A calculation from its options.
using Solve = Answer (*)(const Arguments& given);

/// The answer as it is wanted; with --batch one for each line of the standard input. A line that is refused ends it
/// all: BadInput with the line's number, or NoSolution likewise.
[[nodiscard]] std::string RunCalculation(const Command& command, Solve solve, const Arguments& given,
                                         const StandardInput& input);

/// Runs a step of a solver; its faults become NoSolution.
template <class Step>
auto Solved(Step&& step) {
    try {
        return step();
    } catch (const Fault& fault) {
        throw Failure(Exit::NoSolution, std::string("these values have no solution: ") + fault.what());
    }
}

/// The shared variables of a calculation: Pi, Rad, and the places of the triangles.
[[nodiscard]] SharedState SharedFor(const Display& display);

}  // namespace brindlex::cli
