#pragma once

#include <cstdint>
#include <string>

#include "core/platform.h"

namespace golf {

// These are the folders of the three programs in the folder of the install.
constexpr const char* kDataFolders[] = {"kvdata", "qbdata", "zddata"};

// Returns the path of one of these folders. It ends in a separator.
std::string DataFolder(const Platform& platform, const std::string& name);

// True if one of the three folders contains a file. Raises error 75 if a folder cannot be read.
bool HasGolfData(Platform& platform);

// Counts the files in the three folders.
struct DataSummary {
  int files = 0;
  std::int64_t changed = 0;  // of the newest file, as in FileStamp
};

// Returns no files for a folder that cannot be read.
DataSummary SummaryOfData(Platform& platform);

}  // namespace golf
