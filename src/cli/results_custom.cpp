#include <string>
#include <utility>

#include "cli/json_text.h"
#include "cli/plain_text.h"
#include "cli/problems.h"
#include "cli/results_command.h"
#include "cli/results_teams.h"
#include "core/code_page.h"
#include "scoring/custom_standings.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

ReportLayout ReadLayout(ResultsRun& run) {
  ReportLayout layout;
  std::string problem;
  const std::string path = run.state.StoreDataPath + TextFromUtf8(run.request.layout);
  if (!ReadReportLayout(run.state.files, path, layout, problem)) {
    throw Refusal(PlainText(problem));
  }
  if (const int replaced = LimitToChoices(layout)) {
    TellProblem(std::to_string(replaced) +
                " codes of the layout are not known; the first choice of their list stands for "
                "each.");
  }
  return layout;
}

Json SumsAsJson(const CustomStanding::Sums& sums) {
  Json blocks = Json::array();
  for (const auto& of_block : sums) {
    Json& block = blocks.emplace_back(Json::array());
    for (const TeamBalls::Sum& sum : of_block) block.push_back(sum ? Json(*sum) : Json(nullptr));
  }
  return blocks;
}

void WriteJson(const std::vector<CustomStanding>& standings) {
  for (const CustomStanding& standing : standings) {
    WriteJsonLine({{"TeamNumber", standing.TeamNumber},
                   {"TeamName", JsonText(standing.TeamName)},
                   {"Scores", SumsAsJson(standing.Scores)},
                   {"Points", SumsAsJson(standing.Points)},
                   {"Positions", standing.Positions},
                   {"PointsPositions", standing.PointsPositions}});
  }
}

std::string Shown(const TeamBalls::Sum& sum) { return sum ? std::to_string(*sum) : ""; }

std::vector<std::string> Headings(int rounds) {
  std::vector<std::string> headings = {"Team", "Name", "Players"};
  for (int round = 1; round <= rounds; ++round) {
    const std::string of_round = " (Rnd #" + std::to_string(round) + ")";
    for (const char* sum : {"Front", "Back", "Total"}) headings.push_back(sum + of_round);
  }
  headings.insert(headings.end(), {"Total", "Total Points", "Place"});
  return headings;
}

// Ranked by the running total of the last round.
ResultsRow RowOf(const CustomStanding& standing) {
  ResultsRow row;
  row.cells = {std::to_string(standing.TeamNumber), PlainCell(standing.TeamName),
               PlainCell(standing.golfers)};
  for (const auto& block : standing.Scores) {
    for (std::size_t i = 0; i < 3; ++i) row.cells.push_back(Shown(block[i]));
  }
  const TeamBalls::Sum& total = standing.Scores.back().back();
  row.cells.push_back(Shown(total));
  row.cells.push_back(Shown(standing.Points.back().back()));
  row.cells.push_back(total ? std::to_string(standing.Positions.back().back()) : "");
  row.score = standing.Positions.back().back();
  return row;
}

}  // namespace

void ShowCustom(ResultsRun& run) {
  const ReportLayout layout = ReadLayout(run);
  CustomStandings standings(run.state, layout);
  ForEachTeam(run, [&](int team) {
    run.Try([&] { standings.AddTeam(); }, [team] { return "Team " + std::to_string(team); },
            [&](const NumberedError& error) {
              if (run.form != ResultsForm::kJson) return;
              WriteJsonLine({{"TeamNumber", team}, {"error", error.number()}});
            });
  });
  const std::vector<CustomStanding> worked_out = standings.WorkOut();
  if (run.form == ResultsForm::kJson) return WriteJson(worked_out);
  std::vector<ResultsRow> rows;
  for (const CustomStanding& standing : worked_out) rows.push_back(RowOf(standing));
  SortByScore(rows);
  WriteRows(run.form, Headings(std::stoi(run.state.Tournament().NumRounds())), std::move(rows));
}

}  // namespace golf
