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

// A file that was deleted in a run. It is still there until the commit.
struct HeldDeletion {
  std::string path;
  FileIdentity identity;
  std::int64_t length = 0;  // bytes
};

// Everything that a run has changed so far and that is held back from the disk.
class HeldChanges {
 public:
  explicit HeldChanges(Platform& real) : real_(real), store_(real) {}
  HeldChanges(const HeldChanges&) = delete;
  HeldChanges& operator=(const HeldChanges&) = delete;

  ChangeGroups& groups() { return groups_; }
  // In the order of their first changes.
  const std::vector<std::shared_ptr<HeldFileChanges>>& files() const { return files_; }
  const std::vector<HeldDeletion>& deletions() const { return deletions_; }
  bool IsEmpty() const { return files_.empty() && deletions_.empty(); }

  // The changes of a file; null where it has none.
  std::shared_ptr<HeldFileChanges> Of(const FileIdentity& identity) const;
  std::shared_ptr<HeldFileChanges> CreatedAt(const std::string& path) const;
  bool IsDeleted(const std::string& path) const;

  std::shared_ptr<HeldFileChanges> Begin(const std::string& path,
                                         std::shared_ptr<PlatformFile> real);
  // Does nothing where there is such a file.
  void Create(const std::string& path);
  // Error 53 where there is no such file.
  void Delete(const std::string& path);
  // The bytes of the first file become those of the other one, and the first file goes.
  void Rename(const std::string& from, const std::string& to);

 private:
  Platform& real_;
  SpillStore store_;
  ChangeGroups groups_;
  std::vector<std::shared_ptr<HeldFileChanges>> files_;
  std::vector<HeldDeletion> deletions_;
};

// A platform that can hold changes back. While it holds, nothing that is changed through it reaches
// the disk, and everybody who reads through it sees the changes. Files are really opened, with
// their locks. While it does not hold it hands every call on.
class HeldPlatform : public PlatformOver {
 public:
  using PlatformOver::PlatformOver;

  // Begins to hold. Files that are open already are held as well.
  void Hold();
  // Null while nothing is held back.
  HeldChanges* held() const { return held_.get(); }
  // Ends holding and gives the changes away: to be committed, or to be dropped.
  std::shared_ptr<HeldChanges> Release();

  // Called at each change that is held. An exception ends the run.
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
  // Tells open files that what they knew of held changes is out of date.
  std::uint64_t turn_ = 0;
};

}  // namespace golf
