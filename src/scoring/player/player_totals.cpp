// This file adds up the results of several rounds of a tournament.

#include <string>

#include "core/number_text.h"
#include "scoring/checked_sums.h"
#include "scoring/player/player_class.h"

namespace golf {

const PlayerClass::Totals& PlayerClass::AccumulateTotals(OptionalRound from, OptionalRound to) {
  totals_ = {};
  const int last = RoundOr(from ? to : OptionalRound());
  for (int round = from.value_or(1); round <= last; ++round) {
    const RoundResults& results = Results(round);
    totals_.gross += results.gross[kWholeRound];
    const double net = results.net[kWholeRound];
    totals_.net = AddSingle(totals_.net, UsesDecimals() ? results.decimal_net : net);
    totals_.putts += TourPutts(round);
    totals_.fairways += TourFairways(round);
    totals_.greens += TourGreens(round);
    totals_.gross_points += results.gross_points[kWholeRound];
    totals_.net_points += results.net_points[kWholeRound];
    totals_.quota_results = AddSingle(totals_.quota_results, results.quota_results[3]);
    totals_.earnings = AddEarnings(totals_.earnings, entry_.Get<"TourEarnings">(round));
  }
  return totals_;
}

std::string PlayerClass::TourTotalGross(OptionalRound from, OptionalRound to) {
  return std::to_string(AccumulateTotals(from, to).gross);
}
std::string PlayerClass::TourTotalNet(OptionalRound from, OptionalRound to) {
  return FormatNumber(AccumulateTotals(from, to).net, "0");
}
std::string PlayerClass::TourTotalGrossPoints(OptionalRound from, OptionalRound to) {
  return std::to_string(AccumulateTotals(from, to).gross_points);
}
std::string PlayerClass::TourTotalNetPoints(OptionalRound from, OptionalRound to) {
  return std::to_string(AccumulateTotals(from, to).net_points);
}
std::string PlayerClass::TourTotalQuotaResults(OptionalRound from, OptionalRound to) {
  return FormatSignedHandicap(AccumulateTotals(from, to).quota_results, UsesDecimals());
}
std::string PlayerClass::TourTotalPutts(OptionalRound from, OptionalRound to) {
  return std::to_string(AccumulateTotals(from, to).putts);
}
std::string PlayerClass::TourTotalFairways(OptionalRound from, OptionalRound to) {
  return std::to_string(AccumulateTotals(from, to).fairways);
}
std::string PlayerClass::TourTotalGreens(OptionalRound from, OptionalRound to) {
  return std::to_string(AccumulateTotals(from, to).greens);
}
std::string PlayerClass::TourTotalEarnings(OptionalRound from, OptionalRound to) {
  return FormatCurrency(AccumulateTotals(from, to).earnings);
}

}  // namespace golf
