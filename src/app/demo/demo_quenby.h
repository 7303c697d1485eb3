#pragma once

#include "core/shared_state.h"

namespace golf {

// Creates Quenby's data of a demonstration install: two rosters, their golfers, and a tournament of
// two rounds with teams of four and all scores. The course library must exist. Raises the errors of
// FileTable.
void MakeDemoQuenby(SharedState& state);

}  // namespace golf
