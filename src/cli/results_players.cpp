#include <utility>

#include "cli/results_command.h"
#include "cli/results_json.h"
#include "cli/results_places.h"
#include "outlets/results/entry_reader.h"
#include "outlets/results/tournament_walk.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

const std::vector<PlacedMeasure> kMeasuresOfPlayers = {{Measure::kGross, "gross", true},
                                                       {Measure::kNet, "net", true},
                                                       {Measure::kPoints, "points", true},
                                                       {Measure::kQuota, "quota", true}};

// Returns the row of a golfer. A golfer without a score has only a name and a handicap.
StandingsRow RowOf(const ResultEntry& entry) {
  const auto& scores = entry.scores[Span::kRound];
  StandingsRow row{entry.number, {entry.name, entry.handicap}, entry.exact_net};
  row.cells.insert(row.cells.end(), scores[Measure::kGross].parts.begin(),
                   scores[Measure::kGross].parts.end());
  row.cells.resize(4);
  for (const Measure measure : {Measure::kGross, Measure::kNet, Measure::kPoints}) {
    row.cells.push_back(scores[measure].total);
  }
  return row;
}

void WriteJson(ResultsRun& run) {
  PlayerClass& player = run.state.Player();
  const bool decimals = run.state.Tournament().HandicapDecimalPlaces() > 0;
  const int round = run.state.Tournament().RoundOr({});
  // ForEachPlayer below reads the results again and reports the errors.
  const ResultPlaces places(ReadPlayers({run.state,
                                         run.request.tiebreak,
                                         false,
                                         [](const std::string&, const NumberedError&) {},
                                         {}}),
                            kMeasuresOfPlayers, run);
  const auto describe = [&](std::int32_t record) {
    ResultsObject object({{"record", record},
                          {"round", round},
                          {"IDNum", JsonText(player.IDNum())},
                          {"NameLF", JsonText(player.NameLF())}});
    object.AddResults(player, decimals, round);
    object.Add(
        {{"TourFlight", JsonText(player.TourFlight(round))}, {"sex", JsonText(player.sex())}});
    object.Add(places.KeysOf(record));
    object.Write();
  };
  ForEachPlayer(
      run.state, describe,
      [&](std::int32_t record, const std::string& who, const NumberedError& error) {
        run.AddFault(who, error);
        WriteJsonLine(
            {{"record", record}, {"NameLF", JsonText(player.NameLF())}, {"error", error.number()}});
      });
}

}  // namespace

void ShowPlayers(ResultsRun& run) {
  if (run.form == ResultsForm::kJson) return WriteJson(run);
  const ResultPlaces places(ReadPlayers(run.Entries()), kMeasuresOfPlayers, run);
  StandingsTable table{{"Name", "Handicap", "Out", "In", "Total", "Net", "Points", "Place"}, {}};
  for (const ResultEntry& entry : places.entries()) table.rows.push_back(RowOf(entry));
  AddPlaces(table.rows);
  places.AddTo(table);
  WriteStandings(run, table);
}

}  // namespace golf
