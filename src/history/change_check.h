#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <tuple>

#include "history/history_file.h"
#include "history/run_files.h"

namespace golf {

// A place whose bytes are neither those of before the run nor those of after it: another program
// has changed it. An offset below 0 means the file as a whole: it is missing, exists again, or has
// grown.
struct PlaceConflict {
  std::string path;
  std::int64_t offset = -1;
  bool operator<(const PlaceConflict& other) const {
    return std::tie(path, offset) < std::tie(other.path, other.offset);
  }
};

// Returns error 70 for a file that another program has changed during the run.
NumberedError ChangedByOthers(const std::string& path);

// Raises error 70 if a file is not as it was before the run, in its length or at a place that the
// run changes.
void RequireUntouched(RunFiles& files, HistoryFile& history);

// True if all files are as they were before the run.
bool IsAllOld(RunFiles& files, HistoryFile& history);

// Returns the places whose bytes are neither old, nor new, nor a mixture of both as a crash leaves
// it.
std::set<PlaceConflict> FindConflicts(RunFiles& files, HistoryFile& history);

}  // namespace golf
