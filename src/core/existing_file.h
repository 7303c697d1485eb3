#pragma once

#include <memory>
#include <string>

#include "core/platform.h"

namespace golf {

// Opens a file. Returns null if there is no such file. Other errors as Platform::Open.
std::unique_ptr<PlatformFile> OpenIfExists(Platform& platform, const std::string& path,
                                           FileAccess access);

// True if a file can be opened for reading. Raises any error other than 53.
bool FileExists(Platform& platform, const std::string& path);

}  // namespace golf
