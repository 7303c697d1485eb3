#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "core/numbered_error.h"
#include "core/shared_state.h"

namespace golf {

enum class ResultsForm { kTable, kCsv, kJson };

// A line of results, and the score by which it is placed, if there is one.
struct ResultsRow {
  std::vector<std::string> cells;  // UTF-8
  std::optional<double> score;
};

// The lowest score first, those without one last.
void SortByScore(std::vector<ResultsRow>& rows);
// The same, and adds the place as the last cell; equal scores share one.
void Place(std::vector<ResultsRow>& rows);
// As a table or as CSV.
void WriteRows(ResultsForm form, const std::vector<std::string>& headings,
               std::vector<ResultsRow> rows);

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
