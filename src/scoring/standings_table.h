#pragma once

#include <optional>
#include <string>
#include <vector>

#include "scoring/layouts/custom_standings.h"
#include "scoring/team/team_class.h"

namespace golf {

// Contains a row of standings. The lowest `rank` has the first place. A row without a rank has no
// place.
struct StandingsRow {
  int number = 0;  // of the team, or the record of the player's entry
  std::vector<std::string> cells;
  std::optional<double> rank = {};
};

// Contains standings as text. The first cell of a row is the number of the team.
struct StandingsTable {
  std::vector<std::string> headings;
  std::vector<StandingsRow> rows;
};

// Sorts the rows by rank and adds the place as the last cell. Rows without a rank come last. Equal
// ranks share a place.
void AddPlaces(std::vector<StandingsRow>& rows);

// Returns the row of the current team for the active round. Its rank is the net score. Raises the
// errors of TeamClass.
StandingsRow TeamTotalsRow(TeamClass& team);
// Returns a table of such rows with places and headings.
StandingsTable TeamTotalsTable(std::vector<StandingsRow> rows);

// Returns the standings of all rounds under a layout. The rank is the place by the running total of
// the last round.
StandingsTable CustomTable(const std::vector<CustomStanding>& standings, int rounds);

}  // namespace golf
