#pragma once

#include <cstdint>

#include "forms/grid.h"
#include "scoring/layouts/custom_balls.h"

namespace golf {

// Shows in the builder's grid, beside the codes of a layout, what sample teams would score under
// it. The grid's rows are the columns of the ball tables. Each team has columns for its gross
// balls, its net balls and the score that counts. The layout and the grid must outlive this object.
class SampleTeams {
 public:
  static constexpr int kTeams = 2;
  static constexpr int kWidth = 2 * kMostLayoutPlayers + 1;  // columns of a team
  static constexpr int kFirstColumn = 8;                     // an empty column after the codes
  static constexpr int kLastColumn = kFirstColumn + kTeams * kWidth;

  SampleTeams(const ReportLayout& layout, Grid& grid)
      : layout_(layout), grid_(grid), balls_(layout) {}

  void HeadColumns();
  // Hides the columns of golfers whom a team of the layout does not have.
  void HideColumns();
  // The same seed gives the same scores.
  void SetSeed(std::uint32_t seed) { random_ = seed; }
  // Makes new random scores and calculates them.
  void Generate();
  // Calculates the same scores under the present layout.
  void Calculate();

 private:
  static int ColumnOf(int team, BallTable table, int player);
  static int TotalColumn(int team) { return kFirstColumn + team * kWidth; }
  int MadeUp(std::uint32_t most);
  void ShowTeam(int team);

  const ReportLayout& layout_;
  Grid& grid_;
  CustomBalls balls_;
  std::uint32_t random_ = 0;  // the state of the random numbers
};

}  // namespace golf
