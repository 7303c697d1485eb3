#include "core/change_gate.h"

#include <utility>

#include "core/numbered_error.h"

namespace golf {
namespace {

constexpr std::size_t kMostKept = std::size_t{128} << 10;

// Stands in for a missing file while changes are refused.
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

std::string ReadPart(PlatformFile& file, std::int64_t offset, std::size_t size) {
  std::string bytes(size, '\0');
  bytes.resize(file.ReadAt(offset, bytes));
  return bytes;
}

// Returns the bytes of the file, none if it cannot be read.
std::string WholeFile(Platform& platform, const std::string& path) {
  try {
    const auto file = platform.Open(path, FileAccess::kReadOnly);
    return ReadPart(*file, 0, static_cast<std::size_t>(file->Length()));
  } catch (const NumberedError&) {
    return {};
  }
}

}  // namespace

std::unique_ptr<PlatformFile> ChangeGate::Open(const std::string& path, FileAccess access) {
  try {
    return platform_.Open(path, refuses_ ? FileAccess::kReadOnly : access);
  } catch (const NumberedError& error) {
    if (!error.Is(ErrorNumber::kFileNotFound) || access == FileAccess::kReadOnly) throw;
  }
  if (refuses_) return std::make_unique<EmptyFile>();
  Announce(FileChange::Kind::kCreateFile, path);
  platform_.Create(ChangePass(), path);
  return platform_.Open(path, access);
}

void ChangeGate::WriteRecord(PlatformFile& file, const std::string& path, std::int64_t record,
                             std::size_t record_length, std::string_view bytes) {
  if (refuses_) return;  // values that a read corrected stay corrected in memory only
  const std::int64_t offset = (record - 1) * static_cast<std::int64_t>(record_length);
  if (observer_) {
    const auto old_bytes = [&] {
      Settle(file.Identity());
      return ReadPart(file, offset, bytes.size());
    };
    observer_({FileChange::Kind::kWriteRecord, path, record, bytes, old_bytes});
  }
  if (!joins_) {
    Settle();
    return WriteThrough(file, offset, record_length, bytes);
  }
  const FileIdentity identity = file.Identity();
  if (!Follows(identity, offset, record_length, bytes.size())) {
    Settle();
    kept_.bytes.clear();  // the capacity is used again
    kept_.file = &file;
    kept_.identity = identity;
    kept_.offset = offset;
    kept_.record_length = record_length;
  }
  kept_.bytes += bytes;
}

void ChangeGate::Delete(const std::string& path) {
  Announce(FileChange::Kind::kDelete, path);
  platform_.Delete(ChangePass(), path);
}

void ChangeGate::CreateFolder(const std::string& path) {
  Announce(FileChange::Kind::kCreateFolder, path);
  platform_.CreateFolder(ChangePass(), path);
}

void ChangeGate::ReplaceText(const std::string& path, std::string_view text) {
  Announce(FileChange::Kind::kReplaceText, path, text);
  std::unique_ptr<PlatformFile> file;
  try {
    file = platform_.Open(path, FileAccess::kReadWriteShared);
  } catch (const NumberedError& error) {
    if (!error.Is(ErrorNumber::kFileNotFound)) throw;
    platform_.Create(ChangePass(), path);
    file = platform_.Open(path, FileAccess::kReadWriteShared);
  }
  // Truncates last, so that a full disk leaves the rest of the old text in place.
  std::size_t written = 0;
  file->WriteAt(ChangePass(), 0, text, written);
  file->Truncate(ChangePass(), static_cast<std::int64_t>(text.size()));
  file->Close();
}

void ChangeGate::Settle() {
  if (kept_.file == nullptr) return;
  PlatformFile& file = *std::exchange(kept_.file, nullptr);
  WriteThrough(file, kept_.offset, kept_.record_length, kept_.bytes);
}

void ChangeGate::Settle(const FileIdentity& identity) {
  if (kept_.file != nullptr && kept_.identity == identity) Settle();
}

void ChangeGate::Announce(FileChange::Kind kind, const std::string& path,
                          std::string_view new_bytes) {
  Settle();
  if (refuses_) throw NumberedError(ErrorNumber::kPathAccess, path + " is only being read.");
  if (observer_) observer_({kind, path, 0, new_bytes, [&] { return WholeFile(platform_, path); }});
}

bool ChangeGate::Follows(const FileIdentity& identity, std::int64_t offset,
                         std::size_t record_length, std::size_t size) const {
  return kept_.file != nullptr && kept_.identity == identity &&
         kept_.record_length == record_length &&
         kept_.offset + static_cast<std::int64_t>(kept_.bytes.size()) == offset &&
         kept_.bytes.size() + size <= kMostKept;
}

void ChangeGate::WriteThrough(PlatformFile& file, std::int64_t offset, std::size_t record_length,
                              std::string_view bytes) {
  std::size_t written = 0;
  try {
    file.WriteAt(ChangePass(), offset, bytes, written);
  } catch (const NumberedError&) {
    // A disk that fills up inside a new record leaves an incomplete record at the end of the file.
    // It is cut off, so that the file ends with the last whole record.
    const std::int64_t reached = offset + static_cast<std::int64_t>(written);
    const auto torn = static_cast<std::int64_t>(written % record_length);
    try {
      if (torn != 0 && file.Length() == reached) file.Truncate(ChangePass(), reached - torn);
    } catch (const NumberedError&) {
      // The caller gets the first error.
    }
    throw;
  }
}

}  // namespace golf
