#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform.h"

namespace golf {

// An install in memory, for tests that run many thousand times. A file that would grow above 16 MB
// meets a full disk.
class MemoryPlatform : public Platform {
 public:
  // Returns a platform with a copy of all files.
  MemoryPlatform Copy() const;
  // Returns the bytes of a file. Its name, in any case, is a path below the program's folder.
  std::string& Bytes(std::string_view name);

  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access) override;
  void Create(ChangePass pass, const std::string& path) override;
  void CreateFolder(ChangePass, const std::string&) override {}
  void Delete(ChangePass pass, const std::string& path) override;
  bool FolderExists(const std::string&) override { return true; }
  std::vector<std::string> FileNames(const std::string& folder) override;
  std::unique_ptr<RunLock> LockRun(const std::string&) override { return nullptr; }
  void StartProgram(const std::string&, const std::string&) override {}
  std::string ProgramFolder() const override { return "/"; }
  char Separator() const override { return '/'; }
  RegionalForms Regional() const override { return {}; }

 private:
  class File;

  std::map<std::string, std::shared_ptr<std::string>> files_;  // by path in capitals
};

}  // namespace golf
