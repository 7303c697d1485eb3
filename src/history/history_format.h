#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/date_value.h"
#include "core/numbered_error.h"
#include "history/place_code.h"

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

// The kinds of portions of the content. A portion is its kind, its length, the checksum of its kind
// and its bytes, and the bytes.
enum class HistoryPortion : std::uint8_t {
  kRun = 1,     // what the run was
  kGroups = 2,  // titles of groups
  kFile = 3,    // a file; its places follow
  kPlaces = 4,
  kReport = 5,
  kEnd = 6,
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

}  // namespace golf
