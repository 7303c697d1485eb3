#pragma once

#include <cstdint>

#include "forms/grid.h"
#include "scoring/layouts/custom_balls.h"

namespace golf {

// What made-up teams would get under a layout, beside its codes in the builder's grid. The rows are
// the columns of the ball tables; the teams stand side by side: gross balls, net balls, and what
// counts. Both the layout and the grid must live as long.
class SampleTeams {
 public:
  static constexpr int kTeams = 2;
  static constexpr int kWidth = 2 * kMostLayoutPlayers + 1;  // columns of a team
  static constexpr int kFirstColumn = 8;                     // an empty one, behind the codes
  static constexpr int kLastColumn = kFirstColumn + kTeams * kWidth;

  SampleTeams(const ReportLayout& layout, Grid& grid)
      : layout_(layout), grid_(grid), balls_(layout) {}

  void HeadColumns();
  // Those of golfers whom a team of the layout does not have.
  void HideColumns();
  // The same seed makes up the same scores.
  void SetSeed(std::uint32_t seed) { random_ = seed; }
  // Makes up other scores and works them out.
  void Generate();
  // Works the same scores out under the layout as it stands.
  void Calculate();

 private:
  static int ColumnOf(int team, BallTable table, int player);
  static int TotalColumn(int team) { return kFirstColumn + team * kWidth; }
  int MadeUp(std::uint32_t most);
  void ShowTeam(int team);

  const ReportLayout& layout_;
  Grid& grid_;
  CustomBalls balls_;
  std::uint32_t random_ = 0;  // what the next number follows from
};

}  // namespace golf
