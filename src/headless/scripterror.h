// Why a command of a script is answered with "error".
#pragma once

#include <stdexcept>

namespace brindlex {

/// The command is not understood, names nothing, or asks for what cannot be done; nothing has happened. The text is
/// what follows the word "error" in the answer.
class ScriptError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace brindlex
