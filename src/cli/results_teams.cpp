#include "cli/results_teams.h"

#include <string>
#include <utility>

#include "cli/plain_text.h"
#include "cli/problems.h"
#include "core/number_text.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

const std::vector<std::string> kHeadings = {
    "Team", "Name",   "Players",  "Handicap",   "Out",        "In",         "Gross",
    "Net",  "Points", "Best net", "2 best net", "3 best net", "4 best net", "Place"};

// Without a score there is no more to show than who plays.
ResultsRow RowOf(TeamClass& team, bool decimals) {
  ResultsRow row;
  row.cells = {std::to_string(team.TeamNumber()), PlainCell(team.TeamName()),
               PlainCell(team.NameofPlayersOnTeam(0)), team.Handicap()};
  if (team.Results().first_scorer == 0) {
    row.cells.resize(kHeadings.size() - 1);
    return row;
  }
  for (const int sum : {kFirstNine, kSecondNine, kWholeRound}) {
    row.cells.push_back(std::to_string(team.ScoreGross(sum)));
  }
  const double net = team.ScoreNet(kWholeRound);
  row.score = net;
  row.cells.push_back(FormatNumber(static_cast<float>(net), decimals ? "0.00" : "0"));
  row.cells.push_back(std::to_string(team.PointsNet(kWholeRound)));
  for (int balls = 1; balls <= 4; ++balls) {
    row.cells.push_back(team.BestBallNet(balls, kWholeRound));
  }
  return row;
}

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
  const int teams = std::stoi(run.state.Tournament().NumTeams());
  for (int team = 1; team <= teams; ++team) {
    if (run.state.Team1().GetRecord(team)) {
      action(team);
    } else {
      TellProblem("Team " + std::to_string(team) + " is left out: a team file is read up to team " +
                  std::to_string(team - 1) + ".");
    }
  }
}

void ShowTeams(ResultsRun& run) {
  if (run.form == ResultsForm::kJson) {
    return ForEachTeam(run, [&](int team) { WriteJson(run, team); });
  }
  const bool decimals = run.state.Tournament().HandicapDecimalPlaces() > 0;
  std::vector<ResultsRow> rows;
  ForEachTeam(run, [&](int team) {
    run.Try([&] { rows.push_back(RowOf(run.state.Team1(), decimals)); },
            [team] { return "Team " + std::to_string(team); }, [](const NumberedError&) {});
  });
  Place(rows);
  WriteRows(run.form, kHeadings, std::move(rows));
}

}  // namespace golf
