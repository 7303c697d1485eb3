#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "history/history_folder.h"

namespace golf {

enum class RunState { kDone, kUndone, kInterrupted, kLeft };

// "done", "undone", "interrupted", "left".
std::string_view NameOf(RunState state);

// A run that the history keeps.
struct HistoryRun {
  std::int32_t number = 0;   // 1 is the newest
  std::int32_t run = 0;      // the running number, which stays
  RunTitle title;            // of its first part
  std::int64_t changes = 0;  // records and whole files
  RunState state = RunState::kDone;
  std::vector<HistoryName> parts;  // in their order

  bool IsUndo() const { return title.undoes != 0; }
};

struct KeptRuns {
  std::vector<HistoryRun> runs;      // the newest first
  std::vector<std::string> damaged;  // sentences about files that cannot be read
};

// Reads the titles of the runs that are kept. A run that was put back, or never applied, is left
// out. Changes nothing. Files that another process writes are left out as well.
KeptRuns ListRuns(HistoryFolder& folder);

// Notes that a run is as undone, although no run of the history has put it back.
void MarkUndone(HistoryFolder& folder, const HistoryRun& run);

// Removes a run from the history, for good. A run that it has put back stays undone.
void ForgetRun(HistoryFolder& folder, const KeptRuns& list, const HistoryRun& run);
// Removes everything, damaged files as well. None may be unfinished.
void ForgetAllRuns(HistoryFolder& folder);

}  // namespace golf
