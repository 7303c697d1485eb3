// This file returns the results of a calculated round as text.

#include "scoring/player/player_class.h"

#include <string_view>

#include "core/number_text.h"

namespace golf {
namespace {

// Formats a whole number as the pattern "0" does.
std::string Shown(std::int32_t value) { return std::to_string(value); }

}  // namespace

const RoundResults& PlayerClass::Results(OptionalRound round) {
  const int of = RoundOr(round);
  CalculateRound(of);
  return results_[of];
}

bool PlayerClass::UsesDecimals() const {
  return state().TournamentRecord().HandicapDecimalPlaces() > 0;
}

std::string PlayerClass::TourHandicap(OptionalRound round) {
  return FormatPlusHandicap(Results(round).handicap, UsesDecimals());
}
std::string PlayerClass::TourHandicapValue(OptionalRound round) {
  return FormatSignedHandicap(Results(round).handicap, UsesDecimals());
}
std::string PlayerClass::TourHandicapWholeNumber(OptionalRound round) {
  return FormatPlusHandicap(Results(round).handicap, false);
}
std::string PlayerClass::TourGrossHandicap(bool decimals, OptionalRound round) {
  return FormatPlusHandicap(Results(round).gross_handicap, decimals);
}
std::string PlayerClass::TourGrossHandicapValue(bool decimals, OptionalRound round) {
  return FormatSignedHandicap(Results(round).gross_handicap, decimals);
}

std::int32_t PlayerClass::TourHoleStrokes(int hole, OptionalRound round) {
  CalculateRound(RoundOr(round));
  return hole_strokes_[hole];
}
std::int32_t PlayerClass::TourHolePar(int hole, OptionalRound round) {
  CalculateRound(RoundOr(round));
  return hole_pars_[hole];
}

std::int32_t PlayerClass::TourScoreGrossValue(int hole, OptionalRound round) {
  const int of = RoundOr(round);
  if (hole < 1 || hole > kHoles) return Results(of).gross[hole];
  if (state().TournamentRecord().ScoreEntryTotal() != 0) return 0;
  return entry_.Get<"TourScoreGross">(hole, of);
}

TextOrNumber PlayerClass::TourScoreGross(int hole, OptionalRound round) {
  const std::int32_t score = TourScoreGrossValue(hole, round);
  if (hole > kHoles) return Shown(score);
  if (state().TournamentRecord().ScoreEntryTotal() != 0) return 0;
  return score >= kUnfinished ? "F" : FormatNumber(score, "#0; ; ");
}

std::string PlayerClass::TourScoreNet(int hole, OptionalRound round) {
  const RoundResults& results = Results(round);
  if (hole == kWholeRound && UsesDecimals()) return FormatPlusHandicap(results.decimal_net, true);
  return TourScoreGrossValue(hole, round) > 0 ? Shown(results.net[hole]) : "";
}

std::string PlayerClass::TourScoreAdjusted(OptionalRound round) {
  return Shown(Results(round).adjusted);
}
std::string PlayerClass::TourPBEStatsGross(int difference, int hole, OptionalRound round) {
  return Shown(Results(round).gross_statistics[difference][hole]);
}
std::string PlayerClass::TourPBEStatsNet(int difference, int hole, OptionalRound round) {
  return Shown(Results(round).net_statistics[difference][hole]);
}
std::string PlayerClass::TourPointsGross(int hole, OptionalRound round) {
  return Shown(Results(round).gross_points[hole]);
}
std::string PlayerClass::TourPointsNet(int hole, OptionalRound round) {
  return Shown(Results(round).net_points[hole]);
}
std::string PlayerClass::TourPointsQuotaResults(int part, OptionalRound round) {
  return FormatSignedHandicap(Results(round).quota_results[part], UsesDecimals());
}

}  // namespace golf
