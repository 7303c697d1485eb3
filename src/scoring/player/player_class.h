#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "scoring/hole_scoring.h"
#include "scoring/round_results.h"
#include "scoring/tiebreak_keys.h"
#include "stores/quenby/tournament_players.h"

namespace golf {

// Calculates a golfer's results from the golfer's entry, the course played and the tournament's
// options. A round is calculated when a function first needs it, and again after the next read or
// save of a record. A setter alone does not cause a new calculation.
//
// A round is 1 to 7. An omitted round is the active round. A hole is 1 to 18, or 19 for the first
// nine, 20 for the second nine and 21 for the round. The functions raise error 9 for an index out
// of its range and for a round without a tee (tee 0). They raise error 6 for a value too large for
// its type, and for NaN if a number is required. After an error the next call calculates the round
// again. Functions on files raise the errors of FileTable.
//
// Most functions make the course of the round current in the shared course object, which must have
// Quenby's library open. Handicaps and indexes are in strokes. A negative one is a plus handicap or
// index. Scores and ratings are in strokes. Slopes are 55 to 155.
class PlayerClass : public TournamentPlayers {
 public:
  using TournamentPlayers::TournamentPlayers;

  void CalculateSetToRecalculate() { recalculate_.fill(true); }
  // Returns all calculated results of a round as numbers.
  const RoundResults& Results(OptionalRound round = {});

  // Return handicaps as text. The functions whose names end in Value show a plus handicap with a
  // minus sign. The others show it with a plus sign.
  std::string TourHandicap(OptionalRound round = {});
  std::string TourHandicapValue(OptionalRound round = {});
  std::string TourHandicapWholeNumber(OptionalRound round = {});
  std::string TourGrossHandicap(bool decimals, OptionalRound round = {});
  std::string TourGrossHandicapValue(bool decimals, OptionalRound round = {});
  // Returns the quota in points. A quota that is based on the handicap uses the handicap of the
  // active round for every round.
  std::string TourQuota(bool decimals, OptionalRound round = {});

  // Return the handicap strokes and the par of a hole 1 to 18 in the round that was calculated
  // last. That round is not always `round`.
  std::int32_t TourHoleStrokes(int hole, OptionalRound round = {});
  std::int32_t TourHolePar(int hole, OptionalRound round = {});

  // Returns "F" for a hole score of 99 or more. Returns the number 0 for a hole if the tournament
  // has total scores only.
  TextOrNumber TourScoreGross(int hole, OptionalRound round = {});
  std::int32_t TourScoreGrossValue(int hole, OptionalRound round = {});
  std::string TourScoreNet(int hole, OptionalRound round = {});
  std::string TourScoreAdjusted(OptionalRound round = {});
  // Runs stroke control on the round, and returns the capped score of a hole. Only the whole part
  // of `hole` counts.
  std::int32_t TourHoleAdjusted(double hole, OptionalRound round = {});
  // Return the number of holes at which score minus par is `difference`, -5 to 5.
  std::string TourPBEStatsGross(int difference, int hole, OptionalRound round = {});
  std::string TourPBEStatsNet(int difference, int hole, OptionalRound round = {});
  std::string TourPointsGross(int hole, OptionalRound round = {});
  std::string TourPointsNet(int hole, OptionalRound round = {});
  // Returns the points above the quota. `part` is 1 for the first nine, 2 for the second nine and 3
  // for the round.
  std::string TourPointsQuotaResults(int part, OptionalRound round = {});

  // Return sums over the rounds `from` to `to`. They are rounds 1 to the active one if `from` is
  // omitted. The last one is the active round if `to` is omitted.
  std::string TourTotalGross(OptionalRound from = {}, OptionalRound to = {});
  std::string TourTotalNet(OptionalRound from = {}, OptionalRound to = {});
  std::string TourTotalGrossPoints(OptionalRound from = {}, OptionalRound to = {});
  std::string TourTotalNetPoints(OptionalRound from = {}, OptionalRound to = {});
  std::string TourTotalQuotaResults(OptionalRound from = {}, OptionalRound to = {});
  std::string TourTotalPutts(OptionalRound from = {}, OptionalRound to = {});
  std::string TourTotalFairways(OptionalRound from = {}, OptionalRound to = {});
  std::string TourTotalGreens(OptionalRound from = {}, OptionalRound to = {});
  std::string TourTotalEarnings(OptionalRound from = {}, OptionalRound to = {});

  std::int16_t TourCoursePlayedNumber(OptionalRound round = {});
  std::string TourCoursePlayedName(OptionalRound round = {});
  std::int16_t TourCourseTeePlayedNumber(OptionalRound round = {});
  std::string TourCourseTeePlayedAbrv(OptionalRound round = {});
  std::string TourCourseTeePlayedName(OptionalRound round = {});
  std::string TourCourseTeePlayedRating(OptionalRound round = {});
  std::string TourCourseTeePlayedSlope(OptionalRound round = {});
  // Return the tee time and the start hole of the golfer's team, or "None" if there is no team.
  // They read the team into the first team object.
  std::string TourTeeTime(OptionalRound round = {});
  std::string TourTeeStartHole(OptionalRound round = {});

  // Return keys that break ties when they are sorted as texts. See tiebreak_keys.h.
  std::string TourGrossTotalTiebreakUSGA(OptionalRound round = {});
  std::string TourNetTotalTiebreakUSGA(OptionalRound round = {});
  std::string TourGrossTotalTiebreakHandicapHole(OptionalRound round = {});
  std::string TourNetTotalTiebreakHandicapHole(OptionalRound round = {});
  std::string TourGrossTotalTiebreak1to18(OptionalRound round = {});
  std::string TourNetTotalTiebreak1to18(OptionalRound round = {});
  std::string TourGrossTotalTiebreak18to1(OptionalRound round = {});
  std::string TourNetTotalTiebreak18to1(OptionalRound round = {});

 private:
  // Identifies the tee that a golfer plays in a round.
  struct PlayedTee {
    int group;      // 0: men, 1: ladies
    int tee_group;  // 1 to 5
    int tee;        // the tee number of the course
  };

  // Contains the sums over several rounds.
  struct Totals {
    std::int32_t gross = 0;
    float net = 0;
    std::int32_t gross_points = 0;
    std::int32_t net_points = 0;
    float quota_results = 0;
    std::int32_t putts = 0;
    std::int32_t fairways = 0;
    std::int32_t greens = 0;
    std::int64_t earnings = 0;  // the amount times 10000
  };

  // These functions are defined in player_course.cpp.
  bool LoadCoursePlayed(int round);
  bool LoadTeamForRound(int round);
  PlayedTee TeePlayed(int round);
  PlayedTee LoadTeePlayed(OptionalRound round);

  // These functions are defined in player_round.cpp.
  void CalculateRound(int round);
  void WorkOutRound(int round, RoundResults& results);
  float CourseHandicap(int round, const PlayedTee& played);
  float RoundHandicap(int round, const PlayedTee& played, float gross_handicap);
  void TakeTotals(int round, int tee, RoundResults& results);
  void TakeNetTotal(int round, RoundResults& results);
  void ScoreHoles(int round, int tee, RoundResults& results);
  void AllocateStrokes(int round, int tee, int holes);
  void TakeQuotaResults(int round, RoundResults& results);
  void RunStrokeControl(int round, int tee);
  double HandicapNumber(OptionalRound round);

  // This function is defined in player_totals.cpp.
  const Totals& AccumulateTotals(OptionalRound from, OptionalRound to);

  // These functions are defined in player_tiebreaks.cpp.
  ScoreOfHole GrossOfHole(int round);
  std::vector<int> HolesByStrokes(int round);
  std::string GrossKey(OptionalRound round, const std::vector<int>& holes);
  std::string NetKey(OptionalRound round, const std::vector<int>& holes);

  bool UsesDecimals() const;

  Indexed<RoundResults, 1, kRounds> results_;
  // These tables belong to the round that was calculated last.
  Indexed<int, 1, kHoles> hole_strokes_;
  Indexed<int, 1, kHoles> hole_pars_;
  Totals totals_;
};

}  // namespace golf
