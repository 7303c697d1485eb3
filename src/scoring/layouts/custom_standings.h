#pragma once

#include <string>
#include <vector>

#include "core/shared_state.h"
#include "scoring/layouts/custom_balls.h"

namespace golf {

// Contains the standing of a team under a layout. Sums and places are stored by block and column.
// The number of blocks is the number of rounds of the tournament.
struct CustomStanding {
  using Sums = std::vector<std::array<TeamBalls::Sum, kSumsOfBlock>>;
  using Places = std::vector<std::array<int, kSumsOfBlock>>;

  int TeamNumber = 0;
  std::string TeamName;
  std::string golfers;  // the last names of the golfers of the active round
  std::string Flight;
  Sums Scores;
  Sums Points;
  Places Positions;
  Places PointsPositions;
  std::array<std::string, 4> tiebreaks;  // CustomBalls::TiebreakKeys of the active round
};

// Calculates the standings of the open tournament's teams under a layout.
class CustomStandings {
 public:
  // The layout must outlive the object.
  CustomStandings(SharedState& state, const ReportLayout& layout);

  // Adds the team of the first team object. Raises the errors of TeamClass, and adds nothing in
  // that case.
  void AddTeam();
  // Counts the balls and ranks the teams. Returns the teams in the order in which they were added.
  std::vector<CustomStanding> WorkOut();
  // Returns the tables. They are valid after WorkOut.
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
