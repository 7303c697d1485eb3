#pragma once

#include <cstdint>
#include <string>

#include "scoring/score_statistics.h"
#include "stores/quenby/tournament_control.h"

namespace golf {

// The tournament with the statistics of its players in the active round: its second storey. A row
// is a hole of 1 to 18, or 19 for the first nine, 20 for the second nine and 21 for the round;
// error 9 for any other. All figures are as old as the last CalculateTotals.
class TournamentClass : public TournamentControl {
 public:
  using TournamentControl::TournamentControl;

  // Reads every live entry of the open player file; the player's buffers hold the last one.
  void CalculateTotals();

  std::int32_t ScoreTotalGross(int row) const { return gross_.Total(row); }
  std::int32_t ScoreTotalNet(int row) const { return net_.Total(row); }
  // In the format "0.00".
  std::string ScoreAverageGross(int row) const;
  std::string ScoreAverageNet(int row) const;
  // Of holes, an empty text for the other rows; 0 where nobody has played.
  TextOrNumber ScoreHighGross(int row) const { return OfHole(gross_.High(row), row); }
  TextOrNumber ScoreHighNet(int row) const { return OfHole(net_.High(row), row); }
  TextOrNumber ScoreLowGross(int row) const { return OfHole(gross_.Low(row), row); }
  TextOrNumber ScoreLowNet(int row) const { return OfHole(net_.Low(row), row); }
  // How many scores were `difference` from par, -5 to 5.
  std::int32_t ScorePBEStatsGross(int difference, int row) const;
  std::int32_t ScorePBEStatsNet(int difference, int row) const;
  // Of holes, an empty text for the other rows.
  TextOrNumber ScorePlayersThatPlayed(int row) const { return OfHole(played_[row], row); }

 private:
  static TextOrNumber OfHole(std::int32_t value, int row);
  void CountPlayer();

  ByHole<std::int32_t> played_;
  ScoreStatistics gross_;
  ScoreStatistics net_;
};

}  // namespace golf
