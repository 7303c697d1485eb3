#pragma once

#include <string>
#include <vector>

#include "core/numbered_error.h"

namespace golf {

// Lists the reasons why a call to the operating system fails. They are the same on every system.
enum class PlatformFault {
  kHeld,
  kDiskFull,
  kQuotaUsedUp,
  kTooLarge,
  kRefused,
  kReadOnlyFile,
  kNoFileRights,
  kNoFolderRights,
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

// Returns the error for a fault with a file. All paths here are in code page 1252.
NumberedError PlatformError(PlatformFault fault, const std::string& path);
// Returns error 70 for a file that another program has open. `programs` are the names of such
// programs, as far as they are known.
NumberedError HeldBy(const std::string& path, const std::vector<std::string>& programs);
// Returns error 57, which reports any other fault. `reason` is the system's description of the
// fault.
NumberedError DeviceFault(const std::string& path, const std::string& reason);

// Returns error 76, which reports that the folder of the install does not exist.
NumberedError NoInstall(const std::string& folder);
// Returns error 70, which reports that another process holds the lock of the install.
NumberedError AnotherRun(const std::string& folder);

}  // namespace golf
