#pragma once

#include <string>

#include "core/numbered_error.h"

namespace golf {

// What the seam to the operating system has to tell of a failed call, the same on every system.
enum class PlatformFault {
  kHeld,
  kDiskFull,
  kQuotaUsedUp,
  kTooLarge,
  kRefused,
  kReadOnlyDisk,
  kIsFolder,
  kIsNoFile,
  kIsThere,
  kNoFolder,
  kNoFile,
  kNameTooLong,
  kTooManyFiles,
  kIsStandardStream,
};

// The error of a fault with a file; `path` is text, as everywhere below.
NumberedError PlatformError(PlatformFault fault, const std::string& path);
// Any other fault, with the system's own words for it.
NumberedError DeviceFault(const std::string& path, const std::string& reason);

// There is no folder to be the install.
NumberedError NoInstall(const std::string& folder);
// Another process has the lock of the install.
NumberedError AnotherRun(const std::string& folder);

}  // namespace golf
