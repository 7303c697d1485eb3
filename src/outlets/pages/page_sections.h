#pragma once

#include <string>

#include "outlets/pages/html_writer.h"
#include "outlets/pages/results_page.h"
#include "outlets/results/standings.h"

namespace golf {

// These functions write the parts of a page of results.

// Returns the name of an entry, or a text such as "Team 3" or "Entry 3" if the name is blank.
std::string NameOf(const ResultEntry& entry, bool of_teams);

// Returns the id and the title of a group's section, such as "flight-A" and "Flight A".
std::string GroupId(const StandingsGroup& group);
std::string GroupTitle(const StandingsGroup& group, bool of_teams);
// Returns the groups that a page shows. Leaves out a flight or a sex that contains all entries.
std::vector<StandingsGroup> ShownGroups(const ResultsPage& page, PageExtent extent);

void WriteStandings(const ResultsPage& page, const std::vector<StandingsGroup>& groups,
                    PageExtent extent, HtmlWriter& html);

// Writes the distributions of the scores and the statistics of the holes.
void WriteStatistics(const ResultsPage& page, HtmlWriter& html);

// Returns true if the page has a card of the entry.
bool HasCard(const ResultEntry& entry, const ResultsPage& page, PageExtent extent);
// Returns the id of an entry's card.
std::string CardId(const ResultEntry& entry, bool of_teams);
void WriteCards(const ResultsPage& page, PageExtent extent, HtmlWriter& html);

// Returns the style sheet.
std::string PageStyle(const ResultsPage& page);

}  // namespace golf
