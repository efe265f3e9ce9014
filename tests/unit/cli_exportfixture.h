// What failure a step of a test ends in, and sheets made by hand.
#pragma once

#include "cli/exportsheet.h"
#include "cli/failure.h"

#include <functional>
#include <string>
#include <vector>

namespace brindlex::cli {

/// "2 words", the exit code and the words of the failure; empty where the step ends well.
inline std::string ExportFailureOf(const std::function<void()>& step) {
    try {
        step();
    } catch (const Failure& failure) {
        return std::to_string(static_cast<int>(failure.Code())) + " " + failure.what();
    }
    return "";
}

/// A circle of 2 at (.1, -.2), a line from (-1, 0) to (3, 4), a point at (0, 1.5).
inline Sheet SmallSheet(geometry::Unit unit) {
    using geometry::Kind;
    return {unit,
            {{Layer::Circles, 1, {Kind::Circle, 1, {2, .1, -.2, 0}}},
             {Layer::Lines, 2, {Kind::Line, 2, {-1, 0, 3, 4}}},
             {Layer::Points, 3, {Kind::Point, 3, {0, 1.5, 0, 0}}}}};
}

/// Four holes on a bolt circle of 10 at (1, 2), the first at 90 degrees.
inline HolePattern FourHoles() {
    return {{1, 2}, 10, 90, {{1, {1, 7}, 90}, {2, {-4, 2}, 180}, {3, {1, -3}, 270}, {4, {6, 2}, 0}}};
}

}  // namespace brindlex::cli
