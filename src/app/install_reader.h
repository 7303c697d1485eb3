#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/record.h"
#include "core/shared_state.h"

namespace golf {

// Reads single records of an install's files, which it keeps open. Files are named by their paths
// below the install, with "/". What cannot be read reads as not there.
class InstallReader {
 public:
  explicit InstallReader(SharedState& state) : state_(state) {}

  SharedState& state() { return state_; }

  // Nothing where the file has no such whole record.
  template <class Layout>
  std::optional<Record<Layout>> Read(std::string_view file, std::int64_t record) {
    Record<Layout> read;
    if (!ReadBytes(file, record, read.MutableBytes())) return std::nullopt;
    return read;
  }

  // Calls `each` with every whole record of a file.
  template <class Layout, class Each>
  void ForEach(std::string_view file, Each each) {
    Record<Layout> read;
    for (std::int64_t record = 1; ReadBytes(file, record, read.MutableBytes()); ++record) {
      each(record, read);
    }
  }

 private:
  bool ReadBytes(std::string_view file, std::int64_t record, std::span<char> into);

  SharedState& state_;
  std::map<std::string, std::unique_ptr<PlatformFile>, std::less<>> files_;
};

// A record with these bytes, which are zeros where there are too few.
template <class Layout>
Record<Layout> RecordOf(std::string_view bytes) {
  Record<Layout> record;
  bytes.copy(record.MutableBytes().data(), Layout::kLength);
  return record;
}

}  // namespace golf
