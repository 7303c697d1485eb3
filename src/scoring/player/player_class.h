#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "scoring/hole_scoring.h"
#include "scoring/round_results.h"
#include "scoring/tiebreak_keys.h"
#include "stores/quenby/tournament_players.h"

namespace golf {

// What a golfer's entry is worth by the course played and the tournament's options: the third
// storey of a player. A round is worked out when the first member asks for it, and again after the
// next read or save of a record; a setter alone brings nothing to be worked out again.
//
// A round is 1 to 7, the active one where it is left out; a hole is 1 to 18, or 19 for the first
// nine, 20 for the second nine and 21 for the round. Error 9 for an index outside its bounds, of
// which a tee that the tournament does not name (0) is one; error 6 for a figure too large for its
// place, or where a number is needed that is none. After an error the round is still to be worked
// out. Files raise the errors of FileTable.
//
// Most members make the course of the round current in the shared course object, which must be on
// Quenby's library. Handicaps and indexes are in strokes and below 0 for a plus golfer. Ratings are
// in strokes, slopes from 55 to 155.
class PlayerClass : public TournamentPlayers {
 public:
  using TournamentPlayers::TournamentPlayers;

  void CalculateSetToRecalculate() { recalculate_.fill(true); }
  // All that is worked out of a round, as numbers.
  const RoundResults& Results(OptionalRound round = {});

  // Handicaps as text: plus handicaps with a plus sign, the values with a minus sign.
  std::string TourHandicap(OptionalRound round = {});
  std::string TourHandicapValue(OptionalRound round = {});
  std::string TourHandicapWholeNumber(OptionalRound round = {});
  std::string TourGrossHandicap(bool decimals, OptionalRound round = {});
  std::string TourGrossHandicapValue(bool decimals, OptionalRound round = {});
  // Where the quota is made from the handicap, it is the active round's whatever round is asked
  // for.
  std::string TourQuota(bool decimals, OptionalRound round = {});

  // Holes 1 to 18, of the round that was worked out last.
  std::int32_t TourHoleStrokes(int hole, OptionalRound round = {});
  std::int32_t TourHolePar(int hole, OptionalRound round = {});

  // "F" for a hole with 99 or more; the number 0 for the holes of a tournament of totals.
  TextOrNumber TourScoreGross(int hole, OptionalRound round = {});
  std::int32_t TourScoreGrossValue(int hole, OptionalRound round = {});
  std::string TourScoreNet(int hole, OptionalRound round = {});
  std::string TourScoreAdjusted(OptionalRound round = {});
  // The score of a hole, as stroke control caps it; of `hole` the whole part counts. Runs stroke
  // control over the round.
  std::int32_t TourHoleAdjusted(double hole, OptionalRound round = {});
  // How often the score less par was `difference`, -5 to 5.
  std::string TourPBEStatsGross(int difference, int hole, OptionalRound round = {});
  std::string TourPBEStatsNet(int difference, int hole, OptionalRound round = {});
  std::string TourPointsGross(int hole, OptionalRound round = {});
  std::string TourPointsNet(int hole, OptionalRound round = {});
  std::string TourPointsQuotaResults(int part, OptionalRound round = {});  // 1 to 3

  // Sums over rounds; without `from`, of round 1 to the active one.
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
  // Of the golfer's team, which is read into the first team object; "None" without a team.
  std::string TourTeeTime(OptionalRound round = {});
  std::string TourTeeStartHole(OptionalRound round = {});

  // Texts that settle a tie where they are sorted.
  std::string TourGrossTotalTiebreakUSGA(OptionalRound round = {});
  std::string TourNetTotalTiebreakUSGA(OptionalRound round = {});
  std::string TourGrossTotalTiebreakHandicapHole(OptionalRound round = {});
  std::string TourNetTotalTiebreakHandicapHole(OptionalRound round = {});
  std::string TourGrossTotalTiebreak1to18(OptionalRound round = {});
  std::string TourNetTotalTiebreak1to18(OptionalRound round = {});
  std::string TourGrossTotalTiebreak18to1(OptionalRound round = {});
  std::string TourNetTotalTiebreak18to1(OptionalRound round = {});

 private:
  // Which tee a golfer plays in a round.
  struct PlayedTee {
    int group;      // 0 men, 1 ladies
    int tee_group;  // 1 to 5
    int tee;        // of the course
  };

  // Sums over rounds. What is shown as a handicap is kept as one, in a single.
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

  // player_course.cpp
  bool LoadCoursePlayed(int round);
  bool LoadTeamForRound(int round);
  PlayedTee TeePlayed(int round);
  PlayedTee LoadTeePlayed(OptionalRound round);

  // player_round.cpp
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

  // player_totals.cpp
  const Totals& AccumulateTotals(OptionalRound from, OptionalRound to);

  // player_tiebreaks.cpp
  ScoreOfHole GrossOfHole(int round);
  std::vector<int> HolesByStrokes(int round);
  std::string GrossKey(OptionalRound round, const std::vector<int>& holes);
  std::string NetKey(OptionalRound round, const std::vector<int>& holes);

  bool UsesDecimals() const;

  Indexed<RoundResults, 1, kRounds> results_;
  // Of the round that was worked out last.
  Indexed<int, 1, kHoles> hole_strokes_;
  Indexed<int, 1, kHoles> hole_pars_;
  Totals totals_;
};

}  // namespace golf
