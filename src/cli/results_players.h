#pragma once

#include "cli/json_text.h"
#include "scoring/player/player_class.h"

namespace golf {

// Every calculated value of the entry in the player's buffers for a round, under the name of its
// member. Errors of the calculation travel out.
void AddResults(PlayerClass& player, bool decimals, int round, Json& object);

}  // namespace golf
