#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "outlets/export/export_table.h"
#include "outlets/export/record_columns.h"

namespace golf {

// Names the tables that contain the records of an install, in the order of InstallTables.
enum class TableId : std::size_t {
  kCourses,
  kTees,
  kTeeHoles,
  kCourseLists,
  kKelvaneSystem,
  kKelvaneRosters,
  kKelvaneRosterTables,
  kKelvaneGolfers,
  kKelvaneScores,
  kQuenbyMaster,
  kQuenbyRosters,
  kQuenbyGolfers,
  kQuenbyGolferRosters,
  kTournaments,
  kTournamentRounds,
  kTournamentTees,
  kTournamentFlights,
  kTournamentPoints,
  kTournamentPeoriaHoles,
  kTeams,
  kTeamRounds,
  kEntries,
  kEntryRounds,
  kEntryScores,
  kEntryTrials,
  kLeagues,
  kLeagueEvents,
  kLeagueTeams,
  kLeagueTeamEvents,
  kLeaguePlayers,
  kLeaguePlayerEvents,
  kLeaguePlayerScores,
};

inline constexpr std::size_t kInstallTables =
    static_cast<std::size_t>(TableId::kLeaguePlayerScores) + 1;

// Describes a table that contains fields of records. Its columns are `own`, then the indexes of the
// fields, then `links`, then the fields.
struct RecordTable {
  std::string_view name;
  std::vector<ExportColumn> own;
  std::vector<ExportColumn> links;
  RecordColumns fields;
  std::vector<std::string_view> indexes;

  ExportTable Describe() const;
};

// Returns all tables of records. Each named element of a record is in exactly one table.
const std::vector<RecordTable>& InstallTables();

const RecordTable& TableOf(TableId id);

}  // namespace golf
