#pragma once

#include <cstdint>

#include "core/shared_state.h"
#include "history/record_kinds.h"
#include "history/undo.h"

namespace golf {

// Begins a transaction that undoes a run and rebuilds the course indexes that the undo makes out of
// date. The caller commits the transaction, or drops it if the result reports conflicts that it
// does not accept.
UndoResult HoldUndoOfRun(SharedState& state, const RecordKinds& kinds, const HistoryRun& run);

// Commits what HoldUndoOfRun has held, with a report that names the records left as they are.
// Returns the running number of the undo, or 0 if nothing had to change. The run is undone then,
// too, unless there are conflicts. Errors as Transactions::Commit.
std::int32_t CommitUndoOfRun(Transactions& transactions, const HistoryRun& run,
                             const UndoResult& result);

}  // namespace golf
