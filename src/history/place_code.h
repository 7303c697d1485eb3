#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Identifies a group, for example a golfer with all his records. Group 0 is the run as a whole.
// transactions.h defines the terms.
using ChangeGroup = std::uint32_t;

// Describes a range of bytes of a place that all change.
struct ChangedBytes {
  std::size_t at = 0;  // index in the place, from 0
  std::size_t size = 0;

  std::size_t End() const { return at + size; }
};

// Contains the old and the new bytes of a place, including bytes that do not change.
struct HistoryPlace {
  std::int64_t offset = 0;  // of the first byte in the file
  ChangeGroup group = 0;
  std::string old_bytes;              // shorter than `new_bytes` if the file ended in the place
  std::string new_bytes;              // shorter than `old_bytes` if the file is truncated there
  std::vector<ChangedBytes> changed;  // by rising positions

  std::int64_t End() const {
    return offset + static_cast<std::int64_t>(std::max(old_bytes.size(), new_bytes.size()));
  }
  // Both functions describe the range from the first changed byte of the place to the last one.
  // `changed` must not be empty.
  std::size_t FirstChanged() const { return changed.front().at; }
  std::size_t ChangedSize() const { return changed.back().End() - changed.front().at; }
};

// Lists the operations of which the code of a place consists. docs/file-formats.md documents them.
// Each comment lists the operands.
enum class PlaceCode : std::uint8_t {
  kSame = 0,      // count, bytes that do not change
  kSameFill = 1,  // count, one byte that is repeated and does not change
  kPair = 2,      // count, old bytes, new bytes
  kPairFill = 3,  // count, old byte, new byte; each is repeated
  kOne = 4,       // count, bytes that only the longer side has
  kOneFill = 5,   // count, one such byte that is repeated
};

// Appends a number in groups of seven bits, the lowest first.
void AppendNumber(std::string& to, std::uint64_t number);
// Appends the length of a text in bytes, then the text.
void AppendText(std::string& to, std::string_view text);

// Appends the code of a place. Appends nothing and returns false if the old and new bytes are
// equal.
bool AppendPlace(std::string& to, std::string_view old_bytes, std::string_view new_bytes);

// Says which bytes of a place are read: all bytes, or only those that change. With kChanged the
// other bytes are undefined.
enum class PlaceParts { kWhole, kChanged };

// Decodes numbers, texts and places, and checks every length. After a failure it returns only zeros
// and empty texts.
class CodeReader {
 public:
  explicit CodeReader(std::string_view bytes) : rest_(bytes) {}

  bool failed() const { return failed_; }
  bool AtEnd() const { return rest_.empty(); }

  std::uint64_t Number();
  // Returns a number, and fails if it is above `most`.
  std::uint64_t Number(std::uint64_t most);
  std::string_view Text();
  // Returns the next `size` bytes.
  std::string_view Take(std::size_t size);
  // Decodes the bytes of a place of these sizes into `into`. Both sizes are in bytes. Leaves the
  // offset and the group of `into` unchanged.
  void Place(std::size_t old_size, std::size_t new_size, PlaceParts parts, HistoryPlace& into);

 private:
  void Fail() {
    failed_ = true;
    rest_ = {};
  }

  std::string_view rest_;
  bool failed_ = false;
};

}  // namespace golf
