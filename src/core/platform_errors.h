#pragma once

#include <string>

#include "core/numbered_error.h"

namespace golf {

// The reasons for which a call to the operating system fails, the same on every system.
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

// Makes the error for a fault with a file. Here and below, paths are in code page 1252.
NumberedError PlatformError(PlatformFault fault, const std::string& path);
// Makes error 57 for any other fault. `reason` is the system's own description.
NumberedError DeviceFault(const std::string& path, const std::string& reason);

// Makes error 76: the folder of the install is missing.
NumberedError NoInstall(const std::string& folder);
// Makes error 70: another process holds the lock of the install.
NumberedError AnotherRun(const std::string& folder);

}  // namespace golf
