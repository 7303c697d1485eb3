// This file returns the results of a team's calculated round as text.

#include "scoring/team/team_class.h"

#include "core/number_text.h"
#include "scoring/tournament_class.h"

namespace golf {

const TeamRound& TeamClass::Results(OptionalRound round) {
  const int of = RoundOr(round);
  TeamRound& results = rounds_[of];
  bool& stale = recalculate_[static_cast<std::size_t>(of) - 1];
  if (stale) {
    CalculateTeamRound(of, results);
    stale = false;  // last, so that a round is calculated again after an error
  }
  return results;
}

bool TeamClass::ShowsDecimals() const { return state().Tournament().HandicapDecimalPlaces() > 0; }

std::string TeamClass::Handicap(OptionalRound round) {
  return FormatPlusHandicap(Results(round).handicap, ShowsDecimals());
}
std::int32_t TeamClass::ScoreGross(int hole, OptionalRound round) {
  return Results(round).gross[hole];
}
double TeamClass::ScoreNet(int hole, OptionalRound round) {
  const TeamRound& results = Results(round);
  if (hole > kHoles && ShowsDecimals()) return results.decimal_net[hole];
  return results.net[hole];
}
std::int32_t TeamClass::PointsGross(int hole, OptionalRound round) {
  return Results(round).gross_points[hole];
}
std::int32_t TeamClass::PointsNet(int hole, OptionalRound round) {
  return Results(round).net_points[hole];
}
std::string TeamClass::Quota(OptionalRound round) {
  return FormatSignedHandicap(Results(round).quota, ShowsDecimals());
}
std::string TeamClass::QuotaResults(int part, OptionalRound round) {
  return FormatSignedHandicap(Results(round).quota_results[part], ShowsDecimals());
}

std::string TeamClass::NameofPlayersOnTeam(int i, OptionalRound round) {
  const auto& names = Results(round).names;
  if (i < 0 || i >= static_cast<int>(names.size())) {
    throw NumberedError(ErrorNumber::kSubscript, "A team has eight names to show.");
  }
  return names[static_cast<std::size_t>(i)];
}

std::string TeamClass::ScrambleGross(int hole, OptionalRound round) {
  return std::to_string(ScoreGross(hole, round));
}

std::string TeamClass::ScrambleNet(int hole, OptionalRound round) {
  const int of = RoundOr(round);
  if (Results(of).first_scorer == 0) return {};
  auto& net = rounds_[of].scramble_net;
  if (!net) net = WorkOutScramble(of);
  return std::to_string((*net)[hole]);
}

std::string TeamClass::TotalGross() { return std::to_string(AccumulateTeamTotals().gross); }
std::string TeamClass::TotalNet() { return FormatNumber(AccumulateTeamTotals().net, "0"); }
std::string TeamClass::TotalNetScramble() {
  return FormatNumber(AccumulateTeamTotals().scramble_net, "0");
}

}  // namespace golf
