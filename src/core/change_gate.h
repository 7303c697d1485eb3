#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/platform.h"

namespace golf {

// Makes every change of a file that a store or a screen asks for. The platform below may hold it
// back until the run commits.
class ChangeGate {
 public:
  explicit ChangeGate(Platform& platform) : platform_(platform) {}

  // While changes are refused, Write writes nothing and raises no error. Any other change
  // raises error 75. A missing file that is not opened kReadOnly opens as an empty one, and is not
  // created.
  void RefuseChanges(bool refuse = true) { refuses_ = refuse; }

  // Opens a file. A missing one is created empty first; for kReadOnly it raises error 53.
  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access);

  // Writes `bytes` at a position of a file, in bytes.
  void Write(PlatformFile& file, std::int64_t offset, std::string_view bytes);

  void Delete(const std::string& path);
  void CreateFolder(const std::string& path);
  // Makes `text` the whole content of the file: a new file takes the place of the old one in one
  // step. A missing file is created.
  void ReplaceText(const std::string& path, std::string_view text);

 private:
  void CheckAllowed(const std::string& path) const;

  Platform& platform_;
  bool refuses_ = false;
};

// Refuses changes during its lifetime.
class RefusedChanges {
 public:
  explicit RefusedChanges(ChangeGate& gate) : gate_(gate) { gate_.RefuseChanges(); }
  ~RefusedChanges() { gate_.RefuseChanges(false); }
  RefusedChanges(const RefusedChanges&) = delete;
  RefusedChanges& operator=(const RefusedChanges&) = delete;

 private:
  ChangeGate& gate_;
};

}  // namespace golf
