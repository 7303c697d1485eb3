// This file finds the best balls of a team.

#include <algorithm>
#include <string>
#include <vector>

#include "core/number_text.h"
#include "scoring/checked_sums.h"
#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"

namespace golf {
namespace {

constexpr double kNoBall = 1000;            // a ball this high does not count
constexpr std::int32_t kNoPair = 1001;      // a ball of a pair this high counts as 0
constexpr std::int32_t kNoPartner = 10000;  // a ball this high cannot be one of a pair

// Returns the sum of the `balls` lowest values, but of at least one value. Returns the sum of all
// values if there are fewer. Each value belongs to a different golfer, so equal values make no
// difference.
double SumOfLowest(std::vector<double> values, int balls) {
  const auto count = std::min(values.size(), static_cast<std::size_t>(std::max(balls, 1)));
  const auto end = values.begin() + static_cast<std::ptrdiff_t>(count);
  std::partial_sort(values.begin(), end, values.end());
  double sum = 0;
  for (auto value = values.begin(); value != end; ++value) sum += *value;
  return sum;
}

// Returns the sum of `of_hole` over the holes that `hole` covers.
template <class OfHole>
std::string SumOverHoles(int hole, OfHole of_hole) {
  const auto [first, last] = HolesOf(hole);
  std::int32_t sum = 0;
  for (int each = first; each <= last; ++each) sum = AddWhole(sum, of_hole(each));
  return std::to_string(sum);
}

// Returns the golfer with the lowest score on a hole, or 0 if there is none. Ignores the golfer
// `without` and the golfers who did not play the hole. Returns the first of several golfers with
// equal scores.
int LowestGolfer(const HoleTables& tables, const HoleTables::ByGolfer<std::int32_t>& scores,
                 int hole, int without) {
  int lowest = 0;
  for (int golfer = 1; golfer <= tables.golfers; ++golfer) {
    if (golfer == without || tables.gross[golfer][hole] <= 0) continue;
    if (scores[golfer][hole] >= kNoPartner) continue;
    if (lowest == 0 || scores[golfer][hole] < scores[lowest][hole]) lowest = golfer;
  }
  return lowest;
}

// Returns the lowest of the first scores plus the lowest of the second scores of another golfer.
std::int32_t LowestPair(const HoleTables& tables, const HoleTables::ByGolfer<std::int32_t>& first,
                        const HoleTables::ByGolfer<std::int32_t>& second, int hole) {
  const int one = LowestGolfer(tables, first, hole, 0);
  const int other = LowestGolfer(tables, second, hole, one);
  const auto counted = [hole](const HoleTables::ByGolfer<std::int32_t>& scores, int golfer) {
    return golfer == 0 || scores[golfer][hole] >= kNoPair ? 0 : scores[golfer][hole];
  };
  return counted(first, one) + counted(second, other);
}

}  // namespace

const HoleTables& TeamClass::LoadTeamHoleTables(int round) {
  HoleTables& tables = tables_[round];
  bool& stale = recalculate_holes_[static_cast<std::size_t>(round) - 1];
  if (!stale) return tables;
  tables = {};
  PlayerClass& player = state().Player();
  bool on_team = true;
  ForEachGolfer(RoundOr({}), [&](std::int32_t) {
    const int golfer = ++tables.golfers;
    on_team = on_team && player.TourTeamOn(round) == TeamNumber();
    const RoundResults& results = player.Results(round);
    for (int hole = 1; hole <= kHoles; ++hole) {
      const std::int32_t gross = player.TourScoreGrossValue(hole, round);
      tables.golfer_gross[golfer][hole] = gross;
      if (!on_team) continue;
      tables.gross[golfer][hole] = gross;
      tables.net[golfer][hole] = gross > 0 ? results.net[hole] : 0;
      tables.gross_points[golfer][hole] = results.gross_points[hole];
      tables.net_points[golfer][hole] = results.net_points[hole];
    }
    return golfer < kMostGolfersWithBalls;
  });
  stale = false;
  return tables;
}

void TeamClass::PopulateTeamGrid(TeamBalls& balls, int rounds) {
  PlayerClass& player = state().Player();
  for (int round = 1; round <= std::min(rounds, kBlocks); ++round) {
    int golfer = 0;
    ForEachGolfer(round, [&](std::int32_t) {
      ++golfer;
      balls.Golfer(round, golfer) = player.NameLF();
      for (int hole = 1; hole <= kHoles; ++hole) {
        const std::int32_t gross = player.TourScoreGrossValue(hole, round);
        if (gross < 1) continue;  // not played
        const RoundResults& results = player.Results(round);
        const int column = HoleColumn((round - 1) * kHoles + hole);
        const auto put = [&](BallTable table, std::int32_t value) {
          balls.At(table, golfer, column).value = value;
        };
        put(BallTable::kGross, gross);
        put(BallTable::kNet, results.net[hole]);
        put(BallTable::kGrossPoints, results.gross_points[hole]);
        put(BallTable::kNetPoints, results.net_points[hole]);
      }
      return golfer < kMostGolfersWithBalls;
    });
  }
}

std::int32_t TeamClass::LowestBallOnHole(bool gross, int balls, int hole, int round) {
  const HoleTables& tables = LoadTeamHoleTables(round);
  std::vector<double> values;
  for (int golfer = 1; golfer <= tables.golfers; ++golfer) {
    const auto& played = gross ? tables.golfer_gross : tables.gross;
    const double value = gross ? played[golfer][hole] : tables.net[golfer][hole];
    if (played[golfer][hole] > 0 && value < kNoBall) values.push_back(value);
  }
  return RoundToInt32(SumOfLowest(std::move(values), balls));
}

std::int32_t TeamClass::HighestBallOnHole(bool gross, int balls, int hole, int round) {
  const HoleTables& tables = LoadTeamHoleTables(round);
  const auto& points = gross ? tables.gross_points : tables.net_points;
  std::vector<double> values;  // the negative points, so that the lowest are the best
  for (int golfer = 1; golfer <= tables.golfers; ++golfer) {
    const double value = -1.0 * points[golfer][hole];
    if (tables.gross[golfer][hole] > 0 && value < kNoBall) values.push_back(value);
  }
  return RoundToInt32(-SumOfLowest(std::move(values), balls));
}

// Both orders are tried. They differ if one golfer has the lowest gross and the lowest net score.
std::int32_t TeamClass::LowestGrossNetPairOnHole(int hole, int round) {
  const HoleTables& tables = LoadTeamHoleTables(round);
  return std::min(LowestPair(tables, tables.gross, tables.net, hole),
                  LowestPair(tables, tables.net, tables.gross, hole));
}

std::string TeamClass::LowestTotals(bool gross, int x, int hole, OptionalRound round) {
  if (hole < kFirstNine || hole > kWholeRound) return "0";
  std::vector<double> values;
  for (const TeamRound::Totals& golfer : Results(round).totals) {
    const double value = gross ? golfer.gross[hole] : golfer.net[hole];
    if (golfer.gross[hole] > 0 && value < kNoBall) values.push_back(value);
  }
  return FormatNumber(SumOfLowest(std::move(values), x), "0");
}

std::string TeamClass::BestBallGross(int balls, int hole, OptionalRound round) {
  const int of = RoundOr(round);
  return SumOverHoles(hole, [&](int each) { return LowestBallOnHole(true, balls, each, of); });
}
std::string TeamClass::BestBallNet(int balls, int hole, OptionalRound round) {
  const int of = RoundOr(round);
  return SumOverHoles(hole, [&](int each) { return LowestBallOnHole(false, balls, each, of); });
}
std::string TeamClass::BestBallPointsGross(int balls, int hole, OptionalRound round) {
  const int of = RoundOr(round);
  return SumOverHoles(hole, [&](int each) { return HighestBallOnHole(true, balls, each, of); });
}
std::string TeamClass::BestBallPointsNet(int balls, int hole, OptionalRound round) {
  const int of = RoundOr(round);
  return SumOverHoles(hole, [&](int each) { return HighestBallOnHole(false, balls, each, of); });
}
std::string TeamClass::BestBallGrossNet(int hole, OptionalRound round) {
  const int of = RoundOr(round);
  return SumOverHoles(hole, [&](int each) { return LowestGrossNetPairOnHole(each, of); });
}
std::string TeamClass::BestTotalXofYGross(int x, int hole, OptionalRound round) {
  return LowestTotals(true, x, hole, round);
}
std::string TeamClass::BestTotalXofYNet(int x, int hole, OptionalRound round) {
  return LowestTotals(false, x, hole, round);
}

}  // namespace golf
