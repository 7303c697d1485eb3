#pragma once

#include <cstdint>
#include <string>

#include "core/shared_state.h"
#include "transfers/run.h"
#include "transfers/tournament_score_posting.h"

namespace golf {

// This transfer posts the scores of a tournament round to the score histories of a Kelvane roster.
// It posts the scores of each golfer whose ID number both have.
struct ScoresQbToKvRequest {
  std::string roster;  // Kelvane's, without folder or extension
  std::int32_t tournament = 0;
  // The run itself sets whether nines are joined and whether the course is a back nine.
  TournamentScoreChoice choice;
};

struct ScoresQbToKvReport : TournamentScoreReport {
  std::string course_played;  // Quenby's name of the course of the round
};

// Asks where nine holes would go into a roster of 18, and about scores that were transferred
// before. Marks the roster's header first, so also where the holes do not fit. Carries on over
// faults, but raises ReadError for a record that all players have in common. The files stay open.
void Run(SharedState& state, RunHost& host, const ScoresQbToKvRequest& request,
         ScoresQbToKvReport& report);

}  // namespace golf
