#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "scoring/layouts/ball_tables.h"
#include "scoring/team/team_round.h"
#include "stores/quenby/team_records.h"

namespace golf {

// What a team's golfers are worth together: the second storey of a team. The golfers are those of
// the active round, whatever round is asked for. All members read them into the shared player, and
// what they give is kept until the next read or save of a team record.
//
// A round is 1 to 7, the active one where it is left out; a hole is 1 to 18, or 19 for the first
// nine, 20 for the second nine and 21 for the round. Errors as for PlayerClass.
class TeamClass : public TeamRecords {
 public:
  using TeamRecords::TeamRecords;

  // All that is worked out of a round, as numbers.
  const TeamRound& Results(OptionalRound round = {});

  // Whether handicaps and the sums of net scores have decimals.
  bool ShowsDecimals() const;

  std::string Handicap(OptionalRound round = {});
  std::int32_t ScoreGross(int hole, OptionalRound round = {});
  // A whole number, or for the sums of a tournament with decimals a single.
  double ScoreNet(int hole, OptionalRound round = {});
  std::int32_t PointsGross(int hole, OptionalRound round = {});
  std::int32_t PointsNet(int hole, OptionalRound round = {});
  std::int32_t Putts(OptionalRound round = {}) { return Results(round).putts; }
  std::int32_t Greens(OptionalRound round = {}) { return Results(round).greens; }
  std::int32_t Fairways(OptionalRound round = {}) { return Results(round).fairways; }
  std::int64_t Earnings(OptionalRound round = {}) { return Results(round).earnings; }  // x 10000
  std::string Quota(OptionalRound round = {});
  std::string QuotaResults(int part, OptionalRound round = {});  // 1 to 3
  // 0 for all last names, 1 to 8 for a golfer.
  std::string NameofPlayersOnTeam(int i, OptionalRound round = {});

  // For a team that plays one ball. The net score is empty as long as nobody has a score.
  std::string ScrambleGross(int hole, OptionalRound round = {});
  std::string ScrambleNet(int hole, OptionalRound round = {});

  // Sums of round 1 to the active one.
  std::string TotalGross();
  std::string TotalNet();
  std::string TotalNetScramble();

  // The best `balls` scores of different golfers on a hole, or the sum of what each hole gives. A
  // golfer who has not played a hole never counts, nor does one behind the tenth.
  std::string BestBallGross(int balls, int hole, OptionalRound round = {});
  std::string BestBallNet(int balls, int hole, OptionalRound round = {});
  std::string BestBallPointsGross(int balls, int hole, OptionalRound round = {});
  std::string BestBallPointsNet(int balls, int hole, OptionalRound round = {});
  // One gross and one net score of two golfers.
  std::string BestBallGrossNet(int hole, OptionalRound round = {});
  // The best `x` nines (19, 20) or rounds (21); "0" for a hole.
  std::string BestTotalXofYGross(int x, int hole, OptionalRound round = {});
  std::string BestTotalXofYNet(int x, int hole, OptionalRound round = {});

  // Puts the balls of the team's first ten golfers into its tables, a block for each round: the
  // golfers of a block are those of its round.
  void PopulateTeamGrid(TeamBalls& balls, int rounds);

  // The 18 holes in the order in which they take strokes, from the first tee group's tee: a team
  // has none of its own. Makes the course of the round current.
  std::vector<int> HolesByStrokes(OptionalRound round = {});

  // Texts that settle a tie where they are sorted.
  std::string GrossTotalTiebreakUSGA(OptionalRound round = {});
  std::string NetTotalTiebreakUSGA(OptionalRound round = {});
  std::string GrossTotalTiebreakHandicapHole(OptionalRound round = {});
  std::string NetTotalTiebreakHandicapHole(OptionalRound round = {});
  std::string GrossTotalTiebreak1to18(OptionalRound round = {});
  std::string NetTotalTiebreak1to18(OptionalRound round = {});
  std::string GrossTotalTiebreak18to1(OptionalRound round = {});
  std::string NetTotalTiebreak18to1(OptionalRound round = {});
  // Of the active round.
  std::string GrossScrambleTiebreakUSGA() { return GrossTotalTiebreakUSGA(); }
  std::string GrossScrambleTiebreak1to18() { return GrossTotalTiebreak1to18(); }
  std::string GrossScrambleTiebreak18to1() { return GrossTotalTiebreak18to1(); }
  std::string NetScrambleTiebreakUSGA(OptionalRound round = {});
  std::string NetScrambleTiebreakHandicapHole(OptionalRound round = {});
  std::string NetScrambleTiebreak1to18(OptionalRound round = {});
  std::string NetScrambleTiebreak18to1(OptionalRound round = {});

 private:
  struct Totals {
    std::int32_t gross = 0;
    float net = 0;
    float scramble_net = 0;
  };

  // team_round.cpp
  void CalculateTeamRound(int round, TeamRound& results);
  void AddGolfer(std::int32_t record, int round, TeamRound& results);
  void AddHoles(int round, TeamRound& results);
  ByHole<std::int32_t> WorkOutScramble(int round);
  Totals AccumulateTeamTotals();

  // team_balls.cpp
  const HoleTables& LoadTeamHoleTables(int round);
  std::int32_t LowestBallOnHole(bool gross, int balls, int hole, int round);
  std::int32_t HighestBallOnHole(bool gross, int balls, int hole, int round);
  std::int32_t LowestGrossNetPairOnHole(int hole, int round);
  std::string LowestTotals(bool gross, int x, int hole, OptionalRound round);

  // team_tiebreaks.cpp
  std::string GrossKey(OptionalRound round, const std::vector<int>& holes);
  std::string NetKey(OptionalRound round, const std::vector<int>& holes);
  std::string ScrambleKey(OptionalRound round, const std::vector<int>& holes);
  std::int32_t ScrambleNumber(int hole, int round);

  Indexed<TeamRound, 1, kRounds> rounds_;
  Indexed<HoleTables, 1, kRounds> tables_;
};

}  // namespace golf
