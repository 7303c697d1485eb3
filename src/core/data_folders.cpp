#include "core/data_folders.h"

#include <algorithm>
#include <iterator>

namespace golf {

std::string DataFolder(const Platform& platform, const std::string& name) {
  return platform.ProgramFolder() + name + platform.Separator();
}

bool HasGolfData(Platform& platform) {
  return std::any_of(std::begin(kDataFolders), std::end(kDataFolders), [&](const char* name) {
    const std::string folder = DataFolder(platform, name);
    return platform.FolderExists(folder) && !platform.FileNames(folder).empty();
  });
}

}  // namespace golf
