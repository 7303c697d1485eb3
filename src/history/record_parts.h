#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "history/held_file_changes.h"

namespace golf {

// Describes the range of a record that a run has changed. It is usually the whole record. It is
// called a record part, since a part is a part of a run.
struct RecordPart {
  std::int64_t record = 0;  // from 1
  std::size_t at = 0;       // index of the first byte in the record
  std::size_t size = 0;     // bytes
  ChangeGroup group = 0;
  std::string old_bytes;  // fewer than `size` if the file ended in the range
  std::string new_bytes;
};

// Returns `record` with the bytes of `side`, which is the old or the new bytes of the record part.
// `record` has the full length. Returns an empty string if the record did not exist on that side.
std::string WholeRecord(const RecordPart& part, const std::string& side, std::string record);

// Divides the places of a file into record parts, and calls `each` for them.
class RecordParts {
 public:
  explicit RecordParts(std::function<void(const RecordPart&)> each) : each_(std::move(each)) {}

  // Begins a file with records of `length` bytes. Ignores the places of the file if `length` is 0.
  void Begin(std::size_t length);
  // Takes a place. Places must come by rising offsets. Adjoining places of one record become one
  // record part.
  void Take(std::int64_t offset, ChangeGroup group, std::string_view old_bytes,
            std::string_view new_bytes);
  // Calls `each` for the last record part of the file. Must be called after the last place.
  void Finish();

 private:
  void Append(const RecordPart& part);

  std::function<void(const RecordPart&)> each_;
  std::size_t length_ = 0;
  RecordPart part_;  // of the current record; its number is 0 if there is none
};

}  // namespace golf
