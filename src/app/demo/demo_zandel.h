#pragma once

#include "core/shared_state.h"

namespace golf {

// Zandel's leagues of a demonstration install: 0001 of nine holes with two divisions, where no
// score of the current event is entered yet, and 0002 of eighteen holes, where some are. The course
// library must be there. Errors as FileTable.
void MakeDemoLeagues(SharedState& state);

}  // namespace golf
