#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "history/history_folder.h"
#include "history/record_changes.h"

namespace golf {

enum class RunState { kDone, kUndone, kInterrupted, kLeft };

// Returns "done", "undone", "interrupted" or "left".
std::string_view NameOf(RunState state);

// Describes a run in the history.
struct HistoryRun {
  std::int32_t number = 0;   // position in the list; 1 is the newest run
  std::int32_t run = 0;      // the running number, which never changes
  RunTitle title;            // the title of the first part
  std::int64_t changes = 0;  // number of changed places and deleted files
  RunState state = RunState::kDone;
  std::vector<HistoryName> parts;  // in the order of their numbers

  bool IsUndo() const { return title.undoes != 0; }
};

struct KeptRuns {
  std::vector<HistoryRun> runs;      // the newest first
  std::vector<std::string> damaged;  // one sentence for each damaged history file
};

// Lists the runs in the history. Leaves out parts that were put back or never applied, and history
// files that another process has open exclusively. Changes nothing.
KeptRuns ListRuns(HistoryFolder& folder);

// Returns the newest run that is done and is not an undo, or null if there is none.
const HistoryRun* NewestToUndo(const KeptRuns& list);

// Returns the reports of a run's parts, each in lines of its own.
std::string ReportOf(HistoryFolder& folder, const HistoryRun& run);

// Calls `each` for the changes of a run, part by part. See ForEachChange of a history file.
void ForEachChange(HistoryFolder& folder, const HistoryRun& run, const RecordKinds& kinds,
                   const std::function<void(const RecordChange&)>& each);

// Marks a run as undone, if no run in the history has put it back. Raises error 70 if another
// process has its history file open.
void MarkUndone(HistoryFolder& folder, const HistoryRun& run);

// Removes a run from the history permanently. If it has put another run of `list` back, that run is
// marked as undone.
void ForgetRun(HistoryFolder& folder, const KeptRuns& list, const HistoryRun& run);
// Removes all runs from the history, including damaged history files. No run may be interrupted.
void ForgetAllRuns(HistoryFolder& folder);

}  // namespace golf
