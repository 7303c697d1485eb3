#include "core/platform_errors.h"

#include <string_view>

namespace golf {
namespace {

struct Meaning {
  ErrorNumber number;
  std::string_view text;  // %1 is replaced by the file
};

constexpr Meaning kMeanings[] = {
    {ErrorNumber::kPermissionDenied,
     "Another program holds %1. Close that program, then try again."},
    {ErrorNumber::kDiskFull, "The disk is full: %1 could not be written."},
    {ErrorNumber::kDiskFull, "The disk quota is used up: %1 could not be written."},
    {ErrorNumber::kDiskFull, "%1 would become larger than this disk allows."},
    {ErrorNumber::kPathAccess, "Access to %1 is refused."},
    {ErrorNumber::kPathAccess,
     "Access to %1 is refused. The file is marked read-only: remove that mark in its properties, "
     "then try again."},
    {ErrorNumber::kPathAccess,
     "Access to %1 is refused. Your user account has no right to it: ask the person who manages "
     "this computer."},
    {ErrorNumber::kPathAccess,
     "Access to %1 is refused. Your user account may not change its folder: ask the person who "
     "manages this computer."},
    {ErrorNumber::kPathAccess, "%1 lies on a disk that may only be read."},
    {ErrorNumber::kPathAccess, "%1 is a folder."},
    {ErrorNumber::kPathAccess, "%1 is no file but a pipe or a device, or leads out of its folder."},
    {ErrorNumber::kPathAccess, "%1 is there already."},
    {ErrorNumber::kPathNotFound, "The folder of %1 is not there."},
    {ErrorNumber::kFileNotFound, "%1 is not there."},
    {ErrorNumber::kFileNotFound, "%1 is not there: its name is too long."},
    {ErrorNumber::kTooManyFiles, "Too many files are open: %1 could not be opened."},
    {ErrorNumber::kDeviceFault, "%1 would have taken the place of a standard stream."},
};

}  // namespace

NumberedError PlatformError(PlatformFault fault, const std::string& path) {
  const Meaning& meaning = kMeanings[static_cast<std::size_t>(fault)];
  std::string text(meaning.text);
  return {meaning.number, text.replace(text.find("%1"), 2, path)};
}

NumberedError HeldBy(const std::string& path, const std::vector<std::string>& programs) {
  const NumberedError held = PlatformError(PlatformFault::kHeld, path);
  if (programs.empty()) return held;
  std::string names = programs.front();
  for (std::size_t i = 1; i < programs.size(); ++i) {
    names += (i + 1 < programs.size() ? ", " : " and ") + programs[i];
  }
  return {ErrorNumber::kPermissionDenied,
          held.description() + (programs.size() == 1 ? " It is " : " They are ") + names + "."};
}

NumberedError DeviceFault(const std::string& path, const std::string& reason) {
  return {ErrorNumber::kDeviceFault, "A device fault with " + path + ": " + reason + "."};
}

NumberedError NoInstall(const std::string& folder) {
  return {ErrorNumber::kPathNotFound, "There is no folder " + folder + "."};
}

NumberedError AnotherRun(const std::string& folder) {
  return {ErrorNumber::kPermissionDenied, "Another transfer is running in " + folder +
                                              ". Wait until it has ended, then try again."};
}

}  // namespace golf
