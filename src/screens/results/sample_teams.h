#pragma once

#include <cstdint>

#include "forms/grid.h"
#include "scoring/layouts/custom_balls.h"

namespace golf {

// Shows the scores of made-up sample teams under a layout, in the grid of the layout builder beside
// the codes of the layout. The grid's rows are the columns of the ball tables. Each team has
// columns for its gross balls, its net balls and the score that counts. The layout and the grid
// must outlive this object.
class SampleTeams {
 public:
  static constexpr int kTeams = 2;
  static constexpr int kWidth = 2 * kMostLayoutPlayers + 1;  // columns of a team
  static constexpr int kFirstColumn = 8;                     // an empty column after the codes
  static constexpr int kLastColumn = kFirstColumn + kTeams * kWidth;

  SampleTeams(const ReportLayout& layout, Grid& grid)
      : layout_(layout), grid_(grid), balls_(layout) {}

  void HeadColumns();
  // Hides the columns of the golfers that exceed the team size of the layout.
  void HideColumns();
  // Sets the start value of the random number generator. The same value gives the same scores.
  void SetSeed(std::uint32_t seed) { random_ = seed; }
  // Fills the teams with new random scores and calculates their results.
  void Generate();
  // Calculates the results of the same scores under the current layout.
  void Calculate();

 private:
  static int ColumnOf(int team, BallTable table, int player);
  static int TotalColumn(int team) { return kFirstColumn + team * kWidth; }
  int MadeUp(std::uint32_t most);
  void ShowTeam(int team);

  const ReportLayout& layout_;
  Grid& grid_;
  CustomBalls balls_;
  std::uint32_t random_ = 0;  // the state of the random number generator
};

}  // namespace golf
