#pragma once

#include <functional>
#include <string>

#include "cli/commands.h"
#include "history/record_changes.h"
#include "history/run_list.h"

namespace golf {

// Writes a line to standard error if a run is unfinished. Changes nothing.
void NoteUnfinished(SharedState& state);

// Returns the runs in the history. Reports damaged files on standard error.
KeptRuns ListKeptRuns(SharedState& state);

// Returns the run with this number. Raises Refusal if there is none.
const HistoryRun& RunOfNumber(const KeptRuns& list, std::int64_t number);

// Returns a moment as a text such as "2026-11-22 18:30:05".
std::string MomentText(DateValue moment);

// Writes each change as an event if `json` is true, or else one line with their counts. Returns the
// number of changes.
std::int64_t WriteChangeCounts(const RecordKinds& kinds, bool json, const EachChange& for_each);

}  // namespace golf
