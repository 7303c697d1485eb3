#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/numbered_error.h"
#include "core/platform.h"
#include "core/record.h"
#include "core/shared_state.h"
#include "outlets/checkup/finding.h"

namespace golf {

// Reads the files of an install for the check-up and reports findings. A file that cannot be read
// is a finding and does not end the check-up.
class FileScan {
 public:
  // `each` gets the findings in the order in which they are added.
  FileScan(SharedState& state, EachFinding each) : state_(state), each_(std::move(each)) {}

  SharedState& state() { return state_; }

  void Add(FindingCode code, const std::string& file, std::int64_t record, std::string title,
           std::string text);

  bool HasFolder(const std::string& folder) const;
  // Returns the names of the files in a folder that match a pattern such as "*.KV5". Returns none
  // if the folder does not exist.
  std::vector<std::string> FilesLike(const std::string& folder, std::string_view pattern);
  // Returns the names without extension of the files in a folder that match a pattern and have one
  // of the extensions, such as ".KV5". Sorts them without regard to case. All files of a roster, a
  // tournament or a league have the same name without extension.
  std::vector<std::string> BasesLike(const std::string& folder, std::string_view pattern,
                                     std::initializer_list<std::string_view> extensions);
  // Returns the path of a file below the install, with "/".
  std::string NameOf(const std::string& folder, const std::string& name) const;

  // True if a finding says that the file is missing, unreadable or cut. Other findings about its
  // records would then follow from that one.
  bool IsDamaged(const std::string& file) const { return damaged_.contains(file); }

  // Calls `each` with the number, from 1, and the content of every whole record of a file. Returns
  // the number of whole records. Returns nothing if the file is missing or a read fails.
  // Adds findings for a file that is unreadable, has a wrong length, or is missing although it is
  // required.
  template <class Layout, class Each>
  std::optional<std::int64_t> ForEach(const std::string& file, bool is_required, Each each) {
    const auto open = Open(file, is_required);
    if (open == nullptr) return std::nullopt;
    const auto count = CountRecords(file, *open, Layout::kLength);
    Record<Layout> record;
    for (std::int64_t number = 1; count && number <= *count; ++number) {
      if (!Read(file, *open, number, record.MutableBytes())) return std::nullopt;
      each(number, record);
    }
    return count;
  }

 private:
  std::unique_ptr<PlatformFile> Open(const std::string& file, bool is_required);
  std::optional<std::int64_t> CountRecords(const std::string& file, PlatformFile& open,
                                           std::size_t length);
  bool Read(const std::string& file, PlatformFile& open, std::int64_t number,
            std::span<char> record);
  void AddError(const std::string& file, const NumberedError& error);

  SharedState& state_;
  EachFinding each_;
  std::set<std::string> damaged_;
};

}  // namespace golf
