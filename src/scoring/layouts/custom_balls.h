#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "scoring/layouts/ball_tables.h"

namespace golf {

// Describes the holes to process. They are those of some blocks, or one hole of 1 to 90. Any other
// hole is ignored.
struct HoleSpan {
  int first_block = 1;
  int last_block = kBlocks;
  std::optional<int> hole = {};
};

// Describes the order of teams in a ranking. Scores rank the lowest first, and points rank the
// highest first. The ranking covers all teams or each flight. A team without a counted ball comes
// last.
struct RankingOrder {
  bool points = false;
  bool by_flight = false;
};

// Counts the balls of teams hole by hole according to a layout, and ranks the teams. It uses only
// its tables, no files. Teams are numbered from 1. Any other team raises error 9.
class CustomBalls {
 public:
  // The layout must outlive the object. A code that is not in the lists of choices counts no ball.
  explicit CustomBalls(const ReportLayout& layout) : layout_(layout) {}

  // Makes empty tables for `teams` teams.
  void XBallInitializeTeamGrid(int teams);
  // Sets the tables, one element for each team.
  void SetTables(std::vector<TeamBalls> teams);
  int teams() const { return static_cast<int>(teams_.size()); }
  TeamBalls& Team(int team);
  const TeamBalls& Team(int team) const;
  // Copies values into a team's table. `values[0][0]` is the value of golfer 1 on hole 1. Ignores
  // values beyond ten golfers or 90 holes.
  void PopulateTeamGridwithManualData(int team, BallTable table,
                                      const std::vector<std::vector<int>>& values);

  // Marks the balls that the layout permits, in the tables of points or in those of scores. First
  // clears all marks in these tables.
  void XBallConsiderWhichScores(bool points, const HoleSpan& holes);
  // Selects balls among the marked ones and adds them up.
  void XBallCalculateTeamScore(const HoleSpan& holes);

  // Ranks the teams in each of the four sum columns of each block. `position_option` 1 numbers the
  // places as in 1, 2, 2, 3, and 2 numbers them as in 1, 2, 2, 4. `flights` contains a text for
  // each team.
  void XBallSortTeamStandings(const RankingOrder& order, int position_option,
                              const std::vector<std::string>& flights);
  // Returns the place of a team (`row`) in that ranking. Columns are 1 to 4, and blocks are 1 to 5.
  int position(int row, int column, int block) const;

  // Returns four keys that break ties by the last nine holes of a round. They compare the last
  // holes, the holes in the order of their handicap strokes, the holes in ascending order, and the
  // holes in descending order. Rounds are 1 to 5. Any other round raises error 9. `round_type` is 9
  // or 18.
  std::array<std::string, 4> TiebreakKeys(int team, int round, int round_type,
                                          const std::vector<int>& holes_by_strokes) const;

 private:
  void MarkBalls(bool points, int hole, int golfer, BallMark mark);
  void CountHole(TeamBalls& team, int hole) const;
  static void AddBlocks(TeamBalls& team);
  void RankTeams(const RankingOrder& order, int position_option,
                 const std::vector<std::string>& flights, int block, int sum);

  using PlacesOfTeam = Indexed<Indexed<int, 1, kBlocks>, 1, kSumsOfBlock>;

  const ReportLayout& layout_;
  std::vector<TeamBalls> teams_;
  std::vector<PlacesOfTeam> positions_;
};

}  // namespace golf
