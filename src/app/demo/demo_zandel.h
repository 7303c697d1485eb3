#pragma once

#include "core/shared_state.h"

namespace golf {

// Creates Zandel's leagues of a demonstration install. League 0001 plays 9 holes, has two
// divisions, and has no score of the current event yet. League 0002 plays 18 holes and has some.
// The course library must exist. Raises the errors of FileTable.
void MakeDemoLeagues(SharedState& state);

}  // namespace golf
