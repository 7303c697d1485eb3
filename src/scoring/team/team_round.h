#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "scoring/round_results.h"

namespace golf {

// This is the number of golfers of a team whose balls can count.
inline constexpr int kMostGolfersWithBalls = 10;

// A team has these names: all last names in one text, then the names of the first eight golfers.
inline constexpr int kTeamNames = 9;

// Contains the calculated results of one team's round, in strokes and points. The float type is
// required, as in RoundResults.
struct TeamRound {
  // Contains the sums of one of the first ten golfers for the two nines and the round, by entry 19
  // to 21. The net sum is 0 if the golfer has played no hole.
  struct Totals {
    Indexed<std::int32_t, kFirstNine, kWholeRound> gross;
    Indexed<double, kFirstNine, kWholeRound> net;
  };

  float handicap = 0;
  float quota = 0;
  Indexed<float, 1, kRoundParts> quota_results;
  ByHole<std::int32_t> gross;
  ByHole<std::int32_t> net;
  Indexed<float, kFirstNine, kWholeRound> decimal_net;
  ByDifference<std::int32_t> gross_statistics;
  ByDifference<std::int32_t> net_statistics;
  ByHole<std::int32_t> gross_points;
  ByHole<std::int32_t> net_points;
  std::int32_t golfers = 0;
  std::int32_t first_scorer = 0;  // the record of the first golfer with a score; 0: none
  std::int32_t putts = 0;
  std::int32_t greens = 0;
  std::int32_t fairways = 0;
  std::int64_t earnings = 0;  // the amount times 10000
  std::array<std::string, kTeamNames> names;
  std::vector<Totals> totals;
  std::optional<ByHole<std::int32_t>> scramble_net;  // calculated when it is first needed
};

// Contains the balls of a team's first ten golfers, by golfer and hole. `golfer_gross` contains the
// gross scores of every golfer. The other tables are filled only up to the first golfer who was on
// another team in that round.
struct HoleTables {
  template <class T>
  using ByGolfer = Indexed<Indexed<T, 1, 18>, 1, kMostGolfersWithBalls>;

  int golfers = 0;
  ByGolfer<std::int32_t> golfer_gross;
  ByGolfer<std::int32_t> gross;
  ByGolfer<std::int32_t> net;
  ByGolfer<std::int32_t> gross_points;
  ByGolfer<std::int32_t> net_points;
};

}  // namespace golf
