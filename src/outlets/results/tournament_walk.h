#pragma once

#include <cstdint>
#include <string>

#include "core/shared_state.h"
#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"
#include "scoring/tournament_class.h"

namespace golf {

// Reads each entry of the open tournament that is not deleted into the shared player, in the order
// of the file, and calls `action(record)`.
template <class Action>
void ForEachPlayer(SharedState& state, Action action) {
  PlayerClass& player = state.Player();
  const std::int32_t length = player.TourFileLength();
  for (std::int32_t record = 1; record <= length; ++record) {
    player.GetRecord(record, true);
    if (player.TourPlayerExists()) action(record);
  }
}

// Reads each team of the open tournament into the first team object and calls `action(team)`. Calls
// `note(sentence)` instead for a team that cannot be read but has golfers.
template <class Action, class Note>
void ForEachTeam(SharedState& state, Action action, Note note) {
  const int teams = state.Tournament().TeamCount();
  for (int team = 1; team <= teams; ++team) {
    if (state.Team1().GetRecord(team)) {
      action(team);
    } else if (state.Player().TourIndex1stPlayerOnTeam(team) > 0) {
      note("Team " + std::to_string(team) +
           " is left out, with its golfers: the last team that can be read is " +
           std::to_string(team - 1) + ".");
    }
  }
}

}  // namespace golf
