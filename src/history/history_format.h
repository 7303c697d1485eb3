#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/date_value.h"
#include "core/numbered_error.h"
#include "history/held_file_changes.h"

namespace golf {

// The format of a history file, which docs/file-formats.md describes. All numbers are little
// endian.

// The first block has eight places of 512 bytes: the title and a place for each mark. The content
// follows it.
inline constexpr std::size_t kMarkSize = 512;
inline constexpr std::int64_t kContentStart = 8 * kMarkSize;

// What has become of a run. Each mark has its own place, so that no mark overwrites another.
enum class HistoryMark : std::uint8_t {
  kCommitted = 1,  // the content is complete: from here on the changes are applied
  kPutBack = 2,    // applying has failed: the changes are being put back
  kClosed = 3,     // everything was put back
  kDone = 4,       // everything was applied
  kLeft = 5,       // the operator has left an interrupted run as it is
  kUndone = 6,     // a later run has put the changes back
};
inline constexpr int kMarks = 6;

// The kinds of portions of the content. A portion is its kind, its length, the checksum of its
// bytes, and the bytes.
enum class HistoryPortion : std::uint8_t {
  kRun = 1,     // what the run was
  kGroups = 2,  // titles of groups
  kFile = 3,    // a file; its places follow
  kPlaces = 4,
  kReport = 5,
  kEnd = 6,
};

// A place is coded as operations over its bytes.
enum class PlaceCode : std::uint8_t {
  kSame = 0,      // count, bytes that do not change
  kSameFill = 1,  // count, byte: it stands `count` times
  kPair = 2,      // count, old bytes, new bytes
  kPairFill = 3,  // count, old byte, new byte
  kOne = 4,       // count, bytes that only the longer side has
  kOneFill = 5,   // count, byte
};

// Raised for a history file that does not say what it was written to say.
class DamagedHistory : public NumberedError {
 public:
  explicit DamagedHistory(const std::string& path)
      : NumberedError(ErrorNumber::kDeviceFault, "The history file " + path + " is damaged.") {}
};

// What a run was, as the history tells it.
struct RunTitle {
  DateValue moment = 0;
  std::string command = {};  // "golfers-kv-to-qb"
  std::string about = {};    // "CLUB18, roster 3"
  std::int32_t undoes = 0;   // the running number of the run that this one puts back; 0 for none
  bool continues = false;    // a further part of the run before it with the same number
};

enum class FileFate : std::uint8_t { kChanged = 0, kCreated = 1, kDeleted = 2 };

// A file in a history file.
struct HistoryFileEntry {
  FileFate fate = FileFate::kChanged;
  std::string path;             // below the install folder, with "/"
  std::int64_t old_length = 0;  // bytes
  std::int64_t new_length = 0;
  std::string kept_as;  // the name of a deleted file in the history folder
};

// Bytes of a place that follow each other and that all change.
struct ChangedBytes {
  std::size_t at = 0;  // in the place
  std::size_t size = 0;
};

// One place of a file, as it is read back: whole, with the bytes that do not change.
struct HistoryPlace {
  std::int64_t offset = 0;
  ChangeGroup group = 0;
  std::string old_bytes;
  std::string new_bytes;
  std::vector<ChangedBytes> changed;  // by rising positions

  std::int64_t End() const {
    return offset + static_cast<std::int64_t>(std::max(old_bytes.size(), new_bytes.size()));
  }
};

void AppendNumber(std::string& to, std::uint64_t number);
void AppendText(std::string& to, std::string_view text);

// Codes the bytes of a place. Nothing is appended and false is returned where they do not differ.
bool AppendPlaceBytes(std::string& to, std::string_view old_bytes, std::string_view new_bytes);

// Reads what was coded, with every length checked. A reader that has failed stays failed, and gives
// zeros and empty texts.
class HistoryBytes {
 public:
  explicit HistoryBytes(std::string_view bytes) : rest_(bytes) {}

  bool failed() const { return failed_; }
  bool AtEnd() const { return rest_.empty(); }

  std::uint64_t Number();
  // A number that may not be above `most`.
  std::uint64_t Number(std::uint64_t most);
  std::string_view Text();
  std::string_view Take(std::size_t size);
  void PlaceBytes(std::size_t old_size, std::size_t new_size, HistoryPlace& into);

 private:
  void Fail() {
    failed_ = true;
    rest_ = {};
  }

  std::string_view rest_;
  bool failed_ = false;
};

}  // namespace golf
