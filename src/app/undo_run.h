#pragma once

#include "core/shared_state.h"
#include "history/record_kinds.h"
#include "history/undo.h"

namespace golf {

// Holds in a new transaction what puts a run back, with the course indexes that it makes out of
// date. The caller commits it, or drops it where conflicts are to refuse the undo.
UndoResult HoldUndoOfRun(SharedState& state, const RecordKinds& kinds, const HistoryRun& run);

}  // namespace golf
