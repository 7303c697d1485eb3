#pragma once

#include "core/shared_state.h"
#include "history/record_kinds.h"

namespace golf {

// Makes what the history must know of the siblings' records. It reads files of the install through
// the state's platform, with the changes that are held, and changes none of the state's buffers. It
// keeps the files open that it has read.
RecordKinds MakeRecordKinds(SharedState& state);

}  // namespace golf
