// The words of the runtime for its error numbers.
#include "frame/fault.h"

#include <array>

namespace brindlex {

namespace {

struct Words {
    FaultNumber number;
    const char* text;
};

constexpr std::array Descriptions{
    Words{FaultNumber::BadArgument, "Invalid procedure call or argument"},
    Words{FaultNumber::Overflow, "Overflow"},
    Words{FaultNumber::OutOfMemory, "Out of memory"},
    Words{FaultNumber::DivisionByZero, "Division by zero"},
    Words{FaultNumber::FileNotFound, "File not found"},
    Words{FaultNumber::FileIo, "Device I/O error"},
    Words{FaultNumber::PermissionDenied, "Permission denied"},
    Words{FaultNumber::DialogCancelled, "Cancel was selected."},
};

}  // namespace

Fault::Fault(FaultNumber number) : Fault(number, FaultDescription(number)) {
}

Fault::Fault(FaultNumber number, const std::string& description) : std::runtime_error(description), number_(number) {
}

std::string FaultDescription(FaultNumber number) {
    for (const Words& words : Descriptions) {
        if (words.number == number) {
            return words.text;
        }
    }
    return "Application-defined or object-defined error";
}

}  // namespace brindlex
