#pragma once

#include "core/shared_state.h"

namespace golf {

// Makes Quenby's data of a demonstration install: two rosters, their golfers, and a tournament of
// two rounds with teams of four and the scores of the first round. The course library must exist.
// Errors as FileTable.
void MakeDemoQuenby(SharedState& state);

}  // namespace golf
