#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/platform.h"

namespace golf {

// Forwards every call to another platform. It is the base class of platforms that change some of
// the calls.
class PlatformOver : public Platform {
 public:
  // `real` must outlive this object.
  explicit PlatformOver(Platform& real) : real_(real) {}

  Platform& real() { return real_; }

  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access) override {
    return real_.Open(path, access);
  }
  void Create(ChangePass pass, const std::string& path) override { real_.Create(pass, path); }
  void CreateFolder(ChangePass pass, const std::string& path) override {
    real_.CreateFolder(pass, path);
  }
  void Delete(ChangePass pass, const std::string& path) override { real_.Delete(pass, path); }
  void Rename(ChangePass pass, const std::string& from, const std::string& to) override {
    real_.Rename(pass, from, to);
  }
  void SyncFolder(ChangePass pass, const std::string& folder) override {
    real_.SyncFolder(pass, folder);
  }
  std::unique_ptr<PlatformFile> OpenScratch() override { return real_.OpenScratch(); }
  bool FolderExists(const std::string& path) override { return real_.FolderExists(path); }
  std::vector<std::string> FileNames(const std::string& folder) override {
    return real_.FileNames(folder);
  }
  std::unique_ptr<RunLock> LockRun(const std::string& folder) override {
    return real_.LockRun(folder);
  }
  FileStamp StampOf(const std::string& path) override { return real_.StampOf(path); }
  std::unique_ptr<StopWatch> WatchStops() override { return real_.WatchStops(); }
  void StartProgram(const std::string& path, const std::string& arguments) override {
    real_.StartProgram(path, arguments);
  }
  std::string ProgramFolder() const override { return real_.ProgramFolder(); }
  std::string Utf8ProgramFolder() const override { return real_.Utf8ProgramFolder(); }
  std::string RedirectedFolder() const override { return real_.RedirectedFolder(); }
  char Separator() const override { return real_.Separator(); }
  RegionalForms Regional() const override { return real_.Regional(); }

 private:
  Platform& real_;
};

}  // namespace golf
