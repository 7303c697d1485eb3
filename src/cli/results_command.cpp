#include "cli/results_command.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "cli/commands.h"
#include "cli/problems.h"
#include "scoring/open_tournament.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

struct ResultsKind {
  std::string_view what;
  void (*show)(SharedState&, ResultsForm, std::vector<NumberedError>&);
};

constexpr ResultsKind kKinds[] = {{"players", ShowPlayers}};

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
  std::vector<NumberedError> faults;
  const ResultsForm form = request.csv    ? ResultsForm::kCsv
                           : options.json ? ResultsForm::kJson
                                          : ResultsForm::kTable;
  kind->show(state, form, faults);
  TellFaultCount(faults.size());
  return faults.empty() ? ExitCode::kDone : ExitCodeOfFaults(faults);
}

}  // namespace golf
