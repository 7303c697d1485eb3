#pragma once

#include "cli/json_text.h"
#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"

namespace golf {

// These functions add every calculated value for a round to an object: of the player's current
// entry, or of the current team. The key of a value is the name of its member function. They raise
// the errors of the calculation.
void AddResults(PlayerClass& player, bool decimals, int round, Json& object);
void AddResults(TeamClass& team, int round, Json& object);

}  // namespace golf
