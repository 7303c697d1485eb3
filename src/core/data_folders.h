#pragma once

#include <string>

#include "core/platform.h"

namespace golf {

// These are the folders of the three programs in the folder of the install.
constexpr const char* kDataFolders[] = {"kvdata", "qbdata", "zddata"};

// Returns the path of one of these folders. It ends in a separator.
std::string DataFolder(const Platform& platform, const std::string& name);

// True if one of the three folders contains a file. Raises error 75 if a folder cannot be read.
bool HasGolfData(Platform& platform);

}  // namespace golf
