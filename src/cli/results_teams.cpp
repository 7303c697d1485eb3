#include <string>
#include <utility>

#include "cli/problems.h"
#include "cli/results_command.h"
#include "cli/results_json.h"
#include "cli/results_places.h"
#include "outlets/results/entry_reader.h"
#include "outlets/results/tournament_walk.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

const std::vector<PlacedMeasure> kMeasuresOfTeams = {{Measure::kGross, "gross", true},
                                                     {Measure::kNet, "net", true},
                                                     {Measure::kPoints, "points", false},
                                                     {Measure::kQuota, "quota", false}};

void WriteJson(SharedState& state, int team, const ResultPlaces& places) {
  const int round = state.Tournament().RoundOr({});
  ResultsObject object({{"TeamNumber", team}, {"round", round}});
  object.AddResults(state.Team1(), round);
  object.Add(places.KeysOf(team));
  object.Write();
}

}  // namespace

// The results are read twice: once for the places, and once for the other columns. The second
// reading reports the errors.
void ShowTeams(ResultsRun& run) {
  const ResultPlaces places(
      ReadTeams({run.state, run.request.tiebreak, false,
                 [](const std::string&, const NumberedError&) {}, [](const std::string&) {}}),
      kMeasuresOfTeams, run);
  const bool is_json = run.form == ResultsForm::kJson;
  std::vector<StandingsRow> rows;
  ForEachTeam(
      run.state,
      [&](int team) {
        if (is_json) return WriteJson(run.state, team, places);
        rows.push_back(TeamTotalsRow(run.state.Team1()));
      },
      [&](int team, const std::string& who, const NumberedError& error) {
        run.AddFault(who, error);
        if (is_json) WriteJsonLine({{"TeamNumber", team}, {"error", error.number()}});
      },
      NoteProblem);
  if (is_json) return;
  StandingsTable table = TeamTotalsTable(std::move(rows));
  places.AddTo(table);
  WriteStandings(run, table);
}

}  // namespace golf
