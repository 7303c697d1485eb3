#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "history/held_file_changes.h"

namespace golf {

// The part of a record that a run has changed: usually the whole record.
struct RecordPart {
  std::int64_t record = 0;  // from 1
  std::size_t at = 0;       // where the part begins in the record
  std::size_t size = 0;     // bytes
  ChangeGroup group = 0;
  std::string old_bytes;  // fewer than `size` where the file ended
  std::string new_bytes;
};

// Puts the bytes of one side of a part into `record`, which holds the whole record as far as it is
// known. The result is empty where the side has no bytes at all.
std::string WholeRecord(const RecordPart& part, const std::string& side, std::string record);

// Divides the places of a file into records.
class RecordParts {
 public:
  explicit RecordParts(std::function<void(const RecordPart&)> each) : each_(std::move(each)) {}

  // Begins a file of records of `length` bytes; 0 leaves the places of a file out.
  void Begin(std::size_t length);
  // Places by rising offsets. Those that follow each other in one record are told of as one part.
  void Take(std::int64_t offset, ChangeGroup group, std::string_view old_bytes,
            std::string_view new_bytes);
  // Tells of the last part of the file.
  void Finish();

 private:
  void Append(const RecordPart& part);

  std::function<void(const RecordPart&)> each_;
  std::size_t length_ = 0;
  RecordPart part_;  // of the record in hand; its number is 0 with none
};

}  // namespace golf
