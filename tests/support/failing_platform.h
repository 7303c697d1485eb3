#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <numeric>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/numbered_error.h"
#include "core/platform.h"
#include "core/text.h"

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
// reached the file before.
struct Change {
  Operation operation;
  std::string path;
  std::int64_t offset = 0;  // of a truncation: the length
  std::size_t size = 0;
  bool operator==(const Change&) const = default;
};

// A real platform whose calls are counted, written down, and can be made to fail. Whatever it opens
// must be closed before it goes.
class FailingPlatform : public Platform {
 public:
  explicit FailingPlatform(Platform& real) : real_(real) {}

  void Fail(Fault fault) {
    fault_ = std::move(fault);
    failed_ = false;
  }
  void Heal() { fault_.reset(); }
  // True if the fault asked for has come.
  bool Failed() const { return failed_; }

  int Count(Operation operation) const { return counts_[static_cast<std::size_t>(operation)]; }
  int CountAll() const { return std::accumulate(counts_.begin(), counts_.end(), 0); }
  const std::vector<Change>& changes() const { return changes_; }

  // Programs are written down as "path arguments" and started only if that is asked for.
  const std::vector<std::string>& started() const { return started_; }
  void StartForReal() { starts_ = true; }

  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access) override {
    Pass(Operation::kOpen, path);
    return std::make_unique<File>(*this, path, real_.Open(path, access));
  }
  void Create(ChangePass pass, const std::string& path) override {
    Pass(Operation::kCreate, path);
    real_.Create(pass, path);
    changes_.push_back({Operation::kCreate, path});
  }
  void CreateFolder(ChangePass pass, const std::string& path) override {
    Pass(Operation::kCreateFolder, path);
    real_.CreateFolder(pass, path);
    changes_.push_back({Operation::kCreateFolder, path});
  }
  void Delete(ChangePass pass, const std::string& path) override {
    Pass(Operation::kDelete, path);
    real_.Delete(pass, path);
    changes_.push_back({Operation::kDelete, path});
  }
  bool FolderExists(const std::string& path) override { return real_.FolderExists(path); }
  std::vector<std::string> FileNames(const std::string& folder) override {
    Pass(Operation::kList, folder);
    return real_.FileNames(folder);
  }
  std::unique_ptr<RunLock> LockRun(const std::string& folder) override {
    Pass(Operation::kLock, folder);
    return real_.LockRun(folder);
  }
  void StartProgram(const std::string& path, const std::string& arguments) override {
    Pass(Operation::kStart, path);
    started_.push_back(path + " " + arguments);
    if (starts_) real_.StartProgram(path, arguments);
  }
  std::string ProgramFolder() const override { return real_.ProgramFolder(); }
  char Separator() const override { return real_.Separator(); }
  RegionalForms Regional() const override { return real_.Regional(); }

 private:
  class File : public PlatformFile {
   public:
    File(FailingPlatform& platform, std::string path, std::unique_ptr<PlatformFile> real)
        : platform_(platform), path_(std::move(path)), real_(std::move(real)) {}

    std::size_t ReadAt(std::int64_t offset, std::span<char> into) override {
      platform_.Pass(Operation::kRead, path_);
      return real_->ReadAt(offset, into);
    }
    void WriteAt(ChangePass pass, std::int64_t offset, std::string_view bytes,
                 std::size_t& written) override {
      const bool fails = platform_.Failing(Operation::kWrite, path_);
      written = 0;
      if (fails) bytes = bytes.substr(0, platform_.fault_->bytes_first);
      if (!fails || !bytes.empty()) {
        real_->WriteAt(pass, offset, bytes, written);
        platform_.changes_.push_back({Operation::kWrite, path_, offset, written});
      }
      if (fails) platform_.Throw(path_);
    }
    void Truncate(ChangePass pass, std::int64_t length) override {
      platform_.Pass(Operation::kTruncate, path_);
      real_->Truncate(pass, length);
      platform_.changes_.push_back({Operation::kTruncate, path_, length});
    }
    std::int64_t Length() override {
      platform_.Pass(Operation::kLength, path_);
      return real_->Length();
    }
    FileIdentity Identity() const override { return real_->Identity(); }
    // A file is closed also where that fails.
    void Close() override {
      real_->Close();
      platform_.Pass(Operation::kClose, path_);
    }

   private:
    FailingPlatform& platform_;
    std::string path_;
    std::unique_ptr<PlatformFile> real_;
  };

  // Counts the call; true if it is to fail.
  bool Failing(Operation operation, const std::string& path) {
    ++counts_[static_cast<std::size_t>(operation)];
    if (!fault_ || fault_->only.value_or(operation) != operation) return false;
    if (!EqualIgnoringCase(LastCharacters(path, fault_->name.size()), fault_->name)) return false;
    --fault_->nth;
    const bool fails = fault_->nth == 0 || (fault_->nth < 0 && fault_->stays);
    failed_ = failed_ || fails;
    return fails;
  }
  void Pass(Operation operation, const std::string& path) {
    if (Failing(operation, path)) Throw(path);
  }
  [[noreturn]] void Throw(const std::string& path) const {
    throw NumberedError(fault_->error, path + " failed on purpose.");
  }

  Platform& real_;
  std::optional<Fault> fault_;
  bool failed_ = false;
  std::array<int, static_cast<std::size_t>(Operation::kEnd)> counts_{};
  std::vector<Change> changes_;
  std::vector<std::string> started_;
  bool starts_ = false;
};

}  // namespace golf
