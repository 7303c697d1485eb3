#pragma once

#include "core/shared_state.h"
#include "history/record_kinds.h"

namespace golf {

// Returns the functions that describe the siblings' records to the history. They read files of the
// install through the state's platform, which includes the changes of a pending transaction. They
// change none of the state's buffers. They keep the files open that they have read.
RecordKinds MakeRecordKinds(SharedState& state);

}  // namespace golf
