#pragma once

#include <cstdint>

#include "scoring/round_results.h"

namespace golf {

// The scores of many golfers by hole, gross or net, in strokes. Rows are those of a table by hole.
class ScoreStatistics {
 public:
  void Add(int hole, std::int32_t score, std::int32_t par);
  // Calculates the averages and the rows of the nines and the round. `played` holds the number of
  // players of each hole. The averages of the nines and the round divide by the players of their
  // first hole.
  void Finish(const ByHole<std::int32_t>& played);

  // Error 6 if a sum does not fit 32 bits.
  std::int32_t Total(int row) const;
  double Average(int row) const { return averages_[row]; }
  // Return the highest and the lowest score of a hole, or 0 if it has none. A highest score below
  // -999 and a lowest score above 999 also return 0. The rows of the nines and the round return 0.
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
