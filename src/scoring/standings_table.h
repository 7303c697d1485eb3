#pragma once

#include <optional>
#include <string>
#include <vector>

#include "scoring/layouts/custom_standings.h"
#include "scoring/team/team_class.h"

namespace golf {

// A line of standings: what is shown, and by what it is placed, if by anything; low comes first.
struct StandingsRow {
  std::vector<std::string> cells;
  std::optional<double> rank;
};

// Standings as people read them; the first cell of a team is its number.
struct StandingsTable {
  std::vector<std::string> headings;
  std::vector<StandingsRow> rows;
};

// Sorts the rows, those without a rank last, and adds the place as the last cell; equal ranks share
// one.
void AddPlaces(std::vector<StandingsRow>& rows);

// The active round of the team in hand, placed by net score. Errors of the calculation travel out.
StandingsRow TeamTotalsRow(TeamClass& team);
StandingsTable TeamTotalsTable(std::vector<StandingsRow> rows);

// All rounds under a layout, placed by the running total of the last one.
StandingsTable CustomTable(const std::vector<CustomStanding>& standings, int rounds);

}  // namespace golf
