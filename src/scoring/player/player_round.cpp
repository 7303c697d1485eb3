// This file calculates a round from its entry, the course and the tournament's options.

#include <array>
#include <cmath>

#include "core/general_routines.h"
#include "core/number_text.h"
#include "scoring/player/player_class.h"
#include "scoring/stroke_control.h"
#include "stores/course/course_class.h"

namespace golf {
namespace {

constexpr double kStandardSlope = 113;
constexpr double kIndexNudge = 0.00001;  // rounds up a course handicap that ends in .5
constexpr double kNineNudge = 0.0001;    // makes the two halves of an odd quota differ
constexpr int kParPlusScheme = 10;       // added to the code of a table scheme of stroke control

PointTable PointsOf(const TournamentControl& tournament) {
  PointTable points;
  for (int d = -kMostDifference; d <= kMostDifference; ++d) {
    points[d] = tournament.Stored().Get<"PointsGiven">(d);
  }
  return points;
}

}  // namespace

void PlayerClass::CalculateRound(int round) {
  RoundResults& results = results_[round];
  bool& stale = recalculate_[static_cast<std::size_t>(round) - 1];
  if (!stale) return;
  stale = false;  // first, since the calculation calls functions that need the round
  try {
    WorkOutRound(round, results);
  } catch (...) {
    stale = true;  // the next call calculates again and uses no old values
    throw;
  }
}

void PlayerClass::WorkOutRound(int round, RoundResults& results) {
  results = {};
  hole_strokes_.Fill(0);
  const PlayedTee played = LoadTeePlayed(round);
  results.gross_handicap = CourseHandicap(round, played);
  results.handicap = RoundHandicap(round, played, results.gross_handicap);
  TakeTotals(round, played.tee, results);
  TakeNetTotal(round, results);
  ScoreHoles(round, played.tee, results);
  TakeQuotaResults(round, results);
}

float PlayerClass::CourseHandicap(int round, const PlayedTee& played) {
  if (state().TournamentRecord().IndextoHandicap() == 0) {
    return entry_.Get<"TourGrossHandicap">(round);
  }
  const double slope = state().Course().Stored().Get<"slope">(played.tee, played.group);
  const double index = entry_.Get<"TourIndex">(round);
  return static_cast<float>(RoundToInt32(slope * index / kStandardSlope + kIndexNudge));
}

float PlayerClass::RoundHandicap(int round, const PlayedTee& played, float gross_handicap) {
  TournamentControl& tournament = state().TournamentRecord();
  const auto [group, tee_group, tee] = played;
  const double percent = tournament.TeeHandicapPercent(group, tee_group, round);
  const float share = CheckedSingle(percent / 100);
  const float allowed = CheckedSingle(double{share} * gross_handicap);
  const double adjustment = tournament.TeeHandicapAdjustment(group, tee_group, round);
  const float handicap = CheckedSingle(allowed + adjustment);
  const double most = LeadingNumber(tournament.HandicapMax(group));
  return handicap > most ? CheckedSingle(most) : handicap;
}

void PlayerClass::TakeTotals(int round, int tee, RoundResults& results) {
  if (state().TournamentRecord().ScoreEntryTotal() != 0) {
    results.gross[kWholeRound] = entry_.Get<"TourScoreGrossTotal">(round);
    results.adjusted = entry_.Get<"TourScoreAdjusted">(round);
    return;
  }
  RunStrokeControl(round, tee);
  const ESCClass& control = state().ESC();
  results.gross[kFirstNine] = control.Gross(1);
  results.gross[kSecondNine] = control.Gross(2);
  results.gross[kWholeRound] = control.Gross(3);
  results.adjusted = control.AdjGross(3);
}

// Calculates the net total. ScoreHoles adds up the net total later if scores are entered by hole.
void PlayerClass::TakeNetTotal(int round, RoundResults& results) {
  const double gross = results.gross[kWholeRound];
  if (gross < 1) return;
  if (state().TournamentRecord().ScoreEntryTotal() != 0) {
    results.net[kWholeRound] = RoundToInt32(gross - HandicapNumber(round));
  }
  results.decimal_net = CheckedSingle(gross - results.handicap);
}

void PlayerClass::ScoreHoles(int round, int tee, RoundResults& results) {
  TournamentControl& tournament = state().TournamentRecord();
  const int holes = tournament.RoundType();
  AllocateStrokes(round, tee, holes);
  if (tournament.ScoreEntryTotal() != 0) return;
  const PointTable points = PointsOf(tournament);
  for (int hole = 1; hole <= holes; ++hole) {
    const int score = entry_.Get<"TourScoreGross">(hole, round);
    if (score < 1) continue;
    CountHole({hole, score, hole_strokes_[hole], hole_pars_[hole]}, points, results);
  }
}

void PlayerClass::AllocateStrokes(int round, int tee, int holes) {
  const auto& course = state().Course().Stored();
  std::array<int, kHoles> ranks{};
  for (int hole = 1; hole <= holes; ++hole) {
    ranks[static_cast<std::size_t>(hole) - 1] = course.Get<"HoleHandicap">(tee, hole);
    hole_pars_[hole] = course.Get<"HolePar">(tee, hole);
  }
  const std::int32_t strokes = RoundToInt32(HandicapNumber(round));
  AllocateHoleStrokes(hole_strokes_.span(), ranks, holes, strokes);
}

// Calculates the points above the quota. TourQuota calculates the active round if the quota is
// based on the handicap.
void PlayerClass::TakeQuotaResults(int round, RoundResults& results) {
  const double quota = LeadingNumber(TourQuota(UsesDecimals(), round));
  const auto& points = results.gross_points;
  auto& quota_results = results.quota_results;
  quota_results[1] = CheckedSingle(points[kFirstNine] - (quota / 2 - kNineNudge));
  quota_results[2] = CheckedSingle(points[kSecondNine] - (quota / 2 + kNineNudge));
  quota_results[3] = CheckedSingle(points[kWholeRound] - quota);
}

// Caps the scores of all 18 holes, also in a tournament of nine holes. The gross handicap, before
// percentage and adjustment, determines the cap.
void PlayerClass::RunStrokeControl(int round, int tee) {
  TournamentControl& tournament = state().TournamentRecord();
  ESCClass& control = state().ESC();
  const int par_plus = tournament.RCGAESC() != 0 ? kParPlusScheme : 0;
  control.Setflag(tournament.RoundType() + par_plus);
  control.SetHandicap(CheckedSingle(LeadingNumber(TourGrossHandicapValue(false, round))));
  const auto& course = state().Course().Stored();
  for (int hole = 1; hole <= kHoles; ++hole) {
    control.SetHolePar(hole, course.Get<"HolePar">(tee, hole));
    control.SetHoleScore(hole, entry_.Get<"TourScoreGross">(hole, round));
  }
  control.CalculateESC();
}

std::int32_t PlayerClass::TourHoleAdjusted(double hole, OptionalRound round) {
  const int of = RoundOr(round);
  CalculateRound(of);
  RunStrokeControl(of, LoadTeePlayed(of).tee);
  return state().ESC().HoleAdjScore(RoundToInt32(std::trunc(hole)));
}

std::string PlayerClass::TourQuota(bool decimals, OptionalRound round) {
  constexpr int kFromFigure = 1;
  constexpr int kFromHandicap = 2;
  TournamentControl& tournament = state().TournamentRecord();
  switch (tournament.PointQuotaOption()) {
    case kFromFigure: {
      const double figure = LeadingNumber(tournament.PointQuotaFromHandicap());
      return FormatSignedHandicap(figure - HandicapNumber({}), decimals);
    }
    case kFromHandicap:
      return FormatSignedHandicap(HandicapNumber({}), decimals);
    default:
      return FormatSignedHandicap(entry_.Get<"TourQuota">(RoundOr(round)), decimals);
  }
}

// Returns the handicap as it is shown. Handicap strokes are calculated from the shown value.
double PlayerClass::HandicapNumber(OptionalRound round) {
  return LeadingNumber(TourHandicapValue(round));
}

}  // namespace golf
