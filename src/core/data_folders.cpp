#include "core/data_folders.h"

#include <algorithm>
#include <iterator>

#include "core/resume_next.h"

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

DataSummary SummaryOfData(Platform& platform) {
  DataSummary summary;
  for (const char* name : kDataFolders) {
    const std::string folder = DataFolder(platform, name);
    const ResumeNext anyway(nullptr);
    anyway([&] {
      if (!platform.FolderExists(folder)) return;
      for (const std::string& file : platform.FileNames(folder)) {
        ++summary.files;
        summary.changed = std::max(summary.changed, platform.StampOf(folder + file).changed);
      }
    });
  }
  return summary;
}

}  // namespace golf
