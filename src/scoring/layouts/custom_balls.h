#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "scoring/layouts/ball_tables.h"

namespace golf {

// Holes that are worked on: those of some blocks, or one hole of 1 to 90. A hole that no block has
// is none at all.
struct HoleSpan {
  int first_block = 1;
  int last_block = kBlocks;
  std::optional<int> hole = {};
};

// How teams are ranked: by their scores, low first, or by their points, high first, and over all
// teams or within flights. A team with nothing counted comes behind all others.
struct RankingOrder {
  bool points = false;
  bool by_flight = false;
};

// Counts the balls of teams by a layout, hole by hole, and ranks the teams. Works on tables alone:
// where the balls come from is another matter. Teams count from 1, error 9 for any other.
class CustomBalls {
 public:
  // Codes that no list offers count as none.
  explicit CustomBalls(const ReportLayout& layout) : layout_(layout) {}

  // Empty tables.
  void XBallInitializeTeamGrid(int teams);
  // A table for each team.
  void SetTables(std::vector<TeamBalls> teams);
  int teams() const { return static_cast<int>(teams_.size()); }
  TeamBalls& Team(int team);
  const TeamBalls& Team(int team) const;
  // Puts values into a team's table, by golfer and hole from 1. What has no place is left out.
  void PopulateTeamGridwithManualData(int team, BallTable table,
                                      const std::vector<std::vector<int>>& values);

  // Marks the balls that the layout lets count, in the tables of points or in those of scores; what
  // was marked there before is no longer.
  void XBallConsiderWhichScores(bool points, const HoleSpan& holes);
  // Picks the marked balls and adds them up.
  void XBallCalculateTeamScore(const HoleSpan& holes);

  // Ranks the teams in each block's four columns. `position_option` 1 numbers places 1, 2, 2, 3,
  // and 2 numbers them 1, 2, 2, 4. `flights` holds a text for each team.
  void XBallSortTeamStandings(const RankingOrder& order, int position_option,
                              const std::vector<std::string>& flights);
  // The place of a team (`row`) in that ranking; columns 1 to 4, blocks 1 to 5.
  int position(int row, int column, int block) const;

  // The four keys that settle ties in the last nine holes of a round: by the last holes, by the
  // holes in the order of their strokes, from the first hole up, and from the last one down. Rounds
  // 1 to 5, error 9 for any other; `round_type` 9 or 18.
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
