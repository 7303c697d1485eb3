#pragma once

#include <memory>
#include <string>

#include "core/platform.h"

namespace golf {

// Opens a file. Returns null if the file does not exist. Raises all other errors of Platform::Open.
std::unique_ptr<PlatformFile> OpenIfExists(Platform& platform, const std::string& path,
                                           FileAccess access);

// True if the file exists. Opens it for reading, and raises all errors of Platform::Open other than
// 53.
bool FileExists(Platform& platform, const std::string& path);

}  // namespace golf
