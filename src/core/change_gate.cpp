#include "core/change_gate.h"

#include <utility>

#include "core/numbered_error.h"

namespace golf {
namespace {

constexpr std::size_t kMostKept = std::size_t{1} << 20;

// What a reading command sees in place of a file that is not there.
class EmptyFile : public PlatformFile {
 public:
  std::size_t ReadAt(std::int64_t, std::span<char>) override { return 0; }
  void WriteAt(ChangePass, std::int64_t, std::string_view, std::size_t&) override {}
  void Truncate(ChangePass, std::int64_t) override {}
  std::int64_t Length() override { return 0; }
  FileIdentity Identity() const override { return {}; }
};

std::string ReadWhole(PlatformFile& file, std::int64_t offset, std::size_t size) {
  std::string bytes(size, '\0');
  bytes.resize(file.ReadAt(offset, bytes));
  return bytes;
}

}  // namespace

std::unique_ptr<PlatformFile> ChangeGate::Open(const std::string& path, FileAccess access) {
  try {
    return platform_.Open(path, refuses_ ? FileAccess::kReadOnly : access);
  } catch (const NumberedError& error) {
    if (!error.Is(ErrorNumber::kFileNotFound)) throw;
  }
  if (refuses_) return std::make_unique<EmptyFile>();
  Tell(FileChange::Kind::kCreateFile, path);
  platform_.Create(ChangePass(), path);
  return platform_.Open(path, access);
}

void ChangeGate::WriteRecord(PlatformFile& file, const std::string& path, std::int64_t record,
                             std::size_t record_length, std::string_view bytes) {
  if (refuses_) throw NumberedError(ErrorNumber::kPathAccess, path + " is only being read.");
  const std::int64_t offset = (record - 1) * static_cast<std::int64_t>(record_length);
  if (observer_) {
    const auto old_bytes = [&] {
      Settle(file.Identity());
      return ReadWhole(file, offset, bytes.size());
    };
    observer_({FileChange::Kind::kWriteRecord, path, record, bytes, old_bytes});
  }
  if (!joins_) {
    Settle();
    return WriteThrough(file, offset, record_length, bytes);
  }
  const FileIdentity identity = file.Identity();
  if (!Follows(identity, offset, bytes.size())) {
    Settle();
    kept_ = {&file, identity, offset, record_length, {}};
  }
  kept_.bytes += bytes;
}

void ChangeGate::Delete(const std::string& path) {
  Tell(FileChange::Kind::kDelete, path);
  platform_.Delete(ChangePass(), path);
}

void ChangeGate::CreateFolder(const std::string& path) {
  Tell(FileChange::Kind::kCreateFolder, path);
  platform_.CreateFolder(ChangePass(), path);
}

void ChangeGate::ReplaceText(const std::string& path, std::string_view text) {
  Settle();
  if (refuses_) throw NumberedError(ErrorNumber::kPathAccess, path + " is only being read.");
  if (observer_) {
    const auto old_bytes = [&]() -> std::string {
      try {
        const auto file = platform_.Open(path, FileAccess::kReadOnly);
        return ReadWhole(*file, 0, static_cast<std::size_t>(file->Length()));
      } catch (const NumberedError&) {
        return {};
      }
    };
    observer_({FileChange::Kind::kReplaceText, path, 0, text, old_bytes});
  }
  platform_.Create(ChangePass(), path);
  const auto file = platform_.Open(path, FileAccess::kReadWriteShared);
  std::size_t written = 0;
  file->WriteAt(ChangePass(), 0, text, written);
}

void ChangeGate::Settle() {
  if (kept_.file == nullptr) return;
  const KeptWrites writes = std::exchange(kept_, {});
  WriteThrough(*writes.file, writes.offset, writes.record_length, writes.bytes);
}

void ChangeGate::Settle(const FileIdentity& identity) {
  if (kept_.file != nullptr && kept_.identity == identity) Settle();
}

void ChangeGate::Tell(FileChange::Kind kind, const std::string& path) {
  Settle();
  if (refuses_) throw NumberedError(ErrorNumber::kPathAccess, path + " is only being read.");
  if (observer_) observer_({kind, path, 0, {}, [] { return std::string(); }});
}

bool ChangeGate::Follows(const FileIdentity& identity, std::int64_t offset,
                         std::size_t size) const {
  return kept_.file != nullptr && kept_.identity == identity &&
         kept_.offset + static_cast<std::int64_t>(kept_.bytes.size()) == offset &&
         kept_.bytes.size() + size <= kMostKept;
}

void ChangeGate::WriteThrough(PlatformFile& file, std::int64_t offset, std::size_t record_length,
                              std::string_view bytes) {
  std::size_t written = 0;
  try {
    file.WriteAt(ChangePass(), offset, bytes, written);
  } catch (const NumberedError&) {
    // A disk that filled up inside a new record leaves its torn start at the end of the file: cut
    // it off, so that the file ends with the last record that was written whole.
    const std::int64_t reached = offset + static_cast<std::int64_t>(written);
    if (written % record_length != 0 && file.Length() == reached) {
      file.Truncate(ChangePass(), reached - static_cast<std::int64_t>(written % record_length));
    }
    throw;
  }
}

}  // namespace golf
