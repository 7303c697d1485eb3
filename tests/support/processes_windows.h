#pragma once

#include <windows.h>

#include <string>

#include "support/processes.h"

namespace golf {

// These are the two halves of RunProgram. `flags` are those of the system for a new process.
PROCESS_INFORMATION StartProgramIn(const TempFolder& folder, const std::string& program,
                                   const std::string& words, const std::string& input, DWORD flags);
Ended EndOf(const TempFolder& folder, const PROCESS_INFORMATION& process);

}  // namespace golf
