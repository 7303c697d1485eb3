#pragma once

#include <algorithm>
#include <vector>

#include "core/numbered_error.h"
#include "history/stopped.h"

namespace golf {

enum class ExitCode : int {
  kDone = 0,
  kRefused = 1,  // the screen refuses, or a name, number or file does not exist
  kUsage = 2,    // wrong usage, or a script with a wrong line
  kError = 3,    // an error ended the run, or the run continued after faults
  kHeld = 4,     // another program has locked the files
};

// Returns 128 plus the number of the signal, as a shell does for a process that a signal has ended.
inline ExitCode ExitCodeOf(const Stopped& stopped) {
  constexpr int kSignalled = 128;
  return static_cast<ExitCode>(kSignalled + stopped.signal());
}

inline ExitCode ExitCodeOf(const NumberedError& error) {
  return error.Is(ErrorNumber::kPermissionDenied) ? ExitCode::kHeld : ExitCode::kError;
}

// Returns the exit code of a run that continued after these faults.
inline ExitCode ExitCodeOfFaults(const std::vector<NumberedError>& faults) {
  if (faults.empty()) return ExitCode::kDone;
  const bool held = std::any_of(faults.begin(), faults.end(), [](const NumberedError& fault) {
    return fault.Is(ErrorNumber::kPermissionDenied);
  });
  return held ? ExitCode::kHeld : ExitCode::kError;
}

}  // namespace golf
