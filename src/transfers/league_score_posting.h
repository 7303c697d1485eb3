#pragma once

#include <cstdint>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "transfers/league_batch.h"

namespace golf {

// Puts league scores into the histories of the open Kelvane roster and keeps the log of it. The
// operator is asked about a score that a history has already. Raises the errors of FileTable, and
// error 6, with the golfer untouched, for a number too large for an entry.
class LeagueScorePosting {
 public:
  // `log` shows what has been posted: whenever the operator is asked, and in the end.
  LeagueScorePosting(SharedState& state, ScreenHost& host, TextBox& log);
  LeagueScorePosting(const LeagueScorePosting&) = delete;
  LeagueScorePosting& operator=(const LeagueScorePosting&) = delete;
  ~LeagueScorePosting() { ShowLog(); }

  // Posts a score of the golfer in the league player buffer for the golfer in the Kelvane buffer,
  // who stands at `place`. What is no round is passed over. False if the operator has cancelled the
  // transfer.
  bool Post(std::int32_t place, const LeagueScore& score);

  std::int32_t count() const { return count_; }

 private:
  bool IsInHistory(const LeagueScore& score) const;
  bool WantsItAgain(const LeagueScore& score);
  bool WantsToCancel();
  void PostEntry(std::int32_t place, const LeagueScore& score);
  void PostHalf(std::int32_t place, const LeagueScore& score);
  void Log(int score);
  void ShowLog() { log_box_.SetText(log_); }

  SharedState& state_;
  ScreenHost& host_;
  TextBox& log_box_;
  std::string log_;
  bool halves_;  // nine holes played are half of an entry
  std::int32_t count_ = 0;
  int refusals_ = 0;  // in a row
};

}  // namespace golf
