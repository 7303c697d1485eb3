#include "outlets/checkup/file_scan.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

#include "core/text.h"
#include "history/transactions.h"

namespace golf {

void FileScan::Add(FindingCode code, const std::string& file, std::int64_t record,
                   std::string title, std::string text) {
  constexpr FindingCode kDamages[] = {FindingCode::kFileUnreadable, FindingCode::kFileHeld,
                                      FindingCode::kFileMissing, FindingCode::kFileLength};
  if (std::ranges::find(kDamages, code) != std::end(kDamages)) damaged_.insert(file);
  each_({code, file, record, std::move(title), std::move(text)});
}

std::string FileScan::NameOf(const std::string& folder, const std::string& name) const {
  return state_.transactions->history().paths().Name(folder + name);
}

bool FileScan::HasFolder(const std::string& folder) const {
  return state_.files.platform().FolderExists(folder);
}

std::vector<std::string> FileScan::FilesLike(const std::string& folder, std::string_view pattern) {
  if (!HasFolder(folder)) return {};
  return state_.files.FilesLike(folder, pattern);
}

std::vector<std::string> FileScan::BasesLike(const std::string& folder, std::string_view pattern,
                                             std::initializer_list<std::string_view> extensions) {
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

std::unique_ptr<PlatformFile> FileScan::Open(const std::string& file, bool is_required) {
  const std::string path = state_.transactions->history().paths().Path(file);
  try {
    return state_.files.platform().Open(path, FileAccess::kReadOnly);
  } catch (const NumberedError& error) {
    const bool is_missing =
        error.Is(ErrorNumber::kFileNotFound) || error.Is(ErrorNumber::kPathNotFound);
    if (!is_missing) {
      AddError(file, error);
    } else if (is_required) {
      Add(FindingCode::kFileMissing, file, 0, "", "The file does not exist.");
    }
    return nullptr;
  }
}

std::optional<std::int64_t> FileScan::CountRecords(const std::string& file, PlatformFile& open,
                                                   std::size_t length) {
  try {
    const std::int64_t bytes = open.Length();
    const auto size = static_cast<std::int64_t>(length);
    if (bytes % size != 0) {
      Add(FindingCode::kFileLength, file, 0, "",
          "The file ends with " + std::to_string(bytes % size) +
              " bytes that are no whole record of " + std::to_string(size) + ".");
    }
    return bytes / size;
  } catch (const NumberedError& error) {
    AddError(file, error);
    return std::nullopt;
  }
}

bool FileScan::Read(const std::string& file, PlatformFile& open, std::int64_t number,
                    std::span<char> record) {
  try {
    const auto length = static_cast<std::int64_t>(record.size());
    return open.ReadAt((number - 1) * length, record) == record.size();
  } catch (const NumberedError& error) {
    AddError(file, error);
    return false;
  }
}

void FileScan::AddError(const std::string& file, const NumberedError& error) {
  const bool is_held = error.Is(ErrorNumber::kPermissionDenied);
  Add(is_held ? FindingCode::kFileHeld : FindingCode::kFileUnreadable, file, 0, "",
      is_held ? "Another program has the file open." : error.description());
}

}  // namespace golf
