#pragma once

#include <cstdint>
#include <string>

#include "core/shared_state.h"
#include "transfers/run.h"
#include "transfers/tournament_score_posting.h"

namespace golf {

// This transfer posts the scores of a tournament round to the score histories of a Kelvane roster.
// It posts the scores of each golfer whose ID number is in both.
struct ScoresQbToKvRequest {
  std::string roster;  // Kelvane's roster, without folder or extension
  std::int32_t tournament = 0;
  // The run itself sets `join_nines` and `back_nine`.
  TournamentScoreChoice choice;
};

struct ScoresQbToKvReport : TournamentScoreReport {
  std::string course_played;  // the name of the round's course in Quenby's library
};

// Posts the scores. Asks before it posts nine holes to a roster of 18 holes, and before it posts a
// score again. Marks the header of the roster first, even if the numbers of holes do not fit.
// Continues after faults, but raises ReadError for a record that concerns all players. The files
// stay open.
void Run(SharedState& state, RunHost& host, const ScoresQbToKvRequest& request,
         ScoresQbToKvReport& report);

}  // namespace golf
