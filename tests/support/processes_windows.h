#pragma once

#include <windows.h>

#include <string>

#include "support/processes.h"

namespace golf {

// These are the two halves of RunProgram. `flags` are those of the system for a new process.
PROCESS_INFORMATION StartProgramIn(const TempFolder& folder, const std::string& program,
                                   const std::string& words, const std::string& input, DWORD flags);
Ended EndOf(const TempFolder& folder, const PROCESS_INFORMATION& process);

// Returns the routine that Windows runs in a new thread of a program to report a console event.
// Returns null if the system has no such routine.
LPTHREAD_START_ROUTINE ConsoleEventRoutine();

}  // namespace golf
