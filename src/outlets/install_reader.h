#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/record.h"
#include "core/shared_state.h"

namespace golf {

// Reads single records of an install's files and keeps the files open. Files are named by their
// paths below the install, with "/". An unreadable file is treated as a missing one.
class InstallReader {
 public:
  // Reads held changes, too.
  explicit InstallReader(SharedState& state) : InstallReader(state, state.files.platform()) {}
  InstallReader(SharedState& state, Platform& platform) : state_(state), platform_(platform) {}

  SharedState& state() { return state_; }

  // Returns nothing if the file does not have the whole record.
  template <class Layout>
  std::optional<Record<Layout>> Read(std::string_view file, std::int64_t record) {
    Record<Layout> read;
    if (!ReadBytes(file, record, read.MutableBytes())) return std::nullopt;
    return read;
  }

  // Calls `each` with the number, from 1, and the contents of every whole record of a file. Closes
  // the file at the end.
  template <class Layout, class Each>
  void ForEach(std::string_view file, Each each) {
    Record<Layout> read;
    for (std::int64_t record = 1; ReadBytes(file, record, read.MutableBytes()); ++record) {
      each(record, read);
    }
    Close(file);
  }

  // Reads the bytes of a record. Its length is the size of `into`. Returns false if the file does
  // not have the whole record.
  bool ReadBytes(std::string_view file, std::int64_t record, std::span<char> into);

 private:
  void Close(std::string_view file);

  SharedState& state_;
  Platform& platform_;
  std::map<std::string, std::unique_ptr<PlatformFile>, std::less<>> files_;
};

// Returns a record with these bytes. If there are too few, the rest of the record is zeros.
template <class Layout>
Record<Layout> RecordOf(std::string_view bytes) {
  Record<Layout> record;
  bytes.copy(record.MutableBytes().data(), Layout::kLength);
  return record;
}

}  // namespace golf
