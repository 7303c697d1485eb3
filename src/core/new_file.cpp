#include "core/new_file.h"

namespace golf {
namespace {

constexpr std::size_t kBlock = std::size_t{1} << 18;

}  // namespace

void NewFile::Append(std::string_view bytes) {
  waiting_ += bytes;
  if (waiting_.size() >= kBlock) Flush();
}

void NewFile::Close() {
  Flush();
  file_->Sync(ChangePass());
  file_->Close();
}

void NewFile::Flush() {
  std::size_t written = 0;
  file_->WriteAt(ChangePass(), length_, waiting_, written);
  length_ += static_cast<std::int64_t>(written);
  waiting_.clear();
}

}  // namespace golf
