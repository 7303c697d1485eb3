#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/numbered_error.h"
#include "scoring/score_statistics.h"
#include "stores/quenby/tournament_control.h"

namespace golf {

// Adds the statistics of the players in the active round to the tournament. A row is a hole 1 to
// 18, or 19 for the first nine, 20 for the second nine and 21 for the round. Any other row raises
// error 9. All functions return the results of the last CalculateTotals. Scores are in strokes.
class TournamentClass : public TournamentControl {
 public:
  using TournamentControl::TournamentControl;

  // Calculates the statistics from every entry with a golfer in the open player file. Afterwards
  // the player buffers contain the last record. Raises the errors of PlayerClass. If `left_out` is
  // given, leaves out a player whose calculation raises an error, and calls `left_out` instead.
  void CalculateTotals(const std::function<void(const NumberedError&)>& left_out = {});

  std::int32_t ScoreTotalGross(int row) const { return gross_.Total(row); }
  std::int32_t ScoreTotalNet(int row) const { return net_.Total(row); }
  // Return an average in the format "0.00".
  std::string ScoreAverageGross(int row) const;
  std::string ScoreAverageNet(int row) const;
  // Returns the average of gross score minus par of a hole, or 0 if no golfer has played it.
  double AverageAgainstPar(int hole) const { return gross_.AverageAgainstPar(hole); }
  // Return a score of a hole, or 0 if no golfer has played it. Return an empty text for rows 19 to
  // 21.
  TextOrNumber ScoreHighGross(int row) const { return OfHole(gross_.High(row), row); }
  TextOrNumber ScoreHighNet(int row) const { return OfHole(net_.High(row), row); }
  TextOrNumber ScoreLowGross(int row) const { return OfHole(gross_.Low(row), row); }
  TextOrNumber ScoreLowNet(int row) const { return OfHole(net_.Low(row), row); }
  // Return the number of scores that differ from par by `difference`, -5 to 5.
  std::int32_t ScorePBEStatsGross(int difference, int row) const;
  std::int32_t ScorePBEStatsNet(int difference, int row) const;
  // Returns the number of players of a hole. Returns an empty text for rows 19 to 21.
  TextOrNumber ScorePlayersThatPlayed(int row) const { return OfHole(played_[row], row); }

 private:
  static TextOrNumber OfHole(std::int32_t value, int row);
  void CountPlayer();

  ByHole<std::int32_t> played_;
  ScoreStatistics gross_;
  ScoreStatistics net_;
};

}  // namespace golf
