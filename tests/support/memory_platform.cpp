#include "support/memory_platform.h"

#include <algorithm>
#include <utility>

#include "core/numbered_error.h"
#include "core/text.h"

namespace golf {
namespace {

constexpr std::size_t kDisk = std::size_t{16} << 20;

}  // namespace

class MemoryPlatform::File : public PlatformFile {
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
    if (at > kDisk) throw NumberedError(ErrorNumber::kDiskFull, "The memory is full.");
    bytes_->resize(std::max(bytes_->size(), at + bytes.size()));
    bytes_->replace(at, bytes.size(), bytes);
    written = bytes.size();
  }
  void Truncate(ChangePass, std::int64_t length) override {
    bytes_->resize(static_cast<std::size_t>(length));
  }
  std::int64_t Length() override { return static_cast<std::int64_t>(bytes_->size()); }
  void Close() override {}
  FileIdentity Identity() const override { return {1, reinterpret_cast<std::uintptr_t>(&*bytes_)}; }

 private:
  std::shared_ptr<std::string> bytes_;
};

MemoryPlatform MemoryPlatform::Copy() const {
  MemoryPlatform copy;
  for (const auto& [path, bytes] : files_) {
    copy.files_[path] = std::make_shared<std::string>(*bytes);
  }
  return copy;
}

std::string& MemoryPlatform::Bytes(std::string_view name) {
  auto& bytes = files_[ProgramFolder() + UpperCase(name)];
  if (!bytes) bytes = std::make_shared<std::string>();
  return *bytes;
}

std::unique_ptr<PlatformFile> MemoryPlatform::Open(const std::string& path, FileAccess) {
  const auto file = files_.find(UpperCase(path));
  if (file == files_.end())
    throw NumberedError(ErrorNumber::kFileNotFound, path + " is not there.");
  return std::make_unique<File>(file->second);
}

void MemoryPlatform::Create(ChangePass, const std::string& path) {
  Bytes(path.substr(ProgramFolder().size())).clear();
}

void MemoryPlatform::Delete(ChangePass, const std::string& path) { files_.erase(UpperCase(path)); }

std::vector<std::string> MemoryPlatform::FileNames(const std::string& folder) {
  const std::string start = UpperCase(folder);
  std::vector<std::string> names;
  for (const auto& [path, bytes] : files_) {
    const std::string name = path.substr(std::min(start.size(), path.size()));
    if (path.starts_with(start) && name.find('/') == std::string::npos) names.push_back(name);
  }
  return names;
}

}  // namespace golf
