#include "outlets/export/result_tables.h"

#include <string>
#include <string_view>
#include <utility>

#include "outlets/export/result_rows.h"
#include "outlets/results/player_values.h"
#include "outlets/results/team_values.h"

namespace golf {
namespace {

constexpr std::size_t kTablesOfKind = 4;

struct KindOfResult {
  std::string_view names[kTablesOfKind];  // of the tables, as described in result_rows.h
  std::string_view owner;                 // the column that links to the golfer's entry or the team
  std::string_view owners;                // the table of entries or teams
  std::vector<ExportColumn> described;    // the columns that describe the owner
  std::string_view key;                   // the meaning of a key
};

ExportColumn Result(const std::string& name) { return {name, ColumnType::kResult}; }

void AddTables(std::vector<ExportTable>& tables, const KindOfResult& kind,
               const ResultNames& names) {
  const ExportColumn owner{std::string(kind.owner), ColumnType::kInteger, kind.owners};
  const ExportColumn hole{"hole"};
  const ExportColumn key{std::string(kind.key)};
  const auto add = [&](std::size_t which, std::vector<ExportColumn> more,
                       const std::vector<std::string>& values) {
    ExportTable table{kind.names[which], {owner, {"round"}}, 2 + more.size()};
    table.columns.insert(table.columns.end(), more.begin(), more.end());
    if (which == 0) {
      table.columns.push_back({"tournament_id", ColumnType::kInteger, "tournaments"});
      table.columns.insert(table.columns.end(), kind.described.begin(), kind.described.end());
      table.columns.push_back({"error"});
      table.indexes = {"tournament_id, round"};
    }
    for (const std::string& value : values) table.columns.push_back(Result(value));
    tables.push_back(std::move(table));
  };
  add(0, {}, names.of_round);
  add(1, {hole}, names.of_hole);
  add(2, {key}, names.of_key);
  add(3, {hole, key}, names.of_hole_and_key);
}

KindOfResult PlayerKind() {
  return {{"results_players", "results_player_holes", "results_player_differences",
           "results_player_hole_differences"},
          "entry_id",
          "entries",
          {{"IDNum"}, {"NameLF", ColumnType::kText}},
          "difference"};
}

KindOfResult TeamKind() {
  return {{"results_teams", "results_team_holes", "results_team_balls", "results_team_hole_balls"},
          "team_id",
          "teams",
          {{"TeamNumber"}},
          "balls"};
}

std::vector<ExportTable> MakeTables() {
  // The names are those of every golfer and team, so they do not need an install.
  std::vector<ExportTable> tables;
  ResultNames players;
  VisitPlayerValues(nullptr, false, 1, players);
  AddTables(tables, PlayerKind(), players);
  ResultNames teams;
  VisitTeamValues(nullptr, 1, teams);
  AddTables(tables, TeamKind(), teams);
  tables.push_back({"results_custom",
                    {{"tournament_id", ColumnType::kInteger, "tournaments"},
                     {"layout", ColumnType::kText},
                     {"team_id", ColumnType::kInteger, "teams"},
                     {"block"},
                     {"part", ColumnType::kText},
                     {"Scores"},
                     {"Points"},
                     {"Positions"},
                     {"PointsPositions"}},
                    5});
  return tables;
}

}  // namespace

const std::vector<ExportTable>& ResultTables() {
  static const std::vector<ExportTable> kTables = MakeTables();
  return kTables;
}

}  // namespace golf
