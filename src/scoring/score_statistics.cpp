#include "scoring/score_statistics.h"

#include "core/number_text.h"

namespace golf {

ByHole<std::int32_t> ScoreStatistics::Filled(std::int32_t value) {
  ByHole<std::int32_t> rows;
  rows.Fill(value);
  return rows;
}

void ScoreStatistics::Add(int hole, std::int32_t score, std::int32_t par) {
  totals_[hole] += score;
  against_par_[hole] += std::int64_t{score} - par;
  highs_[hole] = std::max(highs_[hole], score);
  lows_[hole] = std::min(lows_[hole], score);
  ++counts_[LimitedDifference(score, par)][hole];
}

void ScoreStatistics::Finish(const ByHole<std::int32_t>& played) {
  const auto average = [&](int row, std::int32_t players) {
    if (players > 0) averages_[row] = static_cast<double>(totals_[row]) / players;
  };
  for (int hole = 1; hole < kFirstNine; ++hole) {
    average(hole, played[hole]);
    if (played[hole] > 0) {
      averages_against_par_[hole] = static_cast<double>(against_par_[hole]) / played[hole];
    }
  }
  for (int row = kFirstNine; row <= kWholeRound; ++row) {
    const auto [first, last] = HolesOf(row);
    AddRow(row, first, last);
    average(row, played[first]);
  }
}

void ScoreStatistics::AddRow(int row, int first, int last) {
  for (int hole = first; hole <= last; ++hole) {
    totals_[row] += totals_[hole];
    for (int d = -kMostDifference; d <= kMostDifference; ++d) {
      counts_[d][row] += counts_[d][hole];
    }
  }
}

std::int32_t ScoreStatistics::Total(int row) const {
  return RoundToInt32(static_cast<double>(totals_[row]));
}

}  // namespace golf
