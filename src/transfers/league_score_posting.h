#pragma once

#include <cstdint>
#include <string>

#include "core/shared_state.h"
#include "transfers/league_batch.h"
#include "transfers/run.h"

namespace golf {

struct LeagueScoreReport : RunReport {
  std::int32_t transferred = 0;
};

// Puts league scores into the histories of the open Kelvane roster and keeps the log of it. The
// operator is asked about a score that a history has already. Raises the errors of FileTable, and
// error 6, with the golfer untouched, for a number too large for an entry.
class LeagueScorePosting {
 public:
  // The report gets a line for each score and their count.
  LeagueScorePosting(SharedState& state, RunHost& host, LeagueScoreReport& report);

  // Posts a score of the golfer in the league player buffer for the golfer in the Kelvane buffer,
  // who stands at `place`. What is no round is passed over. False if the operator has cancelled the
  // transfer.
  bool Post(std::int32_t place, const LeagueScore& score);

 private:
  bool IsInHistory(const LeagueScore& score) const;
  bool WantsItAgain(const LeagueScore& score);
  bool WantsToCancel();
  void PostEntry(std::int32_t place, const LeagueScore& score);
  void PostHalf(std::int32_t place, const LeagueScore& score);
  void Log(int score);

  SharedState& state_;
  RunHost& host_;
  LeagueScoreReport& report_;
  bool halves_;       // nine holes played are half of an entry
  int refusals_ = 0;  // in a row
};

}  // namespace golf
