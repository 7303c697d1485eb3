#pragma once

#include <optional>
#include <string>
#include <vector>

#include "scoring/layouts/custom_standings.h"
#include "scoring/team/team_class.h"

namespace golf {

// A row of standings. Rows are placed by `rank`, the lowest first. A row without a rank has no
// place.
struct StandingsRow {
  std::vector<std::string> cells;
  std::optional<double> rank;
};

// Standings as text. The first cell of a row is the team's number.
struct StandingsTable {
  std::vector<std::string> headings;
  std::vector<StandingsRow> rows;
};

// Sorts the rows, those without a rank last, and adds the place as the last cell. Equal ranks share
// a place.
void AddPlaces(std::vector<StandingsRow>& rows);

// Returns the row of the current team for the active round, ranked by net score. Raises the errors
// of TeamClass.
StandingsRow TeamTotalsRow(TeamClass& team);
// Adds the places and headings to such rows.
StandingsTable TeamTotalsTable(std::vector<StandingsRow> rows);

// Returns the standings of all rounds under a layout, placed by the running total of the last
// round.
StandingsTable CustomTable(const std::vector<CustomStanding>& standings, int rounds);

}  // namespace golf
