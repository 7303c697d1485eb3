#pragma once

#include <functional>
#include <string>

#include "cli/commands.h"
#include "history/record_changes.h"
#include "history/run_list.h"

namespace golf {

// Says on standard error that a run is unfinished, if one is. Changes nothing.
void NoteUnfinished(SharedState& state);

// Returns the runs that are kept, and notes damaged files on standard error.
KeptRuns ListKeptRuns(SharedState& state);

// Returns the run of a number. Raises Refusal if there is none.
const HistoryRun& RunOfNumber(const KeptRuns& list, std::int64_t number);

// "2026-11-22 18:30:05"
std::string MomentText(DateValue moment);

// Calls a function with each change, each time it is called.
using EachChange = std::function<void(const std::function<void(const RecordChange&)>&)>;

// Writes changes: as events, or for people their counts. Returns their number.
std::int64_t WriteChangeCounts(bool json, const EachChange& for_each);
// Writes for people what changed, field by field. Records that can be worked out from others are
// left out.
void WriteChangeDetails(const RecordKinds& kinds, const EachChange& for_each);

}  // namespace golf
