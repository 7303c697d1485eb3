#include "cli/results_players.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <optional>
#include <utility>

#include "cli/plain_text.h"
#include "cli/problems.h"
#include "cli/results_command.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

// A golfer's line, and the net score by which he is placed, if he has one.
struct PlayerRow {
  std::vector<std::string> cells;  // UTF-8
  std::optional<double> net;
};

const std::vector<std::string> kHeadings = {"Name",  "Handicap", "Out",    "In",
                                            "Total", "Net",      "Points", "Place"};

std::string Utf8Of(const TextOrNumber& value) {
  const auto* text = std::get_if<std::string>(&value);
  return text != nullptr ? PlainCell(*text) : std::to_string(std::get<std::int32_t>(value));
}

// Without a score there is no more to show than the handicap.
PlayerRow RowOf(PlayerClass& player, bool decimals) {
  const RoundResults& results = player.Results();
  PlayerRow row;
  row.cells = {PlainCell(player.NameLF()), player.TourHandicap()};
  if (results.gross[kWholeRound] < 1) {
    row.cells.resize(kHeadings.size() - 1);
    return row;
  }
  for (const int sum : {kFirstNine, kSecondNine, kWholeRound}) {
    row.cells.push_back(Utf8Of(player.TourScoreGross(sum)));
  }
  row.cells.push_back(player.TourScoreNet(kWholeRound));
  row.cells.push_back(player.TourPointsNet(kWholeRound));
  const double net = results.net[kWholeRound];
  const double shown = decimals ? results.decimal_net : net;
  if (std::isfinite(shown)) row.net = shown;
  return row;
}

// The best net score first, those without a score last; equal scores share a place.
void Place(std::vector<PlayerRow>& rows) {
  std::stable_sort(rows.begin(), rows.end(), [](const PlayerRow& a, const PlayerRow& b) {
    return a.net && (!b.net || *a.net < *b.net);
  });
  std::size_t place = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i == 0 || rows[i].net != rows[i - 1].net) place = i + 1;
    rows[i].cells.push_back(rows[i].net ? std::to_string(place) : "");
  }
}

void WriteCsv(const std::vector<std::vector<std::string>>& rows) {
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i)
      std::cout << (i > 0 ? "," : "") << CsvValue(row[i]);
    std::cout << '\n';
  }
}

// Calls `action(record)` for each live entry, in file order, with its golfer in the buffers. After
// an error `failed(record, error)` is called, and the next entry follows.
template <class Action, class Failed>
void ForEachPlayer(PlayerClass& player, std::vector<NumberedError>& faults, Action action,
                   Failed failed) {
  const std::int32_t length = player.TourFileLength();
  for (std::int32_t record = 1; record <= length; ++record) {
    player.GetRecord(record, true);
    if (!player.TourPlayerExists()) continue;
    try {
      action(record);
    } catch (const NumberedError& error) {
      TellProblem("Record " + std::to_string(record) + ", " + player.NameLF() + ": " +
                  error.Report());
      faults.push_back(error);
      failed(record, error);
    }
  }
}

void WriteJson(SharedState& state, std::vector<NumberedError>& faults) {
  PlayerClass& player = state.Player();
  const bool decimals = state.Tournament().HandicapDecimalPlaces() > 0;
  const int round = state.Tournament().RoundOr({});
  const auto describe = [&](std::int32_t record) {
    Json object = {{"record", record},
                   {"round", round},
                   {"IDNum", JsonText(player.IDNum())},
                   {"NameLF", JsonText(player.NameLF())}};
    AddResults(player, decimals, round, object);
    WriteJsonLine(object);
  };
  ForEachPlayer(player, faults, describe, [&](std::int32_t record, const NumberedError& error) {
    WriteJsonLine(
        {{"record", record}, {"NameLF", JsonText(player.NameLF())}, {"error", error.number()}});
  });
}

}  // namespace

void ShowPlayers(SharedState& state, ResultsForm form, std::vector<NumberedError>& faults) {
  if (form == ResultsForm::kJson) return WriteJson(state, faults);
  const bool decimals = state.Tournament().HandicapDecimalPlaces() > 0;
  std::vector<PlayerRow> placed;
  ForEachPlayer(
      state.Player(), faults,
      [&](std::int32_t) { placed.push_back(RowOf(state.Player(), decimals)); },
      [](std::int32_t, const NumberedError&) {});
  Place(placed);
  std::vector<std::vector<std::string>> rows;
  if (form == ResultsForm::kCsv) rows.push_back(kHeadings);
  for (PlayerRow& row : placed) rows.push_back(std::move(row.cells));
  if (form == ResultsForm::kCsv) return WriteCsv(rows);
  WriteTable(kHeadings, rows);
}

}  // namespace golf
