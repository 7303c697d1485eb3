#include "scoring/tournament_class.h"

#include "core/number_text.h"
#include "scoring/player/player_class.h"

namespace golf {

void TournamentClass::CalculateTotals(const std::function<void(const NumberedError&)>& left_out) {
  played_.Fill(0);
  gross_ = {};
  net_ = {};
  PlayerClass& player = state().Player();
  const std::int32_t length = player.TourFileLength();
  for (std::int32_t record = 1; record <= length; ++record) {
    player.GetRecord(record, true);
    if (!player.TourPlayerExists()) continue;
    try {
      CountPlayer();
    } catch (const NumberedError& error) {
      if (!left_out) throw;
      left_out(error);
    }
  }
  gross_.Finish(played_);
  net_.Finish(played_);
}

void TournamentClass::CountPlayer() {
  PlayerClass& player = state().Player();
  const RoundResults& results = player.Results();
  for (int hole = 1; hole <= kHoles; ++hole) {
    const std::int32_t gross = player.TourScoreGrossValue(hole);
    if (gross <= 0) continue;
    const std::int32_t par = player.TourHolePar(hole);
    ++played_[hole];
    gross_.Add(hole, gross, par);
    net_.Add(hole, results.net[hole], par);
  }
}

TextOrNumber TournamentClass::OfHole(std::int32_t value, int row) {
  if (row > kHoles) return std::string();
  return value;
}

std::string TournamentClass::ScoreAverageGross(int row) const {
  return FormatNumber(gross_.Average(row), "0.00");
}
std::string TournamentClass::ScoreAverageNet(int row) const {
  return FormatNumber(net_.Average(row), "0.00");
}
std::int32_t TournamentClass::ScorePBEStatsGross(int difference, int row) const {
  return gross_.Count(difference, row);
}
std::int32_t TournamentClass::ScorePBEStatsNet(int difference, int row) const {
  return net_.Count(difference, row);
}

}  // namespace golf
