#pragma once

#include <cstdint>

#include "scoring/round_results.h"

namespace golf {

// Calculates statistics of the scores of many golfers by hole, gross or net, in strokes. The rows
// are those of a table by hole.
class ScoreStatistics {
 public:
  void Add(int hole, std::int32_t score, std::int32_t par);
  // Calculates the averages and the rows of the nines and the round. `played` contains the number
  // of players of each hole. The average of a nine or the round is the sum divided by the number of
  // players of the first hole.
  void Finish(const ByHole<std::int32_t>& played);

  // Returns the sum of the scores. Raises error 6 if the sum does not fit 32 bits.
  std::int32_t Total(int row) const;
  double Average(int row) const { return averages_[row]; }
  // Returns the average of score minus par of a hole, or 0 if the hole has no scores.
  double AverageAgainstPar(int hole) const { return averages_against_par_[hole]; }
  // Return the highest and the lowest score of a hole, or 0 if the hole has no scores. High also
  // returns 0 if the score is below -999, and Low if it is above 999. Both return 0 for the rows of
  // the nines and the round.
  std::int32_t High(int row) const { return highs_[row] < -kFarthest ? 0 : highs_[row]; }
  std::int32_t Low(int row) const { return lows_[row] > kFarthest ? 0 : lows_[row]; }
  std::int32_t Count(int difference, int row) const { return counts_[difference][row]; }

 private:
  static constexpr std::int32_t kFarthest = 999;

  static ByHole<std::int32_t> Filled(std::int32_t value);
  void AddRow(int row, int first, int last);

  ByHole<std::int64_t> totals_;
  ByHole<double> averages_;
  ByHole<std::int64_t> against_par_;
  ByHole<double> averages_against_par_;
  ByHole<std::int32_t> highs_ = Filled(-kFarthest - 1);
  ByHole<std::int32_t> lows_ = Filled(kFarthest + 1);
  ByDifference<ByHole<std::int32_t>> counts_;
};

}  // namespace golf
