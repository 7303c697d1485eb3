#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/resume_next.h"
#include "core/shared_state.h"
#include "stores/kelvane/kelvane_golfer_index.h"
#include "transfers/run.h"

namespace golf {

// How the scores of a round are posted.
struct TournamentScoreChoice {
  int round = 1;
  std::int32_t course = 0;  // its number in Kelvane's library; 0 an away course
  bool back_nine = false;
  std::array<std::array<std::uint8_t, 5>, 2> tees{};  // Kelvane's, by sex and tee group; 0 none
  bool as_tournament = false;
  bool points = false;      // are posted in place of scores
  bool join_nines = false;  // a round of nine holes is half of an entry
};

struct TournamentScoreReport : RunReport {
  std::int16_t transferred = 0;
  std::int16_t already = 0;      // transferred by an earlier run
  std::int16_t to_transfer = 0;  // with a reason in the log
  std::int16_t not_found = 0;
};

// Posts the scores of a tournament's round into the histories of the open roster, one player after
// the other. The tournament and its players are open in the shared objects. A fault while a player
// is looked at, in a half, or while an entry is posted leaves him out, without the mark that his
// score has been transferred. So does every read that fails. Any other fault only leaves the figure
// that it hit as it was.
class TournamentScorePosting {
 public:
  TournamentScorePosting(SharedState& state, RunHost& host, const TournamentScoreChoice& choice,
                         TournamentScoreReport& report);

  // Reads the player in this record of the tournament's file, and posts his score.
  void Take(std::int32_t record);

 private:
  bool IsRead(std::int32_t record);
  bool IsToBePosted();
  bool IsPosted();
  bool IsWantedAgain();
  bool IsComplete();
  double AdjustedScore();
  void Log(const std::string& reason);
  void NoteFault(const NumberedError& fault);

  void FillEntry();
  void FillHoles();
  void FillPoints();
  void SetDate();
  void SetTee();
  void PostEntry();
  void PostHalf();

  SharedState& state_;
  RunHost& host_;
  const TournamentScoreChoice& choice_;
  ResumeNext next_;    // tells a fault in the player's name
  ResumeNext figure_;  // the same for one figure of an entry, but for a read that fails
  KelvaneGolferIndex golfers_;
  std::int32_t place_ = 0;         // of the player among the roster's golfers
  TournamentScoreReport& report_;  // its log has a line for each score that is still to transfer
  std::string name_;               // of the player in hand
};

}  // namespace golf
