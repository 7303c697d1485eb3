#pragma once

#include <functional>
#include <string>

#include "core/numbered_error.h"
#include "core/shared_state.h"
#include "outlets/pages/results_page.h"
#include "outlets/results/entry_reader.h"

namespace golf {

// Describes the page to make from the open tournament. The page shows the active round.
struct PageQuestion {
  SharedState& state;
  Tiebreak tiebreak = Tiebreak::kNone;
  bool refreshes = false;
  // Is called for each player or team whose results cannot be calculated; see EntryQuestion. The
  // page also names the player or the team.
  std::function<void(const std::string& who, const NumberedError& error)> failed;
  // Is called with a sentence about a team that is left out.
  std::function<void(const std::string& sentence)> note;
};

// Return the page of the players, of the teams, or of the teams under a layout. Raise the errors of
// FileTable.
ResultsPage MakePlayersPage(const PageQuestion& question);
ResultsPage MakeTeamsPage(const PageQuestion& question);
ResultsPage MakeCustomPage(const PageQuestion& question, const ReportLayout& layout);

}  // namespace golf
