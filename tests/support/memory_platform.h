#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/numbered_error.h"
#include "core/platform.h"
#include "core/text.h"

namespace golf {

// An install in memory, for what runs many thousand times. No file grows above 16 MB: that is a
// full disk.
class MemoryPlatform : public Platform {
 public:
  // The same files in another memory.
  MemoryPlatform Copy() const {
    MemoryPlatform copy;
    for (const auto& [path, bytes] : files_) copy.Bytes(path.substr(1)) = *bytes;
    return copy;
  }
  // The bytes of a file in any case of its name, which is a path below the program's folder.
  std::string& Bytes(std::string_view name) {
    auto& bytes = files_[ProgramFolder() + UpperCase(name)];
    if (!bytes) bytes = std::make_shared<std::string>();
    return *bytes;
  }

  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess) override {
    const auto file = files_.find(UpperCase(path));
    if (file == files_.end()) {
      throw NumberedError(ErrorNumber::kFileNotFound, path + " is not there.");
    }
    return std::make_unique<File>(file->second);
  }
  void Create(ChangePass, const std::string& path) override { Bytes(path.substr(1)).clear(); }
  void CreateFolder(ChangePass, const std::string&) override {}
  void Delete(ChangePass, const std::string& path) override { files_.erase(UpperCase(path)); }
  bool FolderExists(const std::string&) override { return true; }
  std::vector<std::string> FileNames(const std::string& folder) override {
    const std::string start = UpperCase(folder);
    std::vector<std::string> names;
    for (const auto& [path, bytes] : files_) {
      const std::string name = path.substr(std::min(start.size(), path.size()));
      if (path.starts_with(start) && name.find('/') == std::string::npos) names.push_back(name);
    }
    return names;
  }
  std::unique_ptr<RunLock> LockRun(const std::string&) override { return nullptr; }
  void StartProgram(const std::string&, const std::string&) override {}
  std::string ProgramFolder() const override { return "/"; }
  char Separator() const override { return '/'; }
  RegionalForms Regional() const override { return {}; }

 private:
  class File : public PlatformFile {
   public:
    explicit File(std::shared_ptr<std::string> bytes) : bytes_(std::move(bytes)) {}

    std::size_t ReadAt(std::int64_t offset, std::span<char> into) override {
      const auto at = static_cast<std::size_t>(offset);
      return at < bytes_->size() ? bytes_->copy(into.data(), into.size(), at) : 0;
    }
    void WriteAt(ChangePass, std::int64_t offset, std::string_view bytes,
                 std::size_t& written) override {
      const auto at = static_cast<std::size_t>(offset);
      written = 0;
      if (at > std::size_t{16} << 20) throw NumberedError(ErrorNumber::kDiskFull, "Full.");
      bytes_->resize(std::max(bytes_->size(), at + bytes.size()));
      bytes_->replace(at, bytes.size(), bytes);
      written = bytes.size();
    }
    void Truncate(ChangePass, std::int64_t length) override {
      bytes_->resize(static_cast<std::size_t>(length));
    }
    std::int64_t Length() override { return static_cast<std::int64_t>(bytes_->size()); }
    void Close() override {}
    FileIdentity Identity() const override {
      return {1, reinterpret_cast<std::uintptr_t>(&*bytes_)};
    }

   private:
    std::shared_ptr<std::string> bytes_;
  };

  std::map<std::string, std::shared_ptr<std::string>> files_;  // by path in capitals
};

}  // namespace golf
