#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "scoring/layouts/ball_tables.h"

namespace golf {

// The holes to process: those of some blocks, or one hole of 1 to 90. Any other hole is ignored.
struct HoleSpan {
  int first_block = 1;
  int last_block = kBlocks;
  std::optional<int> hole = {};
};

// How teams are ranked: by scores, low first, or by points, high first; over all teams or within
// flights. A team without a counted ball comes last.
struct RankingOrder {
  bool points = false;
  bool by_flight = false;
};

// Counts the balls of teams by a layout, hole by hole, and ranks the teams. It works on tables
// only. Teams are numbered from 1. Any other team raises error 9.
class CustomBalls {
 public:
  // The layout must outlive the object. Codes that no list offers count no ball.
  explicit CustomBalls(const ReportLayout& layout) : layout_(layout) {}

  // Makes empty tables for `teams` teams.
  void XBallInitializeTeamGrid(int teams);
  // Sets the tables, one element a team.
  void SetTables(std::vector<TeamBalls> teams);
  int teams() const { return static_cast<int>(teams_.size()); }
  TeamBalls& Team(int team);
  const TeamBalls& Team(int team) const;
  // Puts values into a team's table. `values` is by golfer and by hole, the first element for
  // golfer 1 and hole 1. Values beyond ten golfers or 90 holes are ignored.
  void PopulateTeamGridwithManualData(int team, BallTable table,
                                      const std::vector<std::vector<int>>& values);

  // Marks the balls that the layout allows, in the tables of points or in those of scores. All
  // earlier marks in these tables are cleared.
  void XBallConsiderWhichScores(bool points, const HoleSpan& holes);
  // Selects balls among the marked ones and adds them up.
  void XBallCalculateTeamScore(const HoleSpan& holes);

  // Ranks the teams in each of the four sum columns of each block. `position_option` 1 numbers the
  // places 1, 2, 2, 3, and 2 numbers them 1, 2, 2, 4. `flights` holds a text for each team.
  void XBallSortTeamStandings(const RankingOrder& order, int position_option,
                              const std::vector<std::string>& flights);
  // Returns the place of a team (`row`) in that ranking. Columns are 1 to 4, blocks 1 to 5.
  int position(int row, int column, int block) const;

  // Returns four keys that break ties by the last nine holes of a round: by the last holes, by the
  // holes in the order of their handicap strokes, from the first hole up, and from the last hole
  // down. Rounds are 1 to 5; any other raises error 9. `round_type` is 9 or 18.
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
