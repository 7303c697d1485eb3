#pragma once

#include "cli/json_text.h"
#include "scoring/player/player_class.h"

namespace golf {

// Adds every calculated value of the player's current entry for a round. The key of a value is the
// name of its member function. Raises the errors of the calculation.
void AddResults(PlayerClass& player, bool decimals, int round, Json& object);

}  // namespace golf
