#pragma once

#include <string>
#include <vector>

#include "core/shared_state.h"
#include "scoring/layouts/custom_balls.h"

namespace golf {

// A team as it stands under a layout. Sums are by block and column, places too; a block beyond the
// tournament's rounds is left out.
struct CustomStanding {
  using Sums = std::vector<std::array<TeamBalls::Sum, kSumsOfBlock>>;
  using Places = std::vector<std::array<int, kSumsOfBlock>>;

  int TeamNumber = 0;
  std::string TeamName;
  std::string golfers;  // of the active round, their last names
  std::string Flight;
  Sums Scores;
  Sums Points;
  Places Positions;
  Places PointsPositions;
  std::array<std::string, 4> tiebreaks;  // of the active round
};

// Teams of the open tournament under a layout.
class CustomStandings {
 public:
  // The layout must live as long.
  CustomStandings(SharedState& state, const ReportLayout& layout);

  // Takes in the team that the first team object holds. Errors of its calculation travel out, and
  // it is not taken in then.
  void AddTeam();
  // Counts the balls and ranks the teams: in the order in which they were taken in.
  std::vector<CustomStanding> WorkOut();
  // The tables, after WorkOut.
  const CustomBalls& balls() const { return balls_; }

 private:
  void FillSums(int row, CustomStanding& standing) const;
  void FillTiebreaks(std::vector<CustomStanding>& standings) const;
  void Rank(std::vector<CustomStanding>& standings, bool points,
            CustomStanding::Places CustomStanding::*places);

  SharedState& state_;
  int rounds_;
  CustomBalls balls_;
  std::vector<CustomStanding> teams_;
  std::vector<TeamBalls> tables_;
};

}  // namespace golf
