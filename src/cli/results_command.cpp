#include "cli/results_command.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <string_view>
#include <utility>

#include "cli/history_command.h"
#include "cli/plain_text.h"
#include "cli/problems.h"
#include "core/code_page.h"
#include "core/text.h"
#include "scoring/open_tournament.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

struct ResultsKind {
  std::string_view what;
  void (*show)(ResultsRun&);
};

constexpr ResultsKind kKinds[] = {
    {"players", ShowPlayers}, {"teams", ShowTeams}, {"custom", ShowCustom}};

// Sets the active round in memory and saves nothing. Raises Refusal if there is no such round.
void MakeActive(TournamentClass& tournament, int round) {
  const int rounds = tournament.RoundCount();
  if (round < 1 || round > rounds) {
    throw Refusal("There is no round " + std::to_string(round) + "; the tournament has " +
                  std::to_string(rounds) + ".");
  }
  tournament.SetActiveRound(round);
}

}  // namespace

void OpenForResults(SharedState& state, const ResultsRequest& request) {
  state.files.gate().RefuseChanges();
  NoteUnfinished(state);
  const std::int32_t tournament = request.tournament;
  if (!state.files.FileExists(state.QBDataPath + TournamentFileName(tournament, ".Q9C"))) {
    throw Refusal("There is no tournament " + std::to_string(tournament) + ".");
  }
  OpenTournament(state, tournament);
  if (request.round) MakeActive(state.Tournament(), *request.round);
}

void WriteStandings(const ResultsRun& run, const StandingsTable& table) {
  std::vector<std::vector<std::string>> lines;
  for (const StandingsRow& row : table.rows) {
    auto& line = lines.emplace_back(row.cells);
    for (std::string& cell : line) cell = PlainCell(cell);
  }
  if (run.form == ResultsForm::kTable) return WriteTable(table.headings, lines);
  lines.insert(lines.begin(), table.headings);
  if (run.request.bom) std::cout << kByteOrderMark;
  for (const auto& line : lines) std::cout << CsvLine(line) << '\n';
}

void ResultsRun::AddFault(const std::string& who, const NumberedError& error) {
  NoteProblem(who + ": " + error.Report());
  faults.push_back(error);
}

EntryQuestion ResultsRun::Entries() {
  return {state, request.tiebreak, false,
          [this](const std::string& who, const NumberedError& error) { AddFault(who, error); },
          NoteProblem};
}

std::vector<std::string> ResultsNames() {
  std::vector<std::string> names;
  for (const ResultsKind& kind : kKinds) names.emplace_back(kind.what);
  return names;
}

ExitCode RunResults(const Options& options, const ResultsRequest& request) {
  if (!request.html.empty()) return RunResultsPage(options, request);
  const auto kind =
      std::find_if(std::begin(kKinds), std::end(kKinds),
                   [&](const ResultsKind& known) { return known.what == request.what; });
  const auto application = StartApplication(options);
  SharedState& state = application->state();
  OpenForResults(state, request);
  const ResultsForm form = request.csv    ? ResultsForm::kCsv
                           : options.json ? ResultsForm::kJson
                                          : ResultsForm::kTable;
  ResultsRun run{state, request, form, {}};
  kind->show(run);
  NoteFaultCount(run.faults.size());
  return ExitCodeOfFaults(run.faults);
}

}  // namespace golf
