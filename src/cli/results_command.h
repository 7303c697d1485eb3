#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "core/numbered_error.h"
#include "core/shared_state.h"
#include "scoring/standings_table.h"

namespace golf {

enum class ResultsForm { kTable, kCsv, kJson };

// As a table or as CSV; the texts are in code page 1252.
void WriteStandings(ResultsForm form, const StandingsTable& table);

// What was asked for, and the errors of results whose calculation ended in one: they are told on
// standard error, and the others follow.
struct ResultsRun {
  SharedState& state;
  const ResultsRequest& request;
  ResultsForm form;
  std::vector<NumberedError> faults;

  // Runs `show`; after an error `failed` is told, and the error is added to the faults.
  void Try(const std::function<void()>& show, const std::function<std::string()>& what,
           const std::function<void(const NumberedError&)>& failed);
};

// Each writes one kind of results of the tournament that is open, for its active round.
void ShowPlayers(ResultsRun& run);
void ShowTeams(ResultsRun& run);
void ShowCustom(ResultsRun& run);

}  // namespace golf
