#pragma once

#include <string>
#include <vector>

#include "cli/commands.h"
#include "core/numbered_error.h"
#include "core/shared_state.h"
#include "outlets/results/entry_reader.h"
#include "scoring/layouts/report_layout.h"
#include "scoring/standings_table.h"

namespace golf {

enum class ResultsForm { kTable, kCsv, kJson };

// Returns the layout of the request. Raises Refusal if there is no such layout.
ReportLayout LayoutOf(SharedState& state, const ResultsRequest& request);

// Opens a tournament for reading and makes the requested round active in memory. Raises Refusal if
// there is no such tournament or round.
void OpenForResults(SharedState& state, const ResultsRequest& request);

// Writes the page of results. If the request has `watch`, writes it again after each change.
ExitCode RunResultsPage(const Options& options, const ResultsRequest& request);

// Holds the request of the command and the errors of results that could not be calculated. The
// command reports each such error on standard error and continues with the next result.
struct ResultsRun {
  SharedState& state;
  const ResultsRequest& request;
  ResultsForm form;
  std::vector<NumberedError> faults;

  // Returns the question for the entries to show, without cards. Their errors are reported.
  EntryQuestion Entries();
  // Reports an error on standard error and adds it to the faults.
  void AddFault(const std::string& who, const NumberedError& error);
};

// Writes the standings as a table or as CSV. Their texts are in code page 1252.
void WriteStandings(const ResultsRun& run, const StandingsTable& table);

// These functions write the results of the active round of the open tournament: for each player,
// for each team, or under a custom layout.
void ShowPlayers(ResultsRun& run);
void ShowTeams(ResultsRun& run);
void ShowCustom(ResultsRun& run);

}  // namespace golf
