#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/date_value.h"
#include "core/numbered_error.h"
#include "history/place_code.h"

namespace golf {

// Describes the format of a history file. docs/file-formats.md documents it. All numbers are
// little-endian. transactions.h defines the terms.

// A history file begins with eight blocks of 512 bytes: the title, a block for each mark, and an
// unused block. The content follows them.
inline constexpr std::size_t kMarkSize = 512;
inline constexpr std::int64_t kContentStart = 8 * kMarkSize;

// Lists the marks. The value of a mark is the index of its block, from 0. No mark overwrites
// another one.
enum class HistoryMark : std::uint8_t {
  kCommitted = 1,  // the content is complete, and applying begins
  kPutBack = 2,    // applying has failed, and putting back begins
  kClosed = 3,     // every change was put back
  kDone = 4,       // every change was applied
  kLeft = 5,       // the operator has left an interrupted run as it is
  kUndone = 6,     // the run was undone, but the history has no run that undid it
};
inline constexpr int kMarks = 6;

// Lists the kinds of portions of the content. A portion consists of its kind, its length, the
// checksum of its kind and bytes, and its bytes.
enum class HistoryPortion : std::uint8_t {
  kRun = 1,     // the RunTitle
  kGroups = 2,  // numbers and titles of groups
  kFile = 3,    // a HistoryFileEntry; portions with its places follow
  kPlaces = 4,
  kReport = 5,
  kEnd = 6,
  kReferences = 7,
};

// Reports error 57 for a history file whose content is not as HistoryWriter has written it.
class DamagedHistory : public NumberedError {
 public:
  explicit DamagedHistory(const std::string& path)
      : NumberedError(ErrorNumber::kDeviceFault, "The history file " + path + " is damaged.") {}
};

// Describes a run in the history.
struct RunTitle {
  DateValue moment = 0;
  std::string command = {};  // such as "golfers-kv-to-qb"
  std::string about = {};    // such as "CLUB18, roster 3"
  std::int32_t undoes = 0;   // the running number of the run that this run puts back; 0 for none
  bool continues = false;    // true for the second and later parts of a run
};

enum class FileFate : std::uint8_t { kChanged = 0, kCreated = 1, kDeleted = 2 };

// Describes a file that a run changes, creates or deletes.
struct HistoryFileEntry {
  FileFate fate = FileFate::kChanged;
  std::string path;             // relative to the install folder, with "/"
  std::int64_t old_length = 0;  // in bytes, before the run
  std::int64_t new_length = 0;
  std::string kept_as;  // the name of a deleted file in the history folder; empty for other files
};

}  // namespace golf
