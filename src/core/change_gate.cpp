#include "core/change_gate.h"

#include <utility>

#include "core/numbered_error.h"

namespace golf {
namespace {

// Replaces a missing file while changes are refused. It is empty and ignores every change.
class EmptyFile : public PlatformFile {
 public:
  std::size_t ReadAt(std::int64_t, std::span<char>) override { return 0; }
  void WriteAt(ChangePass, std::int64_t, std::string_view, std::size_t&) override {}
  void Truncate(ChangePass, std::int64_t) override {}
  void Sync(ChangePass) override {}
  void Close() override {}
  std::int64_t Length() override { return 0; }
  bool IsWritable() const override { return false; }
  FileIdentity Identity() const override { return {}; }
};

}  // namespace

std::unique_ptr<PlatformFile> ChangeGate::Open(const std::string& path, FileAccess access) {
  try {
    return platform_.Open(path, refuses_ ? FileAccess::kReadOnly : access);
  } catch (const NumberedError& error) {
    if (!error.Is(ErrorNumber::kFileNotFound) || access == FileAccess::kReadOnly) throw;
  }
  if (refuses_) return std::make_unique<EmptyFile>();
  platform_.Create(ChangePass(), path);
  return platform_.Open(path, access);
}

void ChangeGate::Write(PlatformFile& file, std::int64_t offset, std::string_view bytes) {
  if (refuses_) return;  // a value corrected in memory is then not written to the file
  std::size_t written = 0;
  file.WriteAt(ChangePass(), offset, bytes, written);
}

void ChangeGate::Delete(const std::string& path) {
  CheckAllowed(path);
  platform_.Delete(ChangePass(), path);
}

void ChangeGate::CreateFolder(const std::string& path) {
  CheckAllowed(path);
  platform_.CreateFolder(ChangePass(), path);
}

void ChangeGate::ReplaceText(const std::string& path, std::string_view text) {
  CheckAllowed(path);
  const std::string fresh = path + ".new";
  platform_.Create(ChangePass(), fresh);
  try {
    const auto file = platform_.Open(fresh, FileAccess::kReadWriteShared);
    std::size_t written = 0;
    file->WriteAt(ChangePass(), 0, text, written);
    file->Truncate(ChangePass(), static_cast<std::int64_t>(text.size()));
    file->Sync(ChangePass());
    file->Close();
    platform_.Rename(ChangePass(), fresh, path);
  } catch (const NumberedError&) {
    try {
      platform_.Delete(ChangePass(), fresh);
    } catch (const NumberedError&) {
      // This error is ignored, since the first error is rethrown.
    }
    throw;
  }
}

void ChangeGate::CheckAllowed(const std::string& path) const {
  if (refuses_) throw NumberedError(ErrorNumber::kPathAccess, path + " is only being read.");
}

}  // namespace golf
