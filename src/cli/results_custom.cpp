#include <map>
#include <string>
#include <utility>

#include "cli/json_text.h"
#include "cli/plain_text.h"
#include "cli/problems.h"
#include "cli/results_command.h"
#include "cli/results_teams.h"
#include "core/code_page.h"
#include "core/file_name.h"
#include "scoring/standings_table.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

std::string LayoutsThereAre(SharedState& state) {
  std::string names;
  for (const std::string& name : ListReportLayouts(state.files, state.StoreDataPath)) {
    names += (names.empty() ? "" : ", ") + PlainCell(name);
  }
  return "Layouts: " + (names.empty() ? "none" : names) + ".";
}

ReportLayout LayoutOf(ResultsRun& run) {
  if (!FitsFileName(TextFromUtf8(run.request.layout))) {
    throw Refusal("There is no layout " + run.request.layout + ".\n" + LayoutsThereAre(run.state));
  }
  const std::string path =
      run.state.StoreDataPath + TextFromUtf8(run.request.layout) + std::string(kLayoutExtension);
  ReadLayout read = ReadReportLayout(run.state.files, path);
  if (!read.layout) {
    throw Refusal(PlainText(read.problem) + "\n" + LayoutsThereAre(run.state));
  }
  if (const int replaced = LimitToChoices(*read.layout)) {
    NoteProblem(UnknownCodesText(replaced));
  }
  return *std::move(read.layout);
}

Json SumsAsJson(const CustomStanding::Sums& sums) {
  Json blocks = Json::array();
  for (const auto& of_block : sums) {
    Json& block = blocks.emplace_back(Json::array());
    for (const TeamBalls::Sum& sum : of_block) block.push_back(sum ? Json(*sum) : Json(nullptr));
  }
  return blocks;
}

Json StandingAsJson(const CustomStanding& standing) {
  return {{"TeamNumber", standing.TeamNumber},     {"TeamName", JsonText(standing.TeamName)},
          {"Scores", SumsAsJson(standing.Scores)}, {"Points", SumsAsJson(standing.Points)},
          {"Positions", standing.Positions},       {"PointsPositions", standing.PointsPositions}};
}

}  // namespace

void ShowCustom(ResultsRun& run) {
  const ReportLayout layout = LayoutOf(run);
  CustomStandings standings(run.state, layout);
  std::map<int, Json> objects;  // by team
  ForEachTeam(run, [&](int team) {
    run.Try([&] { standings.AddTeam(); }, [team] { return "Team " + std::to_string(team); },
            [&](const NumberedError& error) {
              objects[team] = {{"TeamNumber", team}, {"error", error.number()}};
            });
  });
  const std::vector<CustomStanding> worked_out = standings.WorkOut();
  if (run.form == ResultsForm::kJson) {
    for (const CustomStanding& standing : worked_out) {
      objects[standing.TeamNumber] = StandingAsJson(standing);
    }
    for (const auto& [team, object] : objects) WriteJsonLine(object);
    return;
  }
  StandingsTable table = CustomTable(worked_out, run.state.Tournament().RoundCount());
  WriteStandings(run.form, std::move(table));
}

}  // namespace golf
