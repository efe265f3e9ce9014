// Run-time faults of the form runtime, by the runtime's error numbers, and guarded steps.
// Ground floor: includes only the standard library.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace brindlex {

/// The runtime's error numbers that the program meets.
enum class FaultNumber : int {
    BadArgument = 5,  ///< a bad argument to a built-in: square root of a negative number, negative slice length
    Overflow = 6,     ///< a result out of range, a number text out of range, 0 divided by 0
    OutOfMemory = 7,
    DivisionByZero = 11,  ///< a non-zero number divided by 0
    OutOfStack = 28,      ///< handlers nested deeper than any real chain
    FileNotFound = 53,
    FileIo = 57,  ///< a file that can't be opened, read, written or renamed
    PermissionDenied = 70,
    DialogCancelled = 32755,  ///< Cancel in a common dialog with CancelError
};

/// A run-time fault on its way to the route that handles it.
class Fault : public std::runtime_error {
public:
    explicit Fault(FaultNumber number);
    Fault(FaultNumber number, const std::string& description);

    [[nodiscard]] FaultNumber Number() const noexcept { return number_; }

private:
    FaultNumber number_;
};

/// The runtime's own words for a fault: "Overflow" for number 6, and so on.
[[nodiscard]] std::string FaultDescription(FaultNumber number);

/// Runs a step that is skipped when it faults: what it would have set keeps its value.
/// Returns whether the step ran to its end.
template <class Step>
bool Guarded(Step&& step) {
    try {
        std::forward<Step>(step)();
        return true;
    } catch (const Fault&) {
        return false;
    }
}

}  // namespace brindlex
