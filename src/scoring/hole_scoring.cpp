#include "scoring/hole_scoring.h"

namespace golf {
namespace {

void AddToRound(ByHole<std::int32_t>& by_hole, int hole, std::int32_t value) {
  by_hole[hole] = value;
  by_hole[NineOf(hole)] += value;
  by_hole[kWholeRound] += value;
}

}  // namespace

void CountHole(const PlayedHole& played, const PointTable& points, RoundResults& results) {
  const std::int32_t net = played.score - played.strokes;
  const int gross_difference = LimitedDifference(played.score, played.par);
  const int net_difference = LimitedDifference(net, played.par);
  AddToRound(results.net, played.hole, net);
  AddToRound(results.gross_points, played.hole, points[gross_difference]);
  AddToRound(results.net_points, played.hole, points[net_difference]);
  // The statistics have no sums for the nines.
  results.gross_statistics[gross_difference][played.hole] = 1;
  ++results.gross_statistics[gross_difference][kWholeRound];
  results.net_statistics[net_difference][played.hole] = 1;
  ++results.net_statistics[net_difference][kWholeRound];
}

}  // namespace golf
