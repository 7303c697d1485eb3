#pragma once

#include <functional>
#include <string>

#include "support/processes.h"

namespace golf {

// Runs a program on Windows as RunProgram does, and as its debugger. Calls `kills_before` before
// each call to the system that opens or changes a file: a write, a flush, a new name or length, or
// a deletion. Kills the program there if the function returns true. The number of the call counts
// from 1.
Ended RunStepped(const TempFolder& folder, const std::string& program, const std::string& words,
                 const std::function<bool(int call)>& kills_before);

// Is the exit code of a killed program.
inline constexpr int kKilledCode = 99;

}  // namespace golf
