#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform_over.h"
#include "history/change_groups.h"
#include "history/held_file_changes.h"

namespace golf {

// Describes a file that a run deletes. It exists on the disk until the commit.
struct HeldDeletion {
  std::string path;
  FileIdentity identity;
  std::int64_t length = 0;  // bytes
};

// Contains all held changes of a run.
class HeldChanges {
 public:
  explicit HeldChanges(Platform& real) : real_(real), store_(real) {}
  HeldChanges(const HeldChanges&) = delete;
  HeldChanges& operator=(const HeldChanges&) = delete;

  ChangeGroups& groups() { return groups_; }
  // Returns the changed files in the order of their first changes.
  const std::vector<std::shared_ptr<HeldFileChanges>>& files() const { return files_; }
  const std::vector<HeldDeletion>& deletions() const { return deletions_; }
  // True if the files would differ from their state before the run.
  bool HasNetChange() const;

  // Both functions return the changes of a file, or null if it has none.
  std::shared_ptr<HeldFileChanges> Of(const FileIdentity& identity) const;
  std::shared_ptr<HeldFileChanges> CreatedAt(const std::string& path) const;
  bool IsDeleted(const std::string& path) const;

  // Begins to hold changes of a file. `real` is null if the run creates the file.
  std::shared_ptr<HeldFileChanges> Begin(const std::string& path,
                                         std::shared_ptr<PlatformFile> real);
  // Does nothing if the file exists.
  void Create(const std::string& path);
  // Raises error 53 if the file does not exist.
  void Delete(const std::string& path);
  // Replaces the bytes of `to` by those of `from`, and deletes `from`. Creates `to` if it does not
  // exist. Raises error 53 if `from` does not exist.
  void Rename(const std::string& from, const std::string& to);

 private:
  Platform& real_;
  SpillStore store_;
  ChangeGroups groups_;
  std::vector<std::shared_ptr<HeldFileChanges>> files_;
  std::vector<HeldDeletion> deletions_;
};

// Implements a platform that can hold changes. While it holds, no change through it reaches the
// disk, and every read through it returns the changed bytes. It opens the real files meanwhile, so
// their locks apply. While it does not hold, it forwards every call to the real platform.
class HeldPlatform : public PlatformOver {
 public:
  using PlatformOver::PlatformOver;

  // Begins to hold changes, also those of files that are already open. Drops changes that were held
  // before.
  void Hold();
  // Returns the held changes, or null if the platform does not hold.
  HeldChanges* held() const { return held_.get(); }
  // Stops holding and returns the changes that were held.
  std::shared_ptr<HeldChanges> Release();

  // Is called before each change is held. An exception that it raises ends the run.
  std::function<void()> on_change;

  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access) override;
  void Create(ChangePass pass, const std::string& path) override;
  void Delete(ChangePass pass, const std::string& path) override;
  void Rename(ChangePass pass, const std::string& from, const std::string& to) override;
  void SyncFolder(ChangePass pass, const std::string& folder) override;
  std::vector<std::string> FileNames(const std::string& folder) override;

 private:
  class File;

  void NoteChange() const {
    if (on_change) on_change();
  }

  std::shared_ptr<HeldChanges> held_;
  // Counts the calls of Hold and Release. An open file compares it to find out that its pointer to
  // held changes is out of date.
  std::uint64_t turn_ = 0;
};

}  // namespace golf
