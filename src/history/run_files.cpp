#include "history/run_files.h"

#include "core/existing_file.h"

namespace golf {

std::shared_ptr<PlatformFile> RunFiles::Open(const std::string& path) {
  if (open_) {
    if (auto file = open_(path)) return file;
  }
  return OpenIfExists(gate_.platform(), path, FileAccess::kReadWriteShared);
}

bool RunFiles::Exists(const std::string& path) { return FileExists(gate_.platform(), path); }

}  // namespace golf
