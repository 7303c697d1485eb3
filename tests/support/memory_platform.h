#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform.h"

namespace golf {

// Ends the program that makes a call, like a killed process. No error handler catches it.
struct Died {};

// An install in memory, empty at first, for what runs many thousand times. No file grows above
// 16 MB: that is a full disk. A file that is open can be neither deleted nor renamed nor replaced
// (error 70), as on Windows. Names come back in capitals.
//
// A call that changes something is Create, CreateFolder, Delete, Rename, SyncFolder, and WriteAt,
// Truncate or Sync of a file that is no scratch file.
class MemoryPlatform : public Platform {
 public:
  MemoryPlatform();
  MemoryPlatform(MemoryPlatform&&) = default;
  MemoryPlatform& operator=(MemoryPlatform&&) = default;

  // Returns a copy of the files and of their synced states. No file of the copy is open.
  MemoryPlatform Copy() const;
  // Returns another process on the same disk. The disk exists as long as one of them.
  MemoryPlatform OnSameDisk() const;

  // Returns the bytes of a file by its path below the program's folder, in any case. Makes a
  // missing file and its folders on the disk. Bytes that a test changes here are not synced.
  std::string& Bytes(std::string_view name);
  // Returns all files with their bytes, by paths in capitals.
  std::map<std::string, std::string> Files() const;
  // Syncs everything.
  void SyncAll();

  // The power fails and comes back. Of the pages of 4 KB, the lengths and the names that changed
  // since they were last synced, some are lost: all with seed 0, none with seed 1, any others with
  // any other seed. A lost page has its synced bytes again, or zeros where it had none; a lost
  // length is the synced one; a lost name is that of before its creation, deletion or renaming, and
  // so are all later changes of this name. What is left is synced, and calls work again as after
  // Revive.
  void PowerCut(std::uint64_t seed);

  // The nth call from now on that changes something, and every call behind it, throws Died. If that
  // call is a write, `share` of its bytes, from 0 to 1, reach the file. A call raises error 57 if
  // it is made while Died unwinds the stack, since destructors may make it.
  void DieAt(int nth, double share = 0);
  // Starts another process: calls work again, no file is open and no lock is held. Calls on files
  // that were open raise error 57.
  void Revive();
  // Returns the number of calls that changed something since this disk was made or copied.
  int ChangingCalls() const;

  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access) override;
  void Create(ChangePass pass, const std::string& path) override;
  void CreateFolder(ChangePass pass, const std::string& path) override;
  void Delete(ChangePass pass, const std::string& path) override;
  void Rename(ChangePass pass, const std::string& from, const std::string& to) override;
  void SyncFolder(ChangePass pass, const std::string& folder) override;
  std::unique_ptr<PlatformFile> OpenScratch() override;
  bool FolderExists(const std::string& path) override;
  std::vector<std::string> FileNames(const std::string& folder) override;
  std::unique_ptr<RunLock> LockRun(const std::string& folder) override;
  void StartProgram(const std::string&, const std::string&) override {}
  std::string ProgramFolder() const override { return "/"; }
  std::string Utf8ProgramFolder() const override { return ProgramFolder(); }
  char Separator() const override { return '/'; }
  RegionalForms Regional() const override { return {}; }

 private:
  struct Disk;
  class File;
  class Lock;

  explicit MemoryPlatform(std::shared_ptr<Disk> disk) : disk_(std::move(disk)) {}

  std::shared_ptr<Disk> disk_;  // of the open files, too
};

}  // namespace golf
