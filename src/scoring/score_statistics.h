#pragma once

#include <cstdint>

#include "scoring/round_results.h"

namespace golf {

// The scores of many golfers by hole, gross or net. Rows are those of what stands by hole.
class ScoreStatistics {
 public:
  void Add(int hole, std::int32_t score, std::int32_t par);
  // Makes the averages, and the rows of the nines and the round; `played` counts the players of
  // each hole. The nines and the round are averaged over the players of their first hole.
  void Finish(const ByHole<std::int32_t>& played);

  // Error 6 where a sum leaves 32 bits.
  std::int32_t Total(int row) const;
  double Average(int row) const { return averages_[row]; }
  // Scores far off any that is played read as 0.
  std::int32_t High(int row) const { return highs_[row] < -kFarthest ? 0 : highs_[row]; }
  std::int32_t Low(int row) const { return lows_[row] > kFarthest ? 0 : lows_[row]; }
  std::int32_t Count(int difference, int row) const { return counts_[difference][row]; }

 private:
  static constexpr std::int32_t kFarthest = 999;

  static ByHole<std::int32_t> Filled(std::int32_t value);
  void AddRow(int row, int first, int last);

  ByHole<std::int64_t> totals_;
  ByHole<double> averages_;
  ByHole<std::int32_t> highs_ = Filled(-kFarthest - 1);
  ByHole<std::int32_t> lows_ = Filled(kFarthest + 1);
  ByDifference<ByHole<std::int32_t>> counts_;
};

}  // namespace golf
