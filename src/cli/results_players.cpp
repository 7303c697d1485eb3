#include <cmath>
#include <utility>

#include "cli/results_command.h"
#include "cli/results_json.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

const std::vector<std::string> kHeadings = {"Name",  "Handicap", "Out",    "In",
                                            "Total", "Net",      "Points", "Place"};

std::string TextOf(const TextOrNumber& value) {
  const auto* text = std::get_if<std::string>(&value);
  return text != nullptr ? *text : std::to_string(std::get<std::int32_t>(value));
}

// Returns the row of a golfer. It has only a name and a handicap if the golfer has no score.
StandingsRow RowOf(PlayerClass& player, bool decimals) {
  const RoundResults& results = player.Results();
  StandingsRow row;
  row.cells = {player.NameLF(), player.TourHandicap()};
  if (results.gross[kWholeRound] < 1) {
    row.cells.resize(kHeadings.size() - 1);
    return row;
  }
  for (const int sum : {kFirstNine, kSecondNine, kWholeRound}) {
    row.cells.push_back(TextOf(player.TourScoreGross(sum)));
  }
  row.cells.push_back(player.TourScoreNet(kWholeRound));
  row.cells.push_back(player.TourPointsNet(kWholeRound));
  const double net = results.net[kWholeRound];
  const double shown = decimals ? results.decimal_net : net;
  if (std::isfinite(shown)) row.rank = shown;
  return row;
}

// Reads each entry that is not deleted, in the order of the file, and calls `action(record)`. After
// an error, calls `failed(record, error)` and continues.
template <class Action, class Failed>
void ForEachPlayer(ResultsRun& run, Action action, Failed failed) {
  PlayerClass& player = run.state.Player();
  const std::int32_t length = player.TourFileLength();
  for (std::int32_t record = 1; record <= length; ++record) {
    player.GetRecord(record, true);
    if (!player.TourPlayerExists()) continue;
    run.Try([&] { action(record); },
            [&] { return "Record " + std::to_string(record) + ", " + player.NameLF(); },
            [&](const NumberedError& error) { failed(record, error); });
  }
}

void WriteJson(ResultsRun& run) {
  PlayerClass& player = run.state.Player();
  const bool decimals = run.state.Tournament().HandicapDecimalPlaces() > 0;
  const int round = run.state.Tournament().RoundOr({});
  const auto describe = [&](std::int32_t record) {
    Json object = {{"record", record},
                   {"round", round},
                   {"IDNum", JsonText(player.IDNum())},
                   {"NameLF", JsonText(player.NameLF())}};
    AddResults(player, decimals, round, object);
    WriteJsonLine(object);
  };
  ForEachPlayer(run, describe, [&](std::int32_t record, const NumberedError& error) {
    WriteJsonLine(
        {{"record", record}, {"NameLF", JsonText(player.NameLF())}, {"error", error.number()}});
  });
}

}  // namespace

void ShowPlayers(ResultsRun& run) {
  if (run.form == ResultsForm::kJson) return WriteJson(run);
  const bool decimals = run.state.Tournament().HandicapDecimalPlaces() > 0;
  std::vector<StandingsRow> rows;
  ForEachPlayer(
      run, [&](std::int32_t) { rows.push_back(RowOf(run.state.Player(), decimals)); },
      [](std::int32_t, const NumberedError&) {});
  AddPlaces(rows);
  WriteStandings(run.form, {kHeadings, std::move(rows)});
}

}  // namespace golf
