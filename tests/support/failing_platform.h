#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/numbered_error.h"
#include "core/platform.h"

namespace golf {

enum class Operation {
  kOpen,
  kCreate,
  kCreateFolder,
  kDelete,
  kRead,
  kWrite,
  kTruncate,
  kLength,
  kClose,
  kList,
  kLock,
  kStart,
  kEnd  // their number
};

// A call to the system that must fail.
struct Fault {
  ErrorNumber error = ErrorNumber::kDeviceFault;
  int nth = 1;                      // of the calls from now on that match the next two
  std::optional<Operation> only{};  // only calls of this kind
  std::string name{};               // only calls on a path with this ending, in any case
  bool stays = false;               // the later calls fail, too
  std::size_t bytes_first = 0;      // the bytes of a write that reach the file before it fails
};

// A call that changed something on the disk. A failed write counts with the bytes that reached the
// file.
struct Change {
  Operation operation;
  std::string path;
  std::int64_t offset = 0;  // of a truncation, the length
  std::size_t size = 0;
  bool operator==(const Change&) const = default;
};

// A real platform that counts and notes its calls and can make them fail. Every file that it opens
// must be closed before it is destroyed.
class FailingPlatform : public Platform {
 public:
  explicit FailingPlatform(Platform& real) : real_(real) {}

  void Fail(Fault fault);
  void Heal() { fault_.reset(); }
  // True if the fault has occurred.
  bool Failed() const { return failed_; }

  int Count(Operation operation) const { return counts_[static_cast<std::size_t>(operation)]; }
  int CountAll() const;
  const std::vector<Change>& changes() const { return changes_; }

  // Started programs are noted as "path arguments". They really start only after StartForReal.
  const std::vector<std::string>& started() const { return started_; }
  void StartForReal() { starts_ = true; }

  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access) override;
  void Create(ChangePass pass, const std::string& path) override;
  void CreateFolder(ChangePass pass, const std::string& path) override;
  void Delete(ChangePass pass, const std::string& path) override;
  bool FolderExists(const std::string& path) override { return real_.FolderExists(path); }
  std::vector<std::string> FileNames(const std::string& folder) override;
  std::unique_ptr<RunLock> LockRun(const std::string& folder) override;
  void StartProgram(const std::string& path, const std::string& arguments) override;
  std::string ProgramFolder() const override { return real_.ProgramFolder(); }
  char Separator() const override { return real_.Separator(); }
  RegionalForms Regional() const override { return real_.Regional(); }

 private:
  class File;

  // Counts the call. Returns true if it must fail.
  bool Failing(Operation operation, const std::string& path);
  void Pass(Operation operation, const std::string& path);
  [[noreturn]] void Throw(const std::string& path) const;
  void Note(Change change) { changes_.push_back(std::move(change)); }

  Platform& real_;
  std::optional<Fault> fault_;
  bool failed_ = false;
  std::array<int, static_cast<std::size_t>(Operation::kEnd)> counts_{};
  std::vector<Change> changes_;
  std::vector<std::string> started_;
  bool starts_ = false;
};

}  // namespace golf
