// This file makes the keys that break ties between teams.

#include "core/number_text.h"
#include "scoring/team/team_class.h"
#include "scoring/tiebreak_keys.h"
#include "scoring/tournament_class.h"
#include "stores/course/course_class.h"

namespace golf {

// Returns all 18 holes, also for a round of nine holes.
std::vector<int> TeamClass::HolesByStrokes(OptionalRound round) {
  TournamentClass& tournament = state().Tournament();
  const int group = tournament.TeeCount(0) < 1 ? 1 : 0;
  const int tee = tournament.TeeNumberPlayed(group, 1, round);
  CourseClass& course = state().Course();
  course.GetRecord(tournament.CourseNumberPlayed(round));
  std::vector<int> holes;
  for (int k = 1; k <= kHoles; ++k) holes.push_back(course.StrkSqnc(tee, k));
  return holes;
}

std::string TeamClass::GrossTotalTiebreakUSGA(OptionalRound round) {
  const auto& gross = Results(round).gross;
  return LastHolesKey(state().Tournament().RoundType(), gross[kWholeRound],
                      [&](int hole) { return gross[hole]; });
}

std::string TeamClass::NetTotalTiebreakUSGA(OptionalRound round) {
  const auto& net = Results(round).net;
  return LastHolesKey(state().Tournament().RoundType(), net[kWholeRound],
                      [&](int hole) { return net[hole]; });
}

std::string TeamClass::GrossKey(OptionalRound round, const std::vector<int>& holes) {
  const auto& gross = Results(round).gross;
  return HoleByHoleKey(gross[kWholeRound], holes, [&](int hole) { return gross[hole]; });
}

std::string TeamClass::NetKey(OptionalRound round, const std::vector<int>& holes) {
  const auto& net = Results(round).net;
  return HoleByHoleKey(net[kWholeRound], holes, [&](int hole) { return net[hole]; });
}

std::string TeamClass::GrossTotalTiebreakHandicapHole(OptionalRound round) {
  return GrossKey(round, HolesByStrokes(round));
}
std::string TeamClass::NetTotalTiebreakHandicapHole(OptionalRound round) {
  return NetKey(round, HolesByStrokes(round));
}
std::string TeamClass::GrossTotalTiebreak1to18(OptionalRound round) {
  return GrossKey(round, HolesForward(state().Tournament().RoundType()));
}
std::string TeamClass::NetTotalTiebreak1to18(OptionalRound round) {
  return NetKey(round, HolesForward(state().Tournament().RoundType()));
}
std::string TeamClass::GrossTotalTiebreak18to1(OptionalRound round) {
  return GrossKey(round, HolesBackward(state().Tournament().RoundType()));
}
std::string TeamClass::NetTotalTiebreak18to1(OptionalRound round) {
  return NetKey(round, HolesBackward(state().Tournament().RoundType()));
}

// Returns the net score for a key, or 0 if the team has no score.
std::int32_t TeamClass::ScrambleNumber(int hole, int round) {
  return RoundToInt32(LeadingNumber(ScrambleNet(hole, round)));
}

std::string TeamClass::ScrambleKey(OptionalRound round, const std::vector<int>& holes) {
  const int of = RoundOr(round);
  return HoleByHoleKey(ScrambleNumber(kWholeRound, of), holes,
                       [&](int hole) { return ScrambleNumber(hole, of); });
}

std::string TeamClass::NetScrambleTiebreakUSGA(OptionalRound round) {
  const int of = RoundOr(round);
  const std::int32_t total = ScrambleNumber(kWholeRound, of);
  const TeamRound& results = Results(of);
  return LastHolesKey(
      state().Tournament().RoundType(), total, [&](int hole) { return results.gross[hole]; },
      results.handicap);
}
std::string TeamClass::NetScrambleTiebreakHandicapHole(OptionalRound round) {
  return ScrambleKey(round, HolesByStrokes(round));
}
std::string TeamClass::NetScrambleTiebreak1to18(OptionalRound round) {
  return ScrambleKey(round, HolesForward(state().Tournament().RoundType()));
}
std::string TeamClass::NetScrambleTiebreak18to1(OptionalRound round) {
  return ScrambleKey(round, HolesBackward(state().Tournament().RoundType()));
}

}  // namespace golf
