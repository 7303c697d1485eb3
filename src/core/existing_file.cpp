#include "core/existing_file.h"

#include "core/numbered_error.h"

namespace golf {

std::unique_ptr<PlatformFile> OpenIfExists(Platform& platform, const std::string& path,
                                           FileAccess access) {
  try {
    return platform.Open(path, access);
  } catch (const NumberedError& error) {
    if (error.Is(ErrorNumber::kFileNotFound)) return nullptr;
    throw;
  }
}

bool FileExists(Platform& platform, const std::string& path) {
  return OpenIfExists(platform, path, FileAccess::kReadOnly) != nullptr;
}

}  // namespace golf
