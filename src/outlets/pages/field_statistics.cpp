#include "outlets/pages/field_statistics.h"

#include <algorithm>
#include <cstdlib>

namespace golf {
namespace {

std::string DifferenceHeading(int difference) {
  if (difference == 0) return "Par";
  const int size = std::abs(difference);
  return std::to_string(size) + (size == kMostDifference ? " or more" : "") +
         (difference < 0 ? " under" : " over");
}

std::string RowHeading(int row) {
  switch (row) {
    case kFirstNine:
      return "Out";
    case kSecondNine:
      return "In";
    case kWholeRound:
      return "Total";
    default:
      return std::to_string(row);
  }
}

// Returns the differences from par that occur in a row, and all differences between them and par.
std::vector<int> ShownDifferences(const TournamentClass& tournament, int row) {
  int least = 0;
  int most = 0;
  for (int d = -kMostDifference; d <= kMostDifference; ++d) {
    if (tournament.ScorePBEStatsGross(d, row) == 0) continue;
    least = std::min(least, d);
    most = std::max(most, d);
  }
  std::vector<int> shown;
  for (int d = least; d <= most; ++d) shown.push_back(d);
  return shown;
}

bool HasScores(const TournamentClass& tournament, int row) {
  const auto [first, last] = HolesOf(row);
  for (int hole = first; hole <= last; ++hole) {
    if (TextOf(tournament.ScorePlayersThatPlayed(hole)) != "0") return true;
  }
  return false;
}

}  // namespace

FieldStatistics ReadFieldStatistics(TournamentClass& tournament) {
  // The reader of the standings has already reported the other errors.
  tournament.CalculateTotals([](const NumberedError& error) {
    if (error.IsOfFile()) throw;
  });
  const int holes = tournament.RoundType();
  FieldStatistics statistics;
  statistics.headings = {"Hole",         "Players",       "Average gross", "Average net",
                         "Lowest gross", "Highest gross", "Lowest net",    "Highest net"};
  const std::vector<int> differences =
      ShownDifferences(tournament, holes == kHoles ? kWholeRound : kFirstNine);
  for (const int d : differences) statistics.headings.push_back(DifferenceHeading(d));
  for (int row = 1; row <= kWholeRound; ++row) {
    const bool is_shown = row <= holes || (holes == kHoles ? row > kHoles : row == kFirstNine);
    if (!is_shown || !HasScores(tournament, row)) continue;
    if (row <= kHoles) statistics.holes.push_back({row, tournament.AverageAgainstPar(row)});
    auto& cells = statistics.rows.emplace_back();
    cells = {holes < kHoles && row > kHoles ? "Total" : RowHeading(row),
             TextOf(tournament.ScorePlayersThatPlayed(row)),
             tournament.ScoreAverageGross(row),
             tournament.ScoreAverageNet(row),
             TextOf(tournament.ScoreLowGross(row)),
             TextOf(tournament.ScoreHighGross(row)),
             TextOf(tournament.ScoreLowNet(row)),
             TextOf(tournament.ScoreHighNet(row))};
    for (const int d : differences) {
      cells.push_back(std::to_string(tournament.ScorePBEStatsGross(d, row)));
    }
  }
  return statistics;
}

}  // namespace golf
