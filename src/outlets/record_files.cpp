#include "outlets/record_files.h"

#include <algorithm>
#include <map>
#include <utility>

#include "core/numbered_error.h"
#include "core/resume_next.h"
#include "core/text.h"
#include "history/transactions.h"
#include "outlets/file_kinds.h"

namespace golf {
namespace {

constexpr std::size_t kWindow = std::size_t{1} << 18;  // bytes

}  // namespace

RecordReader::RecordReader(std::unique_ptr<PlatformFile> file, std::size_t length)
    : file_(std::move(file)), length_(length) {
  const auto bytes = static_cast<std::uint64_t>(file_->Length());
  count_ = static_cast<std::int64_t>(bytes / length);
  rest_ = bytes % length;
}

std::string_view RecordReader::Next() {
  if (next_ > count_) return {};
  auto at = static_cast<std::size_t>(next_ - first_) * length_;
  if (at >= buffer_.size()) {
    Fill();
    at = 0;
    if (buffer_.empty()) return {};
  }
  ++next_;
  return std::string_view(buffer_).substr(at, length_);
}

// Reads the records from the next one on. The buffer is empty if the file has become shorter.
void RecordReader::Fill() {
  const auto left = static_cast<std::size_t>(count_ - next_ + 1);
  first_ = next_;
  try {
    Read(std::min(std::max<std::size_t>(1, kWindow / length_), left));
  } catch (const NumberedError&) {
    Read(1);  // a record before the unreadable one can still be read
  }
  if (buffer_.empty()) count_ = next_ - 1;
}

void RecordReader::Read(std::size_t records) {
  buffer_.resize(records * length_);
  std::size_t read = 0;
  try {
    read = file_->ReadAt((first_ - 1) * static_cast<std::int64_t>(length_), buffer_);
  } catch (const NumberedError&) {
    buffer_.clear();
    throw;
  }
  buffer_.resize(read - read % length_);
}

std::string RecordFiles::NameOf(const std::string& folder, const std::string& name) const {
  return state_.transactions->history().paths().Name(folder + name);
}

bool RecordFiles::HasFolder(const std::string& folder) const {
  return state_.files.platform().FolderExists(folder);
}

std::vector<std::string> RecordFiles::FilesLike(const std::string& folder,
                                                std::string_view pattern) const {
  if (!HasFolder(folder)) return {};
  return state_.files.FilesLike(folder, pattern);
}

std::vector<std::string> RecordFiles::BasesLike(
    const std::string& folder, std::string_view pattern,
    std::initializer_list<std::string_view> extensions) const {
  std::map<std::string, std::string> bases;  // by the name in capitals
  for (const std::string_view extension : extensions) {
    for (const std::string& file : FilesLike(folder, std::string(pattern).append(extension))) {
      const std::string base = file.substr(0, file.rfind('.'));
      bases.emplace(UpperCase(base), base);
    }
  }
  std::vector<std::string> names;
  for (auto& [upper, base] : bases) names.push_back(std::move(base));
  return names;
}

std::int64_t RecordFiles::LengthOfAll() const {
  std::int64_t length = 0;
  const ResumeNext anyway(nullptr);
  for (const std::string* folder : {&state_.KVDataPath, &state_.QBDataPath, &state_.ZDDataPath}) {
    for (const std::string& name : FilesLike(*folder, "*")) {
      if (!LayoutOfFile(name)) continue;
      anyway([&] {
        if (const auto open = Open(NameOf(*folder, name))) length += open->Length();
      });
    }
  }
  return length;
}

std::unique_ptr<PlatformFile> RecordFiles::Open(const std::string& file) const {
  try {
    return state_.files.platform().Open(state_.transactions->history().paths().Path(file),
                                        FileAccess::kReadOnly);
  } catch (const NumberedError& error) {
    const bool is_missing =
        error.Is(ErrorNumber::kFileNotFound) || error.Is(ErrorNumber::kPathNotFound);
    if (is_missing) return nullptr;
    throw;
  }
}

}  // namespace golf
