#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

// The number of a group of changes that belong together: a golfer with all his records, a course, a
// roster. Group 0 is the run as a whole.
using ChangeGroup = std::uint32_t;

// Bytes of a place that follow each other and that all change.
struct ChangedBytes {
  std::size_t at = 0;  // in the place
  std::size_t size = 0;

  std::size_t End() const { return at + size; }
};

// Bytes of a file, usually a record, before and after a run: whole, with those that do not change.
struct HistoryPlace {
  std::int64_t offset = 0;  // in the file
  ChangeGroup group = 0;
  std::string old_bytes;              // fewer than new ones where the file ended there
  std::string new_bytes;              // fewer than old ones where the file is cut there
  std::vector<ChangedBytes> changed;  // by rising positions

  std::int64_t End() const {
    return offset + static_cast<std::int64_t>(std::max(old_bytes.size(), new_bytes.size()));
  }
  // The range from the first changed byte to the last one, in the place. At least one byte changes.
  std::size_t FirstChanged() const { return changed.front().at; }
  std::size_t ChangedSize() const { return changed.back().End() - changed.front().at; }
};

// The operations over the bytes of a place that its code is made of. docs/file-formats.md describes
// them.
enum class PlaceCode : std::uint8_t {
  kSame = 0,      // count, bytes that do not change
  kSameFill = 1,  // count, byte: it stands `count` times
  kPair = 2,      // count, old bytes, new bytes
  kPairFill = 3,  // count, old byte, new byte
  kOne = 4,       // count, bytes that only the longer side has
  kOneFill = 5,   // count, byte
};

// Appends a number in groups of seven bits, the lowest first.
void AppendNumber(std::string& to, std::uint64_t number);
// Appends the length of a text, and the text.
void AppendText(std::string& to, std::string_view text);

// Appends the code of a place. Nothing is appended, and false is returned, where nothing changes.
bool AppendPlace(std::string& to, std::string_view old_bytes, std::string_view new_bytes);

// What is read of a place: all of its bytes, or only those that change. The others have no meaning
// then.
enum class PlaceParts { kWhole, kChanged };

// Reads what was coded, and checks every length. A reader that has failed stays failed: it gives
// zeros and empty texts.
class CodeReader {
 public:
  explicit CodeReader(std::string_view bytes) : rest_(bytes) {}

  bool failed() const { return failed_; }
  bool AtEnd() const { return rest_.empty(); }

  std::uint64_t Number();
  // A number that may not be above `most`.
  std::uint64_t Number(std::uint64_t most);
  std::string_view Text();
  std::string_view Take(std::size_t size);
  // The bytes of a place of these sizes.
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
