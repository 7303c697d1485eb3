#include "transfers/league_score_posting.h"

#include <algorithm>

#include "core/text.h"
#include "stores/kelvane/kelvane_halves.h"
#include "stores/kelvane/kelvane_scores.h"
#include "stores/zandel/zandel_buffers.h"
#include "stores/zandel/zandel_files.h"

namespace golf {
namespace {

constexpr int kNoRound = 20;          // a score up to this is not a round
constexpr int kNoRoundEither = 200;   // a score from this on is not a round
constexpr int kRefusalsToCancel = 3;  // consecutive refusals before the run asks whether to cancel

}  // namespace

LeagueScorePosting::LeagueScorePosting(SharedState& state, RunHost& host, LeagueScoreReport& report)
    : state_(state),
      host_(host),
      report_(report),
      halves_(state.Kelvane().header.Get<"Holes">() == 18 &&
              state.Zandel().control.Get<"LeagueHoles">() == 9) {}

bool LeagueScorePosting::Post(std::int32_t place, const LeagueScore& score) {
  if (score.score <= kNoRound || score.score >= kNoRoundEither) {
    LeaveOutScore(score, score.score <= 0 ? left_out::kNoScore : left_out::kNoRound);
    return true;
  }
  ReadKVHistory(state_, place);
  if (halves_) {
    PostHalf(place, score);
  } else {
    if (IsInHistory(score)) {
      if (!WantsItAgain(score)) {
        LeaveOutScore(score, left_out::kNotAgain);
        return !WantsToCancel();
      }
      refusals_ = 0;
    }
    PostEntry(place, score);
  }
  Log(score.score);
  return true;
}

bool LeagueScorePosting::IsInHistory(const LeagueScore& score) const {
  const KelvaneBuffers& kelvane = state_.Kelvane();
  const auto& history = kelvane.history;
  const KelvaneTee& played = score.played;
  const int entries = std::min<int>(kelvane.golfer.Get<"ScoreCounter">(1), kKelvaneScores);
  for (int i = 1; i <= entries; ++i) {
    if (history.Get<"Date">(i) == score.date && history.Get<"Adjusted">(i) == score.score &&
        history.Get<"CourseNumber">(i) == played.course_number &&
        history.Get<"TeeNumber">(i) == played.tee_number &&
        history.Get<"Rating">(i) == played.rating && history.Get<"Slope">(i) == played.slope) {
      return true;
    }
  }
  return false;
}

bool LeagueScorePosting::WantsItAgain(const LeagueScore& score) {
  return host_.AskAgain("Re-transfer score?",
                        "A score (" + std::to_string(score.score) + ") with the same date (" +
                            FormatDay(score.date, "mm/dd/yy") +
                            ") has already been transfered to the Kelvane. Do you want to transfer "
                            "this score again?",
                        report_.log);
}

bool LeagueScorePosting::WantsToCancel() {
  if (++refusals_ < kRefusalsToCancel) return false;
  const BoxButton answer = host_.Ask(Box{.title = "Cancel Transfer?",
                                         .text = "Would you like to cancel this transfer?",
                                         .icon = BoxIcon::kQuestion,
                                         .buttons = {BoxButton::kYes, BoxButton::kNo}});
  refusals_ = 0;
  return answer == BoxButton::kYes;
}

void LeagueScorePosting::PostEntry(std::int32_t place, const LeagueScore& score) {
  const std::uint8_t slope = KVByte(score.played.slope);
  BlankKVScore(state_);
  auto& entry = state_.Kelvane().score;
  entry.Set<"CourseNumber">(score.played.course_number);
  entry.Set<"TeeNumber">(score.played.tee_number);
  entry.Set<"Adjusted">(KVByte(score.score));
  entry.Set<"Rating">(score.played.rating);
  entry.Set<"Slope">(slope);
  entry.Set<"Date">(score.date);
  PostKVScore(state_, place);
}

// Writes the history first. The waiting half is then kept if the golfer's record cannot be written.
void LeagueScorePosting::PostHalf(std::int32_t place, const LeagueScore& score) {
  const NineHoleHalf half{static_cast<double>(score.score), score.played.rating,
                          static_cast<double>(score.played.slope)};
  if (KVHalfWaits(state_)) {
    BlankKVScore(state_);
    state_.Kelvane().score.Set<"Date">(score.date);
    JoinKVHalves(state_, half);
    AddKVScore(state_);
    WriteKVHistory(state_, place);
  } else {
    KeepKVHalf(state_, half);
  }
  WriteKVGolfer(state_, place);
}

void LeagueScorePosting::LeaveOutScore(const LeagueScore& score, std::string_view reason) {
  const auto& player = state_.Zandel().player;
  if (!HasLastName(player)) return;
  std::string title = LeagueGolferNameLF(player);
  if (score.score > 0) title += " (" + std::to_string(score.score) + ")";
  report_.left_out.Add(title, reason);
}

void LeagueScorePosting::Log(int score) {
  const auto& player = state_.Zandel().player;
  report_.log += std::to_string(score) + " - ";
  report_.log.append(Trim(player.Get<"FirstName">())).append(" ");
  report_.log.append(player.Get<"LastName">()).append("\r\n");
  ++report_.transferred;
}

}  // namespace golf
