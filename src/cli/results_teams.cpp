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

void WriteJson(ResultsRun& run, int team, const ResultPlaces& places) {
  TeamClass& object_of = run.state.Team1();
  const int round = run.state.Tournament().RoundOr({});
  run.Try(
      [&] {
        Json object = {{"TeamNumber", team}, {"round", round}};
        AddResults(object_of, round, object);
        places.AddTo(team, object);
        WriteJsonLine(object);
      },
      [team] { return "Team " + std::to_string(team); },
      [team](const NumberedError& error) {
        WriteJsonLine({{"TeamNumber", team}, {"error", error.number()}});
      });
}

}  // namespace

// The results are read twice: once for the places, and once for the other columns. The second
// reading reports the errors.
void ShowTeams(ResultsRun& run) {
  const ResultPlaces places(
      ReadTeams({run.state, run.request.tiebreak, false,
                 [](const std::string&, const NumberedError&) {}, [](const std::string&) {}}),
      kMeasuresOfTeams, run);
  std::vector<StandingsRow> rows;
  ForEachTeam(
      run.state,
      [&](int team) {
        if (run.form == ResultsForm::kJson) return WriteJson(run, team, places);
        run.Try([&] { rows.push_back(TeamTotalsRow(run.state.Team1())); },
                [team] { return "Team " + std::to_string(team); }, [](const NumberedError&) {});
      },
      NoteProblem);
  if (run.form == ResultsForm::kJson) return;
  StandingsTable table = TeamTotalsTable(std::move(rows));
  places.AddTo(table);
  WriteStandings(run.form, table);
}

}  // namespace golf
