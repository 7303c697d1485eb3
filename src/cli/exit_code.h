#pragma once

#include <algorithm>
#include <vector>

#include "core/numbered_error.h"
#include "history/stopped.h"

namespace golf {

enum class ExitCode : int {
  kDone = 0,
  kRefused = 1,  // the screen refuses, or a name, number or file does not exist
  kUsage = 2,    // wrong usage, or a script that cannot be followed
  kError = 3,    // an error ended the run, or the run went on after faults
  kHeld = 4,     // another program holds the files
};

// As the shell tells of a process that a signal has ended.
inline ExitCode ExitCodeOf(const Stopped& stopped) {
  constexpr int kSignalled = 128;
  return static_cast<ExitCode>(kSignalled + stopped.signal());
}

inline ExitCode ExitCodeOf(const NumberedError& error) {
  return error.Is(ErrorNumber::kPermissionDenied) ? ExitCode::kHeld : ExitCode::kError;
}

// Returns the exit code of a run that went on after faults. There must be at least one.
inline ExitCode ExitCodeOfFaults(const std::vector<NumberedError>& faults) {
  const bool held = std::any_of(faults.begin(), faults.end(), [](const NumberedError& fault) {
    return fault.Is(ErrorNumber::kPermissionDenied);
  });
  return held ? ExitCode::kHeld : ExitCode::kError;
}

}  // namespace golf
