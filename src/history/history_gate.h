#pragma once

#include <string>
#include <string_view>

#include "core/platform.h"

namespace golf {

// Makes every file change of src/history. Raises errors of the platform.
class HistoryGate {
 public:
  explicit HistoryGate(Platform& platform) : platform_(platform) {}

  Platform& platform() { return platform_; }

  void Write(PlatformFile& file, std::int64_t offset, std::string_view bytes) {
    std::size_t written = 0;
    file.WriteAt(ChangePass(), offset, bytes, written);
  }
  void Truncate(PlatformFile& file, std::int64_t length) { file.Truncate(ChangePass(), length); }
  void Sync(PlatformFile& file) { file.Sync(ChangePass()); }

  void Create(const std::string& path) { platform_.Create(ChangePass(), path); }
  void CreateFolder(const std::string& path) { platform_.CreateFolder(ChangePass(), path); }
  void Delete(const std::string& path) { platform_.Delete(ChangePass(), path); }
  void Rename(const std::string& from, const std::string& to) {
    platform_.Rename(ChangePass(), from, to);
  }
  void SyncFolder(const std::string& folder) { platform_.SyncFolder(ChangePass(), folder); }

 private:
  Platform& platform_;
};

}  // namespace golf
