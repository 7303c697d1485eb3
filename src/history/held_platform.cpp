#include "history/held_platform.h"

#include <algorithm>
#include <utility>

#include "core/existing_file.h"
#include "core/numbered_error.h"
#include "core/platform_errors.h"
#include "core/text.h"

namespace golf {
namespace {

// The volume in the identity of a file that a run has created. No system uses this number.
constexpr std::uint64_t kVolumeOfCreated = ~std::uint64_t{0};

FileIdentity IdentityOfCreated(const HeldFileChanges& file) {
  return {kVolumeOfCreated, reinterpret_cast<std::uintptr_t>(&file)};
}

bool IsSamePath(const std::string& a, const std::string& b) { return EqualIgnoringCase(a, b); }

NumberedError NotThere(const std::string& path) {
  return PlatformError(PlatformFault::kNoFile, path);
}

template <class File>
std::string ReadAll(File& file, std::int64_t length) {
  std::string bytes(static_cast<std::size_t>(length), '\0');
  bytes.resize(file.ReadAt(0, bytes));
  return bytes;
}

}  // namespace

bool HeldChanges::HasNetChange() const {
  return !deletions_.empty() || std::any_of(files_.begin(), files_.end(),
                                            [](const auto& file) { return file->HasNetChange(); });
}

std::shared_ptr<HeldFileChanges> HeldChanges::Of(const FileIdentity& identity) const {
  const auto file = std::find_if(files_.begin(), files_.end(), [&](const auto& candidate) {
    return !candidate->is_created() && candidate->real()->Identity() == identity;
  });
  return file == files_.end() ? nullptr : *file;
}

std::shared_ptr<HeldFileChanges> HeldChanges::CreatedAt(const std::string& path) const {
  const auto file = std::find_if(files_.begin(), files_.end(), [&](const auto& candidate) {
    return candidate->is_created() && IsSamePath(candidate->path(), path);
  });
  return file == files_.end() ? nullptr : *file;
}

bool HeldChanges::IsDeleted(const std::string& path) const {
  return std::any_of(deletions_.begin(), deletions_.end(),
                     [&](const HeldDeletion& deletion) { return IsSamePath(deletion.path, path); });
}

std::shared_ptr<HeldFileChanges> HeldChanges::Begin(const std::string& path,
                                                    std::shared_ptr<PlatformFile> real) {
  auto file = std::make_shared<HeldFileChanges>(path, std::move(real), store_);
  file->on_shared = [this](ChangeGroup a, ChangeGroup b) { groups_.Join(a, b); };
  files_.push_back(file);
  return file;
}

void HeldChanges::Create(const std::string& path) {
  if (CreatedAt(path) != nullptr) return;
  if (IsDeleted(path) || !FileExists(real_, path)) Begin(path, nullptr);
}

void HeldChanges::Delete(const std::string& path) {
  if (const auto created = CreatedAt(path)) {
    std::erase(files_, created);
    return;
  }
  if (IsDeleted(path)) throw NotThere(path);
  const auto real = real_.Open(path, FileAccess::kReadOnly);
  deletions_.push_back({path, real->Identity(), real->Length()});
  if (const auto changed = Of(real->Identity())) std::erase(files_, changed);
}

void HeldChanges::Rename(const std::string& from, const std::string& to) {
  std::string bytes;
  if (const auto source = CreatedAt(from)) {
    bytes = ReadAll(*source, source->length());
  } else {
    if (IsDeleted(from)) throw NotThere(from);
    const auto real = real_.Open(from, FileAccess::kReadOnly);
    const auto changed = Of(real->Identity());
    bytes =
        changed != nullptr ? ReadAll(*changed, changed->length()) : ReadAll(*real, real->Length());
  }
  Delete(from);
  auto target = CreatedAt(to);
  if (target == nullptr && !IsDeleted(to)) {
    std::shared_ptr<PlatformFile> real = OpenIfExists(real_, to, FileAccess::kReadWriteShared);
    if (real != nullptr) target = Of(real->Identity());
    if (real != nullptr && target == nullptr) target = Begin(to, std::move(real));
  }
  if (target == nullptr) target = Begin(to, nullptr);
  target->WriteAt(0, bytes, groups_.Current());
  target->Truncate(std::ssize(bytes), groups_.Current());
}

// Implements an open file. Its reads return the held changes.
class HeldPlatform::File : public PlatformFile {
 public:
  File(HeldPlatform& platform, std::string path, std::shared_ptr<PlatformFile> real,
       std::shared_ptr<HeldFileChanges> created)
      : platform_(platform),
        path_(std::move(path)),
        real_(std::move(real)),
        changes_(std::move(created)),
        turn_(platform.turn_) {
    NoteStamp();
  }

  std::size_t ReadAt(std::int64_t offset, std::span<char> into) override {
    if (HeldFileChanges* changes = Changes()) return changes->ReadAt(offset, into);
    const std::size_t size = Real().ReadAt(offset, into);
    if (platform_.held_ != nullptr) read_.Note(offset, into.first(size));
    return size;
  }

  void WriteAt(ChangePass pass, std::int64_t offset, std::string_view bytes,
               std::size_t& written) override {
    if (!Holds()) return Real().WriteAt(pass, offset, bytes, written);
    platform_.NoteChange();
    Begin().WriteAt(offset, bytes, platform_.held_->groups().Current());
    written = bytes.size();
  }

  void Truncate(ChangePass pass, std::int64_t length) override {
    if (!Holds()) return Real().Truncate(pass, length);
    platform_.NoteChange();
    Begin().Truncate(length, platform_.held_->groups().Current());
  }

  // Does nothing while changes are held, since the commit syncs them.
  void Sync(ChangePass pass) override {
    if (!Holds()) Real().Sync(pass);
  }

  std::int64_t Length() override {
    HeldFileChanges* changes = Changes();
    return changes != nullptr ? changes->length() : Real().Length();
  }

  bool IsWritable() const override { return real_ == nullptr || real_->IsWritable(); }

  FileIdentity Identity() const override {
    return real_ != nullptr ? real_->Identity() : IdentityOfCreated(*changes_);
  }

  // Keeps the real file open if it has held changes. HeldFileChanges closes it after the commit or
  // the drop.
  void Close() override {
    const HeldFileChanges* changes = Changes();
    const bool needed = real_ == nullptr || (changes != nullptr && changes->real() == real_);
    const auto closing = std::exchange(real_, nullptr);
    if (!needed) closing->Close();
  }

 private:
  // True if a write is held. A write to a read-only file is not held, so that the real file raises
  // its error.
  bool Holds() const { return platform_.held_ != nullptr && IsWritable(); }

  HeldFileChanges* Changes() {
    if (turn_ != platform_.turn_) {
      turn_ = platform_.turn_;
      if (real_ == nullptr) OpenCommitted();
      changes_ = nullptr;
      read_ = {};  // these bytes were read in an earlier run
      NoteStamp();
    }
    if (changes_ == nullptr && platform_.held_ != nullptr) {
      changes_ = platform_.held_->Of(real_->Identity());
    }
    return changes_.get();
  }

  HeldFileChanges& Begin() {
    if (Changes() == nullptr) {
      changes_ = platform_.held_->Begin(path_, real_);
      changes_->NoteRead(read_);
      changes_->NoteStamp(stamp_);
    }
    return *changes_;
  }

  void NoteStamp() { stamp_ = real_ != nullptr ? real_->Stamp() : std::nullopt; }

  PlatformFile& Real() {
    Changes();
    if (real_ == nullptr) throw NotThere(path_);
    return *real_;
  }

  // Opens the real file of a file that an earlier run has created. Raises error 53 if that run was
  // not committed.
  void OpenCommitted() { real_ = platform_.real().Open(path_, FileAccess::kReadWriteShared); }

  HeldPlatform& platform_;
  std::string path_;
  std::shared_ptr<PlatformFile> real_;
  std::shared_ptr<HeldFileChanges> changes_;
  std::uint64_t turn_;
  FileWindow read_;                 // the last bytes that were read before the first held change
  std::optional<FileStamp> stamp_;  // of the real file, before any byte of this run was read
};

void HeldPlatform::Hold() {
  held_ = std::make_shared<HeldChanges>(real());
  ++turn_;
}

std::shared_ptr<HeldChanges> HeldPlatform::Release() {
  ++turn_;
  return std::exchange(held_, nullptr);
}

std::unique_ptr<PlatformFile> HeldPlatform::Open(const std::string& path, FileAccess access) {
  if (held_ != nullptr) {
    if (auto created = held_->CreatedAt(path)) {
      return std::make_unique<File>(*this, path, nullptr, std::move(created));
    }
    if (held_->IsDeleted(path)) throw NotThere(path);
  }
  return std::make_unique<File>(*this, path, PlatformOver::Open(path, access), nullptr);
}

void HeldPlatform::Create(ChangePass pass, const std::string& path) {
  if (held_ == nullptr) return PlatformOver::Create(pass, path);
  NoteChange();
  const std::string folder = path.substr(0, path.rfind(Separator()) + 1);
  if (!FolderExists(folder)) throw PlatformError(PlatformFault::kNoFolder, path);
  held_->Create(path);
}

void HeldPlatform::Delete(ChangePass pass, const std::string& path) {
  if (held_ == nullptr) return PlatformOver::Delete(pass, path);
  NoteChange();
  held_->Delete(path);
}

void HeldPlatform::Rename(ChangePass pass, const std::string& from, const std::string& to) {
  if (held_ == nullptr) return PlatformOver::Rename(pass, from, to);
  NoteChange();
  held_->Rename(from, to);
}

void HeldPlatform::SyncFolder(ChangePass pass, const std::string& folder) {
  if (held_ == nullptr) PlatformOver::SyncFolder(pass, folder);
}

std::vector<std::string> HeldPlatform::FileNames(const std::string& folder) {
  std::vector<std::string> names = PlatformOver::FileNames(folder);
  if (held_ == nullptr) return names;
  std::erase_if(names, [&](const std::string& name) { return held_->IsDeleted(folder + name); });
  for (const auto& file : held_->files()) {
    const std::string& path = file->path();
    const std::size_t name = path.rfind(Separator()) + 1;
    if (file->is_created() && IsSamePath(path.substr(0, name), folder)) {
      names.push_back(path.substr(name));
    }
  }
  return names;
}

}  // namespace golf
