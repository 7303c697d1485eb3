#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/numbered_error.h"
#include "core/platform_over.h"

namespace golf {

enum class Operation {
  kOpen,
  kCreate,
  kCreateFolder,
  kDelete,
  kRename,  // on the new path
  kRead,
  kWrite,
  kTruncate,
  kSync,
  kSyncFolder,
  kLength,
  kClose,
  kList,
  kLock,
  kScratch,
  kStart,
  kEnd  // their number
};

// One call to the system that is to fail.
struct Fault {
  ErrorNumber error = ErrorNumber::kDeviceFault;
  int nth = 1;                      // of the calls that the next two pick, from now on
  std::optional<Operation> only{};  // calls of this kind
  std::string name{};               // calls on a path that ends so, whatever the case
  bool stays = false;               // the calls behind it fail, too
  std::size_t bytes_first = 0;      // of a write: so many bytes reach the file before it fails
};

// A call that changed something on the disk. A write made to fail counts with what
// reached the file before. What happens to a scratch file is no change.
struct Change {
  Operation operation;
  std::string path;
  std::int64_t offset = 0;  // of a truncation: the length
  std::size_t size = 0;
  bool operator==(const Change&) const = default;
};

constexpr const char* kScratchName = "scratch";

// Forwards the calls to a real platform, counts and notes them, and can make them fail. All files
// that it opens must be closed before it is destroyed.
class FailingPlatform : public PlatformOver {
 public:
  using PlatformOver::PlatformOver;

  void Fail(Fault fault);
  void Heal() { fault_.reset(); }
  // A folder with copies of the install's files, as Windows keeps them.
  std::string redirected_folder;
  std::string RedirectedFolder() const override { return redirected_folder; }
  // True if the fault asked for has come.
  bool Failed() const { return failed_; }

  int Count(Operation operation) const { return counts_[static_cast<std::size_t>(operation)]; }
  int CountAll() const;
  const std::vector<Change>& changes() const { return changes_; }

  // Programs are written down as "path arguments" and started only if that is asked for.
  const std::vector<std::string>& started() const { return started_; }
  void StartForReal() { starts_ = true; }

  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access) override;
  void Create(ChangePass pass, const std::string& path) override {
    Make({Operation::kCreate, path}, [&] { PlatformOver::Create(pass, path); });
  }
  void CreateFolder(ChangePass pass, const std::string& path) override {
    Make({Operation::kCreateFolder, path}, [&] { PlatformOver::CreateFolder(pass, path); });
  }
  void Delete(ChangePass pass, const std::string& path) override {
    Make({Operation::kDelete, path}, [&] { PlatformOver::Delete(pass, path); });
  }
  void Rename(ChangePass pass, const std::string& from, const std::string& to) override {
    Make({Operation::kRename, to}, [&] { PlatformOver::Rename(pass, from, to); });
  }
  void SyncFolder(ChangePass pass, const std::string& folder) override {
    Pass(Operation::kSyncFolder, folder);
    PlatformOver::SyncFolder(pass, folder);
  }
  // The calls on a scratch file are counted and fail as those on a file named kScratchName.
  std::unique_ptr<PlatformFile> OpenScratch() override;
  std::vector<std::string> FileNames(const std::string& folder) override {
    Pass(Operation::kList, folder);
    return PlatformOver::FileNames(folder);
  }
  std::unique_ptr<RunLock> LockRun(const std::string& folder) override {
    Pass(Operation::kLock, folder);
    return PlatformOver::LockRun(folder);
  }
  void StartProgram(const std::string& path, const std::string& arguments) override;

 private:
  class File;

  // Counts the call. Returns true if it must fail.
  bool Failing(Operation operation, const std::string& path);
  void Pass(Operation operation, const std::string& path) {
    if (Failing(operation, path)) Throw(path);
  }
  [[noreturn]] void Throw(const std::string& path) const;
  // Makes a change and notes it.
  template <class Call>
  void Make(Change change, Call&& call) {
    Pass(change.operation, change.path);
    call();
    if (change.path != kScratchName) changes_.push_back(std::move(change));
  }

  std::optional<Fault> fault_;
  bool failed_ = false;
  std::array<int, static_cast<std::size_t>(Operation::kEnd)> counts_{};
  std::vector<Change> changes_;
  std::vector<std::string> started_;
  bool starts_ = false;
};

// Returns the pass of a test, which changes files without a gate.
inline ChangePass TestPass() { return std::bit_cast<ChangePass>(char{}); }

}  // namespace golf
