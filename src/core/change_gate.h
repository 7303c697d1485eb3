#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/platform.h"

namespace golf {

// Makes every file change that a store or a screen requests. The platform may delay the changes
// until the run commits.
class ChangeGate {
 public:
  explicit ChangeGate(Platform& platform) : platform_(platform) {}

  // Refuses or allows changes. While changes are refused, Write writes nothing and raises no error,
  // and any other change raises error 75. Open returns an empty file for a missing one and does not
  // create it, unless the access is kReadOnly.
  void RefuseChanges(bool refuse = true) { refuses_ = refuse; }

  // Opens a file. Creates a missing file, but raises error 53 if the access is kReadOnly.
  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access);

  // Writes `bytes` at `offset`, in bytes from the start of the file.
  void Write(PlatformFile& file, std::int64_t offset, std::string_view bytes);

  void Delete(const std::string& path);
  void CreateFolder(const std::string& path);
  // Makes `text` the whole content of the file. A new file replaces the old one in one step, so a
  // failed write leaves the old content unchanged. Creates a missing file.
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
