#pragma once

#include <cstdint>
#include <string>

#include "core/numbered_error.h"
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

// Does the same. If an action raises an error, calls `failed(record, who, error)` and continues.
// `who` describes the player, in code page 1252.
template <class Action, class Failed>
void ForEachPlayer(SharedState& state, Action action, Failed failed) {
  ForEachPlayer(state, [&](std::int32_t record) {
    try {
      action(record);
    } catch (const NumberedError& error) {
      failed(record, "Record " + std::to_string(record) + ", " + state.Player().NameLF(), error);
    }
  });
}

// Reads each team of the open tournament into the first team object and calls `action(team)`. Calls
// `unread(team)` instead for a team that cannot be read.
template <class Action, class Unread>
void ForEachTeam(SharedState& state, Action action, Unread unread) {
  const int teams = state.Tournament().TeamCount();
  for (int team = 1; team <= teams; ++team) {
    state.Team1().GetRecord(team) ? action(team) : unread(team);
  }
}

// Does the same. If an action raises an error, calls `failed(team, who, error)` and continues.
// Calls `note(sentence)` for a team that cannot be read but has golfers.
template <class Action, class Failed, class Note>
void ForEachTeam(SharedState& state, Action action, Failed failed, Note note) {
  const auto try_action = [&](int team) {
    try {
      action(team);
    } catch (const NumberedError& error) {
      failed(team, "Team " + std::to_string(team), error);
    }
  };
  ForEachTeam(state, try_action, [&](int team) {
    if (state.Player().TourIndex1stPlayerOnTeam(team) <= 0) return;
    note("Team " + std::to_string(team) +
         " is left out, with its golfers: the last team that can be read is " +
         std::to_string(team - 1) + ".");
  });
}

}  // namespace golf
