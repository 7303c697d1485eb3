#include "cli/results_teams.h"

#include <string>
#include <utility>

#include "cli/problems.h"
#include "cli/results_json.h"
#include "scoring/player/player_class.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

void WriteJson(ResultsRun& run, int team) {
  TeamClass& object_of = run.state.Team1();
  const int round = run.state.Tournament().RoundOr({});
  run.Try(
      [&] {
        Json object = {{"TeamNumber", team}, {"round", round}};
        AddResults(object_of, round, object);
        WriteJsonLine(object);
      },
      [team] { return "Team " + std::to_string(team); },
      [team](const NumberedError& error) {
        WriteJsonLine({{"TeamNumber", team}, {"error", error.number()}});
      });
}

}  // namespace

void ForEachTeam(ResultsRun& run, const std::function<void(int team)>& action) {
  const int teams = run.state.Tournament().TeamCount();
  for (int team = 1; team <= teams; ++team) {
    if (run.state.Team1().GetRecord(team)) {
      action(team);
    } else if (run.state.Player().TourIndex1stPlayerOnTeam(team) > 0) {
      NoteProblem("Team " + std::to_string(team) +
                  " is left out, with its golfers: the last team that can be read is " +
                  std::to_string(team - 1) + ".");
    }
  }
}

void ShowTeams(ResultsRun& run) {
  if (run.form == ResultsForm::kJson) {
    return ForEachTeam(run, [&](int team) { WriteJson(run, team); });
  }
  std::vector<StandingsRow> rows;
  ForEachTeam(run, [&](int team) {
    run.Try([&] { rows.push_back(TeamTotalsRow(run.state.Team1())); },
            [team] { return "Team " + std::to_string(team); }, [](const NumberedError&) {});
  });
  WriteStandings(run.form, TeamTotalsTable(std::move(rows)));
}

}  // namespace golf
