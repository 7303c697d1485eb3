#include "transfers/tournament_score_posting.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"
#include "scoring/player/player_class.h"
#include "scoring/tournament_class.h"
#include "stores/kelvane/kelvane_halves.h"
#include "stores/kelvane/kelvane_scores.h"

namespace golf {
namespace {

constexpr int kNineHoles = 9;
constexpr double kHighestNoScore = 20;  // a total up to this is not the score of a round

}  // namespace

TournamentScorePosting::TournamentScorePosting(SharedState& state, RunHost& host,
                                               const TournamentScoreChoice& choice,
                                               TournamentScoreReport& report)
    : state_(state),
      host_(host),
      choice_(choice),
      next_([this](const NumberedError& fault) { NoteFault(fault); }),
      figure_(ResumeNextButReads([this](const NumberedError& fault) { NoteFault(fault); })),
      golfers_(state),
      report_(report) {}

void TournamentScorePosting::Take(std::int32_t record) {
  if (!IsRead(record)) return;
  bool wanted = false;
  NextOrLeaveOut([&] { wanted = IsToBePosted(); });
  if (!wanted || !IsPosted()) return;
  next_([&] {
    state_.Player().SetTourScoreTransferredtoKV(choice_.round, true);
    state_.Player().SaveRecord(record, true);
  });
}

// Reads the entry and its player into the buffers. Returns false if the entry has no player.
bool TournamentScorePosting::IsRead(std::int32_t record) {
  PlayerClass& player = state_.Player();
  name_ = "Entry " + std::to_string(record) + " of the tournament";
  bool exists = false;
  NextOrLeaveOut([&] { exists = player.GetRecord(record, true) && player.TourPlayerExists(); });
  if (exists) name_ = player.NameLF();
  host_.Group(name_);
  return exists;
}

// Posts the score. Does not count it as transferred if its values or the history cannot be read.
bool TournamentScorePosting::IsPosted() {
  next_([&] { CountUp(report_.transferred); });
  BlankKVScore(state_);
  return NextOrLeaveOut([&] {
    try {
      if (!choice_.join_nines) FillEntry();
      choice_.join_nines ? PostHalf() : PostEntry();
    } catch (const ReadError&) {
      --report_.transferred;
      throw;
    }
  });
}

void TournamentScorePosting::LeaveOutEntry(std::string_view reason) {
  report_.left_out.Add(name_, reason);
}

bool TournamentScorePosting::NextOrLeaveOut(const std::function<void()>& statement) {
  return next_([&] {
    try {
      statement();
    } catch (const ReadError&) {
      throw;  // NoteFault leaves out the player
    } catch (const NumberedError& error) {
      LeaveOutEntry(StoppedBy(error));
      throw;
    }
  });
}

void TournamentScorePosting::NoteFault(const NumberedError& fault) {
  if (dynamic_cast<const ReadError*>(&fault) != nullptr) {
    LeaveOut(host_, report_, Who(name_), fault);
  } else {
    host_.NoteFault(fault);
  }
}

// Returns true if the score is to be posted. The Kelvane buffer then contains the golfer.
bool TournamentScorePosting::IsToBePosted() {
  if (!IsWantedAgain()) {
    CountUp(report_.already);
    return false;
  }
  const std::string_view missing = MissingScore();
  if (!missing.empty()) {
    Log(" (Round" + NumberText(choice_.round) + " not complete)");
    LeaveOutEntry(missing);
    CountUp(report_.to_transfer);
    return false;
  }
  place_ = golfers_.Find(std::max(state_.Player().StoredID(), 0));
  if (place_ == 0) {
    Log(" (No ID# match found)");
    LeaveOutEntry(left_out::kNotInRoster);
    CountUp(report_.to_transfer);
    CountUp(report_.not_found);
    return false;
  }
  if (AdjustedScore() > 0) return true;
  LeaveOutEntry(left_out::kNoScore);
  return false;
}

// Returns true for a score that was not transferred before. Asks the operator about any other
// score.
bool TournamentScorePosting::IsWantedAgain() {
  PlayerClass& player = state_.Player();
  if (!player.TourScoreTransferredtoKV(choice_.round)) return true;
  if (golfers_.Find(std::max(player.StoredID(), 0)) == 0) {
    LeaveOutEntry(left_out::kTransferredBefore);
    return false;
  }
  const Box box{.title = "Transfer again?",
                .text = "The score for '" + player.NameLF() + "' (round #" +
                        std::to_string(choice_.round) +
                        ") has already been transferred.  Do you want to transfer it again?",
                .icon = BoxIcon::kQuestion,
                .buttons = {BoxButton::kYes, BoxButton::kNo},
                .default_button = 1};
  if (host_.Ask(box) == BoxButton::kYes) return true;
  LeaveOutEntry(left_out::kNotAgain);
  return false;
}

std::string_view TournamentScorePosting::MissingScore() {
  TournamentClass& tournament = state_.Tournament();
  if (tournament.ScoreEntryTotal() != 0) {  // totals without hole scores give no points
    const double score = AdjustedScore();
    if (score <= 0) return left_out::kNoScore;
    if (score <= kHighestNoScore) return left_out::kIncomplete;
    return choice_.points ? left_out::kNoHoleScores : std::string_view();
  }
  const int holes = tournament.RoundType();
  int played = 0;
  for (int hole = 1; hole <= holes; ++hole) {
    if (state_.Player().TourScoreGrossValue(hole, choice_.round) > 0) ++played;
  }
  if (played >= holes) return {};
  return played == 0 ? left_out::kNoScore : left_out::kIncomplete;
}

double TournamentScorePosting::AdjustedScore() {
  return state_.Player().Results(choice_.round).adjusted;
}

void TournamentScorePosting::Log(const std::string& reason) {
  report_.log += state_.Player().NameLF() + reason + "\r\n";
}

// Fills the entry, each value in its own statement. A value that does not fit leaves only its own
// field unchanged.
void TournamentScorePosting::FillEntry() {
  PlayerClass& player = state_.Player();
  auto& entry = state_.Kelvane().score;
  const int round = choice_.round;
  figure_([&] { entry.Set<"CourseNumber">(RoundToInt16(choice_.course)); });
  figure_([&] { SetTee(); });
  figure_([&] { SetDate(); });
  figure_([&] {
    entry.Set<"Rating">(CheckedSingle(LeadingNumber(player.TourCourseTeePlayedRating(round))));
  });
  figure_(
      [&] { entry.Set<"Slope">(KVByte(LeadingNumber(player.TourCourseTeePlayedSlope(round)))); });
  figure_([&] { FillHoles(); });
  figure_([&] { entry.Set<"Gross">(KVByte(player.TourScoreGrossValue(kWholeRound, round))); });
  figure_([&] { entry.Set<"Adjusted">(KVByte(AdjustedScore())); });
  if (choice_.as_tournament) entry.Set<"ScoreType">(kKelvaneTournamentScore);
  figure_([&] { entry.Set<"Putts">(KVByte(player.TourPutts(round))); });
  figure_([&] { entry.Set<"Fairways">(KVByte(player.TourFairways(round))); });
  figure_([&] { entry.Set<"Greens">(KVByte(player.TourGreens(round))); });
  figure_([&] {
    const double handicap = LeadingNumber(player.TourGrossHandicap(false, round));
    entry.Set<"HandicapPlayed">(RoundToInt16(handicap));
  });
  if (choice_.points) FillPoints();
}

void TournamentScorePosting::SetTee() {
  PlayerClass& player = state_.Player();
  const auto& tees = choice_.tees[player.sex() == "F" ? 1 : 0];
  const int group = player.TourGroupTee(choice_.round);
  state_.Kelvane().score.Set<"TeeNumber">(tees[static_cast<std::size_t>(group) - 1]);
}

// Sets the date. An invalid date raises error 5 and leaves the current date and time in the entry.
void TournamentScorePosting::SetDate() {
  const DateValue date = state_.Tournament().Stored().Get<"DateofRound">(choice_.round);
  if (!IsDate(date)) {
    throw NumberedError(ErrorNumber::kBadCall,
                        "The tournament has no date for round" + NumberText(choice_.round) + ".");
  }
  state_.Kelvane().score.Set<"Date">(std::trunc(date));
}

// Fills the hole scores. The scores of a back nine course are those of Kelvane's holes 10 to 18.
void TournamentScorePosting::FillHoles() {
  auto& entry = state_.Kelvane().score;
  const int holes = choice_.back_nine ? kNineHoles : kHoles;
  const int before = choice_.back_nine ? kNineHoles : 0;
  for (int hole = 1; hole <= holes; ++hole) {
    const std::int32_t score = state_.Player().TourScoreGrossValue(hole, choice_.round);
    entry.Set<"HoleScore">({hole + before}, KVByte(score));
  }
}

// Replaces the score by points. Points do not depend on the course, so the entry has no course, tee
// or rating.
void TournamentScorePosting::FillPoints() {
  auto& entry = state_.Kelvane().score;
  figure_([&] {
    entry.Set<"Adjusted">(KVByte(state_.Player().Results(choice_.round).gross_points[kWholeRound]));
  });
  entry.Set<"CourseNumber">(0);
  entry.Set<"TeeNumber">(0);
  entry.Set<"Rating">(0);
}

void TournamentScorePosting::PostEntry() {
  ReadKVHistory(state_, place_);
  PostKVScore(state_, place_);
}

// Posts half of an entry. A half that is kept is always the adjusted score, even if points are
// posted.
void TournamentScorePosting::PostHalf() {
  PlayerClass& player = state_.Player();
  const int round = choice_.round;
  NineHoleHalf half{.score = AdjustedScore(),
                    .rating = LeadingNumber(player.TourCourseTeePlayedRating(round)),
                    .slope = LeadingNumber(player.TourCourseTeePlayedSlope(round))};
  if (!KVHalfWaits(state_)) {
    KeepKVHalf(state_, half);
    return WriteKVGolfer(state_, place_);
  }
  auto& entry = state_.Kelvane().score;
  if (choice_.points) {
    half.score = player.Results(round).gross_points[kWholeRound];
  }
  JoinKVHalves(state_, half);
  if (choice_.points) entry.Set<"Rating">(0);
  figure_([&] { SetDate(); });
  const double handicap = LeadingNumber(player.TourGrossHandicap(false, round));
  entry.Set<"HandicapPlayed">(RoundToInt16(2 * handicap));
  PostEntry();
}

}  // namespace golf
