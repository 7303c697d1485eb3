#include <map>
#include <string>
#include <utility>

#include "cli/json_text.h"
#include "cli/plain_text.h"
#include "cli/problems.h"
#include "cli/results_command.h"
#include "cli/results_places.h"
#include "core/code_page.h"
#include "core/file_name.h"
#include "outlets/results/custom_entries.h"
#include "outlets/results/tournament_walk.h"
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

Json SumsAsJson(const CustomStanding::Sums& sums) {
  Json blocks = Json::array();
  for (const auto& of_block : sums) {
    Json& block = blocks.emplace_back(Json::array());
    for (const TeamBalls::Sum& sum : of_block) block.push_back(sum ? Json(*sum) : Json(nullptr));
  }
  return blocks;
}

Json StandingAsJson(const CustomStanding& standing, int round) {
  Json keys;
  for (std::size_t i = 1; i < std::size(kTiebreakNames); ++i) {
    keys[std::string(kTiebreakNames[i])] = KeyOf(standing, static_cast<Tiebreak>(i));
  }
  return {{"TeamNumber", standing.TeamNumber},
          {"TeamName", JsonText(standing.TeamName)},
          {"Scores", SumsAsJson(standing.Scores)},
          {"Points", SumsAsJson(standing.Points)},
          {"Positions", standing.Positions},
          {"PointsPositions", standing.PointsPositions},
          {"round", round},
          {"Flight", JsonText(standing.Flight)},
          {"Tiebreaks", keys}};
}

}  // namespace

ReportLayout LayoutOf(SharedState& state, const ResultsRequest& request) {
  const std::string name = TextFromUtf8(request.layout);
  if (!FitsFileName(name)) {
    throw Refusal("There is no layout " + request.layout + ".\n" + LayoutsThereAre(state));
  }
  ReadLayout read = ReadReportLayout(state.files, state.StoreDataPath, name);
  if (!read.layout) {
    throw Refusal(PlainText(read.problem) + "\n" + LayoutsThereAre(state));
  }
  if (const int replaced = LimitToChoices(*read.layout)) {
    NoteProblem(UnknownCodesText(replaced));
  }
  return *std::move(read.layout);
}

void ShowCustom(ResultsRun& run) {
  const ReportLayout layout = LayoutOf(run.state, run.request);
  CustomStandings standings(run.state, layout);
  std::map<int, Json> objects;  // by team
  ForEachTeam(
      run.state, [&](int) { standings.AddTeam(); },
      [&](int team, const std::string& who, const NumberedError& error) {
        run.AddFault(who, error);
        objects[team] = {{"TeamNumber", team}, {"error", error.number()}};
      },
      NoteProblem);
  const std::vector<CustomStanding> worked_out = standings.WorkOut();
  const ResultPlaces places(
      CustomEntries(run.state, standings, worked_out, run.request.tiebreak, false),
      {{Measure::kGross, "scores", true}, {Measure::kPoints, "points", true}}, run);
  if (run.form == ResultsForm::kJson) {
    for (const CustomStanding& standing : worked_out) {
      Json& object = objects[standing.TeamNumber] =
          StandingAsJson(standing, run.state.Tournament().RoundOr({}));
      object.update(places.KeysOf(standing.TeamNumber));
    }
    for (const auto& [team, object] : objects) WriteJsonLine(object);
    return;
  }
  StandingsTable table = CustomTable(worked_out, run.state.Tournament().RoundCount());
  places.AddTo(table);
  WriteStandings(run, table);
}

}  // namespace golf
