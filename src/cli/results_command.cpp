#include "cli/results_command.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <string_view>
#include <utility>

#include "cli/plain_text.h"
#include "cli/problems.h"
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

void OpenForReading(SharedState& state, std::int32_t tournament) {
  state.files.gate().RefuseChanges();
  if (!state.files.FileExists(state.QBDataPath + TournamentFileName(tournament, ".Q9C"))) {
    throw Refusal("There is no tournament " + std::to_string(tournament) + ".");
  }
  OpenTournament(state, tournament);
}

// In memory: the round is not saved.
void MakeActive(TournamentClass& tournament, int round) {
  const std::string rounds = tournament.NumRounds();
  if (round < 1 || round > std::stoi(rounds)) {
    throw Refusal("There is no round " + std::to_string(round) + "; the tournament has " + rounds +
                  ".");
  }
  tournament.SetActiveRound(round);
}

}  // namespace

void SortByScore(std::vector<ResultsRow>& rows) {
  std::stable_sort(rows.begin(), rows.end(), [](const ResultsRow& a, const ResultsRow& b) {
    return a.score && (!b.score || *a.score < *b.score);
  });
}

void Place(std::vector<ResultsRow>& rows) {
  SortByScore(rows);
  std::size_t place = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i == 0 || rows[i].score != rows[i - 1].score) place = i + 1;
    rows[i].cells.push_back(rows[i].score ? std::to_string(place) : "");
  }
}

void WriteRows(ResultsForm form, const std::vector<std::string>& headings,
               std::vector<ResultsRow> rows) {
  std::vector<std::vector<std::string>> lines;
  for (ResultsRow& row : rows) lines.push_back(std::move(row.cells));
  if (form == ResultsForm::kTable) return WriteTable(headings, lines);
  lines.insert(lines.begin(), headings);
  for (const auto& line : lines) {
    for (std::size_t i = 0; i < line.size(); ++i) {
      std::cout << (i > 0 ? "," : "") << CsvValue(line[i]);
    }
    std::cout << '\n';
  }
}

void ResultsRun::Try(const std::function<void()>& show, const std::function<std::string()>& what,
                     const std::function<void(const NumberedError&)>& failed) {
  try {
    show();
  } catch (const NumberedError& error) {
    TellProblem(what() + ": " + error.Report());
    faults.push_back(error);
    failed(error);
  }
}

std::vector<std::string> ResultsNames() {
  std::vector<std::string> names;
  for (const ResultsKind& kind : kKinds) names.emplace_back(kind.what);
  return names;
}

ExitCode RunResults(const Options& options, const ResultsRequest& request) {
  const auto kind =
      std::find_if(std::begin(kKinds), std::end(kKinds),
                   [&](const ResultsKind& known) { return known.what == request.what; });
  const auto application = StartApplication(options);
  SharedState& state = application->state();
  OpenForReading(state, request.tournament);
  if (request.round) MakeActive(state.Tournament(), *request.round);
  const ResultsForm form = request.csv    ? ResultsForm::kCsv
                           : options.json ? ResultsForm::kJson
                                          : ResultsForm::kTable;
  ResultsRun run{state, request, form, {}};
  kind->show(run);
  TellFaultCount(run.faults.size());
  return run.faults.empty() ? ExitCode::kDone : ExitCodeOfFaults(run.faults);
}

}  // namespace golf
