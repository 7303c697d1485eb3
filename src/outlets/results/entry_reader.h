#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/numbered_error.h"
#include "core/shared_state.h"
#include "outlets/results/player_cards.h"
#include "outlets/results/result_entry.h"

namespace golf {

// Describes how to read the results of the open tournament. These are the scores of its active
// round and the totals of round 1 to this round.
struct EntryQuestion {
  SharedState& state;
  Tiebreak tiebreak = Tiebreak::kNone;
  bool with_cards = false;
  // Is called for each player or team whose results cannot be calculated. `who` describes the
  // player or the team, in code page 1252. The returned entries do not contain it.
  std::function<void(const std::string& who, const NumberedError& error)> failed;
  // Is called with a sentence about a team that has golfers but cannot be read.
  std::function<void(const std::string& sentence)> note;
};

// Returns the players of the entries that are not deleted, in the order of the file.
std::vector<ResultEntry> ReadPlayers(const EntryQuestion& question);

// Reads the cards and the statistics of a player, identified by the record of his entry. Reads the
// active round for Span::kRound, and round 1 to the active round for Span::kAllRounds.
// Raises the errors of PlayerClass.
PlayerCards ReadPlayerCards(SharedState& state, std::int32_t record, Span span);

// Returns the teams that can be read, in the order of their numbers.
std::vector<ResultEntry> ReadTeams(const EntryQuestion& question);

}  // namespace golf
