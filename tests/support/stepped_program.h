#pragma once

#include <functional>
#include <string>

#include "support/processes.h"

namespace golf {

// Tells what happens to a program before a call to the system.
enum class AtCall {
  kGoOn,
  kKill,          // ends it at once
  kLoseDrive,     // lets this call and all later ones fail, as if the drive had gone
  kCloseConsole,  // reports to it that its console closes
};

// Runs a program on Windows as RunProgram does, and as its debugger. Calls `at_call` before each
// call to the system that opens or changes a file: a write, a flush, a new name or length, or a
// deletion. `call` is the number of this call, from 1.
Ended RunStepped(const TempFolder& folder, const std::string& program, const std::string& words,
                 const std::function<AtCall(int call)>& at_call);

// Is the exit code of a killed program.
inline constexpr int kKilledCode = 99;

}  // namespace golf
