#pragma once

#include "core/shared_state.h"
#include "history/record_kinds.h"
#include "history/undo.h"

namespace golf {

// Begins a transaction that undoes a run and rebuilds the course indexes that the undo makes out of
// date. The caller commits the transaction, or drops it if the result reports conflicts that it
// does not accept.
UndoResult HoldUndoOfRun(SharedState& state, const RecordKinds& kinds, const HistoryRun& run);

}  // namespace golf
