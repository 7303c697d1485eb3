#include "support/failing_platform.h"

#include <numeric>

#include "core/text.h"

namespace golf {

class FailingPlatform::File : public PlatformFile {
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
      if (path_ != kScratchName) {
        platform_.changes_.push_back({Operation::kWrite, path_, offset, written});
      }
    }
    if (fails) platform_.Throw(path_);
  }

  void Truncate(ChangePass pass, std::int64_t length) override {
    platform_.Make({Operation::kTruncate, path_, length}, [&] { real_->Truncate(pass, length); });
  }

  void Sync(ChangePass pass) override {
    platform_.Pass(Operation::kSync, path_);
    real_->Sync(pass);
  }

  std::int64_t Length() override {
    platform_.Pass(Operation::kLength, path_);
    return real_->Length();
  }

  bool IsWritable() const override { return real_->IsWritable(); }

  FileIdentity Identity() const override { return real_->Identity(); }

  // Closes the file even if the call fails.
  void Close() override {
    real_->Close();
    platform_.Pass(Operation::kClose, path_);
  }

 private:
  FailingPlatform& platform_;
  std::string path_;
  std::unique_ptr<PlatformFile> real_;
};

void FailingPlatform::Fail(Fault fault) {
  fault_ = std::move(fault);
  failed_ = false;
}

int FailingPlatform::CountAll() const { return std::accumulate(counts_.begin(), counts_.end(), 0); }

bool FailingPlatform::Failing(Operation operation, const std::string& path) {
  ++counts_[static_cast<std::size_t>(operation)];
  if (!fault_ || fault_->only.value_or(operation) != operation) return false;
  if (!EqualIgnoringCase(LastCharacters(path, fault_->name.size()), fault_->name)) return false;
  --fault_->nth;
  const bool fails = fault_->nth == 0 || (fault_->nth < 0 && fault_->stays);
  failed_ = failed_ || fails;
  return fails;
}

void FailingPlatform::Throw(const std::string& path) const {
  throw NumberedError(fault_->error, path + " failed on purpose.");
}

std::unique_ptr<PlatformFile> FailingPlatform::Open(const std::string& path, FileAccess access) {
  Pass(Operation::kOpen, path);
  return std::make_unique<File>(*this, path, PlatformOver::Open(path, access));
}

std::unique_ptr<PlatformFile> FailingPlatform::OpenScratch() {
  Pass(Operation::kScratch, kScratchName);
  return std::make_unique<File>(*this, kScratchName, PlatformOver::OpenScratch());
}

void FailingPlatform::StartProgram(const std::string& path, const std::string& arguments) {
  Pass(Operation::kStart, path);
  started_.push_back(path + " " + arguments);
  if (starts_) PlatformOver::StartProgram(path, arguments);
}

}  // namespace golf
