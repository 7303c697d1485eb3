#include "core/file_table.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "core/number_text.h"
#include "core/numbered_error.h"
#include "core/text.h"

namespace golf {
namespace {

// Returns true if the pattern matches the whole name. "*.*" matches every name, also one without a
// dot. After a mismatch the last star matches one more character. Earlier stars need no second
// attempt.
bool MatchesPattern(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;
  constexpr std::size_t kNone = std::string_view::npos;
  std::size_t star = kNone;
  std::size_t taken = 0;
  std::size_t p = 0;
  for (std::size_t n = 0; n < name.size();) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      taken = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
      ++p;
      ++n;
    } else if (star != kNone) {
      p = star + 1;
      n = ++taken;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == kNone;
}

}  // namespace

void FileTable::Open(int number, const std::string& path, std::size_t record_length,
                     FileAccess access) {
  Close(number);
  files_[number] = std::make_unique<RecordFile>(gate_, path, record_length, access);
}

void FileTable::Close(int number) {
  const auto file = files_.find(number);
  if (file == files_.end()) return;
  const auto closing = std::move(file->second);
  files_.erase(file);
  closing->Close();
}

void FileTable::CloseAll() {
  const auto closing = std::exchange(files_, {});
  std::exception_ptr lost;
  for (const auto& [number, file] : closing) {
    try {
      file->Close();
    } catch (const NumberedError&) {
      if (!lost) lost = std::current_exception();
    }
  }
  if (lost) std::rethrow_exception(lost);
}

std::int64_t FileTable::Length(int number) { return At(number).Length(); }

std::int64_t FileTable::CountTruncated(int number, std::size_t record_length) {
  return Length(number) / static_cast<std::int64_t>(record_length);
}

std::int64_t FileTable::CountRounded(int number, std::size_t record_length) {
  return RoundToInt32(static_cast<double>(Length(number)) / static_cast<double>(record_length));
}

void FileTable::ReadBytes(int number, std::int64_t record, std::span<char> into) {
  At(number).Read(record, into);
}

void FileTable::WriteBytes(int number, std::int64_t record, std::string_view from) {
  RecordFile& written = At(number);
  for (const auto& [other_number, file] : files_) {
    if (file->identity() == written.identity()) file->ForgetWindow();
  }
  written.Write(record, from);
}

std::vector<std::string> FileTable::FilesLike(const std::string& folder, std::string_view pattern) {
  const std::string wanted = UpperCase(pattern);
  std::vector<std::string> names = platform_.FileNames(folder);
  std::erase_if(names, [&](const std::string& name) {
    return !wanted.empty() && !MatchesPattern(UpperCase(name), wanted);
  });
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    const int order = CompareIgnoringCase(a, b);
    return order == 0 ? a < b : order < 0;
  });
  return names;
}

bool FileTable::FileExists(const std::string& path) {
  const std::size_t cut = path.rfind(platform_.Separator());
  const std::size_t name_start = cut == std::string::npos ? 0 : cut + 1;
  try {
    return !FilesLike(path.substr(0, name_start), path.substr(name_start)).empty();
  } catch (const NumberedError&) {
    return false;
  }
}

std::string FileTable::ReadText(const std::string& path) {
  constexpr std::int64_t kMostBytes = 1 << 20;  // no text file of this program is longer
  const int number = FreeNumber();
  Open(number, path, kMostBytes, FileAccess::kReadOnly);
  std::string text(static_cast<std::size_t>(std::min(Length(number), kMostBytes)), '\0');
  ReadBytes(number, 1, text);
  Close(number);
  return text;
}

void FileTable::DeleteFile(const std::string& path) {
  try {
    gate_.Delete(path);
  } catch (const NumberedError&) {
    // A failed deletion is ignored. The caller checks whether the file still exists.
  }
}

void FileTable::Synchronize() {
  for (const auto& [number, file] : files_) file->ForgetWindow();
}

RecordFile& FileTable::At(int number) {
  const auto file = files_.find(number);
  if (file == files_.end()) {
    throw NumberedError(ErrorNumber::kBadFileNumber,
                        "No file is open under number " + std::to_string(number) + ".");
  }
  return *file->second;
}

}  // namespace golf
