#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "scoring/layouts/ball_tables.h"
#include "scoring/team/team_round.h"
#include "stores/quenby/team_records.h"

namespace golf {

// Calculates the results of a team from those of its golfers. The golfers are those of the active
// round, even for the results of another round. A calculation reads them into the shared player.
// Its results are kept until the next read or save of a team record.
//
// A round is 1 to 7. An omitted round is the active round. A hole is 1 to 18, or 19 for the first
// nine, 20 for the second nine and 21 for the round. Scores and handicaps are in strokes. A
// negative handicap is a plus handicap. The functions raise the same errors as PlayerClass.
class TeamClass : public TeamRecords {
 public:
  using TeamRecords::TeamRecords;

  // Returns all calculated results of a round as numbers.
  const TeamRound& Results(OptionalRound round = {});

  // Returns true if handicaps and the sums of net scores have decimals.
  bool ShowsDecimals() const;

  std::string Handicap(OptionalRound round = {});
  std::int32_t ScoreGross(int hole, OptionalRound round = {});
  // Returns a whole number. Returns a number with decimals for a sum if ShowsDecimals() is true.
  double ScoreNet(int hole, OptionalRound round = {});
  std::int32_t PointsGross(int hole, OptionalRound round = {});
  std::int32_t PointsNet(int hole, OptionalRound round = {});
  std::int32_t Putts(OptionalRound round = {}) { return Results(round).putts; }
  std::int32_t Greens(OptionalRound round = {}) { return Results(round).greens; }
  std::int32_t Fairways(OptionalRound round = {}) { return Results(round).fairways; }
  // Returns the amount times 10000.
  std::int64_t Earnings(OptionalRound round = {}) { return Results(round).earnings; }
  std::string Quota(OptionalRound round = {});  // in points
  // Returns the points above the quota. `part` is 1 for the first nine, 2 for the second, 3 for the
  // round.
  std::string QuotaResults(int part, OptionalRound round = {});
  // Returns all last names if `i` is 0, or the name of golfer `i`, 1 to 8.
  std::string NameofPlayersOnTeam(int i, OptionalRound round = {});

  // Return scores for a team that plays one ball. The net score is empty if no golfer has a score.
  std::string ScrambleGross(int hole, OptionalRound round = {});
  std::string ScrambleNet(int hole, OptionalRound round = {});

  // Return sums over the rounds 1 to the active one.
  std::string TotalGross();
  std::string TotalNet();
  std::string TotalNetScramble();

  // Return the sum of the best `balls` scores of different golfers on a hole. Return the sum over
  // the covered holes if `hole` is 19 to 21. Only the first ten golfers count, and only on holes
  // that they have played.
  std::string BestBallGross(int balls, int hole, OptionalRound round = {});
  std::string BestBallNet(int balls, int hole, OptionalRound round = {});
  std::string BestBallPointsGross(int balls, int hole, OptionalRound round = {});
  std::string BestBallPointsNet(int balls, int hole, OptionalRound round = {});
  // Returns the lowest sum of one golfer's gross score and another golfer's net score.
  std::string BestBallGrossNet(int hole, OptionalRound round = {});
  // Return the sum of the best `x` nines (hole 19 or 20) or rounds (hole 21). Return "0" for a hole
  // 1 to 18.
  std::string BestTotalXofYGross(int x, int hole, OptionalRound round = {});
  std::string BestTotalXofYNet(int x, int hole, OptionalRound round = {});

  // Copies the balls and the names of the team's first ten golfers into its tables, one block for
  // each round. The golfers of a block are those of its round.
  void PopulateTeamGrid(TeamBalls& balls, int rounds);

  // Returns the 18 holes in the order in which they get handicap strokes. Uses the tee of the first
  // tee group, since a team has no tee of its own. Makes the course of the round current.
  std::vector<int> HolesByStrokes(OptionalRound round = {});

  // Return keys that break ties when they are sorted as texts. See tiebreak_keys.h.
  std::string GrossTotalTiebreakUSGA(OptionalRound round = {});
  std::string NetTotalTiebreakUSGA(OptionalRound round = {});
  std::string GrossTotalTiebreakHandicapHole(OptionalRound round = {});
  std::string NetTotalTiebreakHandicapHole(OptionalRound round = {});
  std::string GrossTotalTiebreak1to18(OptionalRound round = {});
  std::string NetTotalTiebreak1to18(OptionalRound round = {});
  std::string GrossTotalTiebreak18to1(OptionalRound round = {});
  std::string NetTotalTiebreak18to1(OptionalRound round = {});
  // The functions without a parameter return the keys of the active round.
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

  // These functions are defined in team_round.cpp.
  void CalculateTeamRound(int round, TeamRound& results);
  void AddGolfer(std::int32_t record, int round, TeamRound& results);
  void AddHoles(int round, TeamRound& results);
  ByHole<std::int32_t> WorkOutScramble(int round);
  Totals AccumulateTeamTotals();

  // These functions are defined in team_balls.cpp.
  const HoleTables& LoadTeamHoleTables(int round);
  std::int32_t LowestBallOnHole(bool gross, int balls, int hole, int round);
  std::int32_t HighestBallOnHole(bool gross, int balls, int hole, int round);
  std::int32_t LowestGrossNetPairOnHole(int hole, int round);
  std::string LowestTotals(bool gross, int x, int hole, OptionalRound round);

  // These functions are defined in team_tiebreaks.cpp.
  std::string GrossKey(OptionalRound round, const std::vector<int>& holes);
  std::string NetKey(OptionalRound round, const std::vector<int>& holes);
  std::string ScrambleKey(OptionalRound round, const std::vector<int>& holes);
  std::int32_t ScrambleNumber(int hole, int round);

  Indexed<TeamRound, 1, kRounds> rounds_;
  Indexed<HoleTables, 1, kRounds> tables_;
};

}  // namespace golf
