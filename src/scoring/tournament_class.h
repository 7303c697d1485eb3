#pragma once

#include <cstdint>
#include <string>

#include "scoring/score_statistics.h"
#include "stores/quenby/tournament_control.h"

namespace golf {

// The tournament with the statistics of its players in the active round. It is the second storey of
// a tournament. A row is a hole 1 to 18, or 19 for the first nine, 20 for the second nine and 21
// for the round. Any other row raises error 9. The last CalculateTotals determined all figures.
// Scores are in strokes.
class TournamentClass : public TournamentControl {
 public:
  using TournamentControl::TournamentControl;

  // Reads every live entry of the open player file. The player buffers hold the last record.
  void CalculateTotals();

  std::int32_t ScoreTotalGross(int row) const { return gross_.Total(row); }
  std::int32_t ScoreTotalNet(int row) const { return net_.Total(row); }
  // Return an average in the format "0.00".
  std::string ScoreAverageGross(int row) const;
  std::string ScoreAverageNet(int row) const;
  // Return a score of a hole, 0 if no golfer has played it, or an empty text for the other rows.
  TextOrNumber ScoreHighGross(int row) const { return OfHole(gross_.High(row), row); }
  TextOrNumber ScoreHighNet(int row) const { return OfHole(net_.High(row), row); }
  TextOrNumber ScoreLowGross(int row) const { return OfHole(gross_.Low(row), row); }
  TextOrNumber ScoreLowNet(int row) const { return OfHole(net_.Low(row), row); }
  // Return how many scores were `difference` from par, -5 to 5.
  std::int32_t ScorePBEStatsGross(int difference, int row) const;
  std::int32_t ScorePBEStatsNet(int difference, int row) const;
  // Returns the number of players of a hole, or an empty text for the other rows.
  TextOrNumber ScorePlayersThatPlayed(int row) const { return OfHole(played_[row], row); }

 private:
  static TextOrNumber OfHole(std::int32_t value, int row);
  void CountPlayer();

  ByHole<std::int32_t> played_;
  ScoreStatistics gross_;
  ScoreStatistics net_;
};

}  // namespace golf
