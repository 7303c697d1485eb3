#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <tuple>

#include "history/history_file.h"
#include "history/run_files.h"

namespace golf {

// Identifies a place or a file with a conflict. An offset below 0 means the file as a whole: its
// existence or its length is not as expected.
struct PlaceConflict {
  std::string path;
  std::int64_t offset = -1;
  bool operator<(const PlaceConflict& other) const {
    return std::tie(path, offset) < std::tie(other.path, other.offset);
  }
};

// Returns error 70, which reports that another program has changed a file during the run.
NumberedError ChangedByOthers(const std::string& path);

// Raises error 70 if a file differs from its state before the run: in its existence, at a place
// that the run changes, or in its length if the run changes the length.
void RequireUntouched(RunFiles& files, HistoryFile& history);

// True if RequireUntouched would raise no error for these files.
bool IsAllOld(RunFiles& files, HistoryFile& history);

// Returns the conflicts of a run that was applied in part: places with bytes that are neither old
// nor new, and files that are missing, exist again or are too long. A mixture of old and new bytes
// is no conflict, since a crash may leave it.
std::set<PlaceConflict> FindConflicts(RunFiles& files, HistoryFile& history);

}  // namespace golf
