// This file calculates a team's round from its golfers, and the sums over rounds.

#include <array>

#include "core/general_routines.h"
#include "core/number_text.h"
#include "scoring/checked_sums.h"
#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"
#include "scoring/tournament_class.h"
#include "stores/course/course_class.h"

namespace golf {
namespace {

constexpr int kSumTimesPercent = 2;  // the team handicap is a percentage of the sum

}  // namespace

void TeamClass::CalculateTeamRound(int round, TeamRound& results) {
  results = {};
  ForEachGolfer(RoundOr({}), [&](std::int32_t record) {
    AddGolfer(record, round, results);
    return true;
  });
  TournamentClass& tournament = state().Tournament();
  const double sum = results.handicap;
  if (tournament.TeamHandicapOption() == kSumTimesPercent) {
    results.handicap = CheckedSingle(sum * LeadingNumber(tournament.TeamHandicapPercent()) / 100);
  } else if (results.golfers > 0) {
    results.handicap = CheckedSingle(sum / results.golfers);
  }
}

void TeamClass::AddGolfer(std::int32_t record, int round, TeamRound& results) {
  PlayerClass& player = state().Player();
  const bool has_score = player.TourScoreGrossValue(kWholeRound, round) > 0;
  if (has_score && results.first_scorer == 0) results.first_scorer = record;
  results.names[0] += (results.golfers > 0 ? ", " : "") + player.NameLast();
  const auto count = static_cast<std::size_t>(++results.golfers);
  if (count < results.names.size()) results.names[count] = player.NameLF();
  results.handicap = AddSingle(results.handicap, LeadingNumber(player.TourHandicapValue(round)));
  AddHoles(round, results);
  results.quota = AddSingle(results.quota, LeadingNumber(player.TourQuota(true, round)));
  for (int part = 1; part <= 3; ++part) {
    float& sum = results.quota_results[part];
    sum = AddSingle(sum, LeadingNumber(player.TourPointsQuotaResults(part, round)));
  }
  results.putts = AddWhole(results.putts, player.TourPutts(round));
  results.greens = AddWhole(results.greens, player.TourGreens(round));
  results.fairways = AddWhole(results.fairways, player.TourFairways(round));
  const std::int64_t earnings = player.StoredEntry().Get<"TourEarnings">(round);
  results.earnings = AddEarnings(results.earnings, earnings);
}

void TeamClass::AddHoles(int round, TeamRound& results) {
  PlayerClass& player = state().Player();
  const RoundResults& golfer = player.Results(round);
  TeamRound::Totals totals;
  for (int hole = 1; hole <= kWholeRound; ++hole) {
    const std::int32_t gross = player.TourScoreGrossValue(hole, round);
    const double net = LeadingNumber(player.TourScoreNet(hole, round));
    results.gross[hole] = AddWhole(results.gross[hole], gross);
    results.net[hole] = AddWhole(results.net[hole], net);
    results.gross_points[hole] = AddWhole(results.gross_points[hole], golfer.gross_points[hole]);
    results.net_points[hole] = AddWhole(results.net_points[hole], golfer.net_points[hole]);
    if (hole <= kHoles) continue;
    results.decimal_net[hole] = AddSingle(results.decimal_net[hole], net);
    totals.gross[hole] = gross;
    totals.net[hole] = net;
  }
  if (results.totals.size() < kMostGolfersWithBalls) results.totals.push_back(totals);
  for (int d = -kMostDifference; d <= kMostDifference; ++d) {
    results.gross_statistics[d] += golfer.gross_statistics[d][kWholeRound];
    results.net_statistics[d] += golfer.net_statistics[d][kWholeRound];
  }
}

// Calculates the net scores of a team that plays one ball. The handicap strokes come from the tee
// of the first golfer with a score and from the team handicap as it is shown. A plus handicap is
// shown without its minus sign, so it counts like an ordinary handicap of its size.
ByHole<std::int32_t> TeamClass::WorkOutScramble(int round) {
  const TeamRound& results = Results(round);
  PlayerClass& player = state().Player();
  player.GetRecord(results.first_scorer, true);
  const int tee = player.TourCourseTeePlayedNumber(round);
  const int holes = state().Tournament().RoundType();
  const auto& course = state().Course().Stored();
  std::array<int, kHoles> ranks{};
  std::array<int, kHoles> strokes{};
  for (int hole = 1; hole <= holes; ++hole) {
    ranks[static_cast<std::size_t>(hole) - 1] = course.Get<"HoleHandicap">(tee, hole);
  }
  AllocateHoleStrokes(strokes, ranks, holes, RoundToInt32(LeadingNumber(Handicap(round))));
  ByHole<std::int32_t> net;
  for (int hole = 1; hole <= holes; ++hole) {
    const std::int32_t gross = results.gross[hole];
    if (gross < 1) continue;
    net[hole] = AddWhole(gross, -strokes[static_cast<std::size_t>(hole) - 1]);
    for (const int sum : {NineOf(hole), kWholeRound}) net[sum] = AddWhole(net[sum], net[hole]);
  }
  return net;
}

TeamClass::Totals TeamClass::AccumulateTeamTotals() {
  Totals totals;
  const int last = RoundOr({});
  for (int round = 1; round <= last; ++round) {
    totals.gross = AddWhole(totals.gross, ScoreGross(kWholeRound, round));
    totals.net = AddSingle(totals.net, ScoreNet(kWholeRound, round));
    const double scramble = LeadingNumber(ScrambleNet(kWholeRound, round));
    totals.scramble_net = AddSingle(totals.scramble_net, scramble);
  }
  return totals;
}

}  // namespace golf
