#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/resume_next.h"
#include "core/shared_state.h"
#include "stores/kelvane/kelvane_golfer_index.h"
#include "transfers/run.h"

namespace golf {

// Contains the options for posting the scores of a round.
struct TournamentScoreChoice {
  int round = 1;
  std::int32_t course = 0;  // the number in Kelvane's library; 0: an away course
  bool back_nine = false;
  std::array<std::array<std::uint8_t, 5>, 2> tees{};  // Kelvane's, by sex and tee group; 0: none
  bool as_tournament = false;
  bool points = false;      // true posts points instead of scores
  bool join_nines = false;  // true if a round of nine holes is half of an entry
};

struct TournamentScoreReport : RunReport {
  std::int16_t transferred = 0;
  std::int16_t already = 0;      // transferred by an earlier run
  std::int16_t to_transfer = 0;  // not transferred, with a reason in the log
  std::int16_t not_found = 0;    // part of to_transfer: the roster lacks the ID
};

// Posts the scores of a tournament's round to the histories of the open roster, player by player.
// The tournament and its players must be open in the shared objects. A player is left out and the
// score is not marked as transferred after a fault in the checks or in the posting of a half or an
// entry. The same applies to every failed read. Any other fault only leaves the value concerned
// unchanged.
class TournamentScorePosting {
 public:
  TournamentScorePosting(SharedState& state, RunHost& host, const TournamentScoreChoice& choice,
                         TournamentScoreReport& report);

  // Reads the player of this record of the tournament's file and posts the player's score.
  void Take(std::int32_t record);

 private:
  bool IsRead(std::int32_t record);
  bool IsToBePosted();
  bool IsPosted();
  bool IsWantedAgain();
  // Returns the reason why the round has no score to be posted, or an empty text if it has one.
  std::string_view MissingScore();
  double AdjustedScore();
  void Log(const std::string& reason);
  void LeaveOutEntry(std::string_view reason);
  // Runs a statement that must succeed before the score can be posted. If it fails, the function
  // adds the player to the list of those left out and returns false.
  bool NextOrLeaveOut(const std::function<void()>& statement);
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
  ResumeNext next_;    // notes a fault
  ResumeNext figure_;  // for one value of an entry: notes a fault, but rethrows a ReadError
  KelvaneGolferIndex golfers_;
  std::int32_t place_ = 0;         // the player's place in the roster
  TournamentScoreReport& report_;  // its log has a line for each score not transferred
  std::string name_;               // the name of the current player
};

}  // namespace golf
