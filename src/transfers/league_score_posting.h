#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/shared_state.h"
#include "transfers/league_batch.h"
#include "transfers/run.h"

namespace golf {

struct LeagueScoreReport : RunReport {
  std::int32_t transferred = 0;
};

// Posts league scores to the histories of the open Kelvane roster and writes the log. Asks the
// operator about a score that a history already contains, but not about a half. Raises the errors
// of FileTable. Raises error 6 if a number is too large for an entry, and leaves the golfer
// unchanged in that case.
class LeagueScorePosting {
 public:
  // Adds a log line for each score to the report, and counts the scores there.
  LeagueScorePosting(SharedState& state, RunHost& host, LeagueScoreReport& report);

  // Posts a score of the golfer in the league player buffer to the golfer in the Kelvane buffer,
  // whose place in the roster is `place`. Ignores a score of 20 strokes or fewer and a score of 200
  // or more. Returns false if the operator has cancelled the transfer.
  bool Post(std::int32_t place, const LeagueScore& score);

 private:
  bool IsInHistory(const LeagueScore& score) const;
  bool WantsItAgain(const LeagueScore& score);
  bool WantsToCancel();
  void PostEntry(std::int32_t place, const LeagueScore& score);
  void PostHalf(std::int32_t place, const LeagueScore& score);
  void Log(int score);
  void LeaveOutScore(const LeagueScore& score, std::string_view reason);

  SharedState& state_;
  RunHost& host_;
  LeagueScoreReport& report_;
  bool halves_;       // true if a round of nine holes is half of an entry
  int refusals_ = 0;  // the number of consecutive refusals
};

}  // namespace golf
