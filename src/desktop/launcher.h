// Other programs, started and left to themselves.
#pragma once

#include <string>

namespace brindlex {

/// Starts the platform's counterpart of a program that is known by its name on the program's first platform; false
/// where none is installed.
bool StartCounterpart(const std::string& name);
/// Opens a web or mail address in the user's program for it.
bool OpenInUsersProgram(const std::string& address);

}  // namespace brindlex
