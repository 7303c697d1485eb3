// This file makes the keys that break ties between golfers.

#include <vector>

#include "scoring/player/player_class.h"
#include "scoring/tiebreak_keys.h"
#include "stores/course/course_class.h"

namespace golf {

ScoreOfHole PlayerClass::GrossOfHole(int round) {
  return [this, round](int hole) { return TourScoreGrossValue(hole, round); };
}

// Returns the holes of the round in the order in which they get handicap strokes.
std::vector<int> PlayerClass::HolesByStrokes(int round) {
  const int tee = LoadTeePlayed(round).tee;
  std::vector<int> holes;
  for (int k = 1; k <= state().TournamentRecord().RoundType(); ++k) {
    holes.push_back(state().Course().StrkSqnc(tee, k));
  }
  return holes;
}

std::string PlayerClass::TourGrossTotalTiebreakUSGA(OptionalRound round) {
  const int of = RoundOr(round);
  const std::int32_t total = Results(of).gross[kWholeRound];
  return LastHolesKey(state().TournamentRecord().RoundType(), total, GrossOfHole(of));
}

std::string PlayerClass::TourNetTotalTiebreakUSGA(OptionalRound round) {
  const int of = RoundOr(round);
  const RoundResults& results = Results(of);
  return LastHolesKey(state().TournamentRecord().RoundType(), results.net[kWholeRound],
                      GrossOfHole(of), results.handicap);
}

std::string PlayerClass::GrossKey(OptionalRound round, const std::vector<int>& holes) {
  const int of = RoundOr(round);
  return HoleByHoleKey(Results(of).gross[kWholeRound], holes, GrossOfHole(of));
}

std::string PlayerClass::NetKey(OptionalRound round, const std::vector<int>& holes) {
  const auto& net = Results(round).net;
  return HoleByHoleKey(net[kWholeRound], holes, [&net](int hole) { return net[hole]; });
}

std::string PlayerClass::TourGrossTotalTiebreakHandicapHole(OptionalRound round) {
  return GrossKey(round, HolesByStrokes(RoundOr(round)));
}
std::string PlayerClass::TourNetTotalTiebreakHandicapHole(OptionalRound round) {
  return NetKey(round, HolesByStrokes(RoundOr(round)));
}
std::string PlayerClass::TourGrossTotalTiebreak1to18(OptionalRound round) {
  return GrossKey(round, HolesForward(state().TournamentRecord().RoundType()));
}
std::string PlayerClass::TourNetTotalTiebreak1to18(OptionalRound round) {
  return NetKey(round, HolesForward(state().TournamentRecord().RoundType()));
}
std::string PlayerClass::TourGrossTotalTiebreak18to1(OptionalRound round) {
  return GrossKey(round, HolesBackward(state().TournamentRecord().RoundType()));
}
std::string PlayerClass::TourNetTotalTiebreak18to1(OptionalRound round) {
  return NetKey(round, HolesBackward(state().TournamentRecord().RoundType()));
}

}  // namespace golf
