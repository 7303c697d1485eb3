#include "outlets/export/install_tables.h"

#include <algorithm>
#include <utility>

#include "stores/course/course_layout.h"
#include "stores/kelvane/kelvane_layouts.h"
#include "stores/quenby/quenby_layouts.h"
#include "stores/zandel/zandel_layouts.h"

namespace golf {
namespace {

using Columns = std::vector<ExportColumn>;
using Indexes = std::vector<IndexColumn>;

ExportColumn Id() { return {"id"}; }
ExportColumn Number(std::string_view name) { return {std::string(name)}; }
ExportColumn Text(std::string_view name) { return {std::string(name), ColumnType::kText}; }
ExportColumn Flag(std::string_view name) { return {std::string(name), ColumnType::kBoolean}; }
ExportColumn Link(std::string_view name, std::string_view table) {
  return {std::string(name), ColumnType::kInteger, table};
}

// Describes a table before its fields are known.
struct TableSpec {
  TableId id;
  std::string_view name;
  Columns own;
  Indexes by = {};
  std::string_view only = {};  // the only field of the table, or empty
  Columns links = {};
  std::vector<std::string_view> indexes = {};
};

// Adds the tables of a layout. The last one gets the fields that have the indexes of no other one.
// A field with the indexes of several tables is in the first one.
void AddTables(std::vector<RecordTable>& tables, const LayoutInfo& layout,
               std::vector<TableSpec> specs) {
  std::vector<RecordColumns> fields;
  for (const TableSpec& spec : specs) {
    fields.push_back(RecordColumns(layout, spec.by, fields, spec.only));
  }
  for (std::size_t i = 0; i < specs.size(); ++i) {
    TableSpec& spec = specs[i];
    RecordTable& table = tables[static_cast<std::size_t>(spec.id)];
    table = {spec.name, std::move(spec.own), std::move(spec.links), std::move(fields[i]),
             std::move(spec.indexes)};
  }
}

void AddCourseTables(std::vector<RecordTable>& tables) {
  const IndexColumn tee = {"tee", course_fields::kTees};
  AddTables(tables, InfoOfLayout<CourseLayout>(),
            {{.id = TableId::kTeeHoles,
              .name = "holes",
              .own = {Link("course_id", "courses")},
              .by = {tee, {"hole", course_fields::kHoles}},
              .links = {Link("tee_id", "tees")}},
             {.id = TableId::kTees,
              .name = "tees",
              .own = {Id(), Link("course_id", "courses")},
              .by = {tee},
              .indexes = {"course_id, tee"}},
             {.id = TableId::kCourses,
              .name = "courses",
              .own = {Id(), Text("library"), Number("number"), Flag("deleted")},
              .links = {Link("kelvane_course_id", "courses")},
              .indexes = {"library, number", "\"Name\""}}});
  AddTables(tables, InfoOfLayout<CourseIndexLayout>(),
            {{.id = TableId::kCourseLists,
              .name = "course_lists",
              .own = {Text("library"), Text("list"), Number("position")},
              .links = {Link("course_id", "courses")}}});
}

void AddKelvaneTables(std::vector<RecordTable>& tables) {
  AddTables(tables, InfoOfLayout<KelvaneSystemLayout>(),
            {{.id = TableId::kKelvaneSystem, .name = "kelvane_system", .own = {}}});
  AddTables(
      tables, InfoOfLayout<KelvaneHeaderLayout>(),
      {{.id = TableId::kKelvaneRosterTables,
        .name = "kelvane_roster_tables",
        .own = {Link("roster_id", "kelvane_rosters")},
        .by = {{"number", {1, 30}}}},
       {.id = TableId::kKelvaneRosters, .name = "kelvane_rosters", .own = {Id(), Text("name")}}});
  AddTables(tables, InfoOfLayout<KelvaneGolferLayout>(),
            {{.id = TableId::kKelvaneGolfers,
              .name = "kelvane_golfers",
              .own = {Id(), Link("roster_id", "kelvane_rosters"), Number("place"), Flag("deleted")},
              .links = {Link("half_course_id", "courses"), Link("half_tee_id", "tees")},
              .indexes = {"roster_id, place", "\"IDNum\"", "\"NameLast\", \"NameFirst\""}}});
  AddTables(tables, InfoOfLayout<KelvaneScoreLayout>(),
            {{.id = TableId::kKelvaneScores,
              .name = "kelvane_scores",
              .own = {Link("golfer_id", "kelvane_golfers"), Number("number"), Flag("deleted")},
              .links = {Link("course_id", "courses"), Link("tee_id", "tees")},
              .indexes = {"\"Date\"", "course_id, tee_id"}}});
}

void AddQuenbyTables(std::vector<RecordTable>& tables) {
  AddTables(tables, InfoOfLayout<MasterLayout>(),
            {{.id = TableId::kQuenbyMaster,
              .name = "quenby_master",
              .own = {},
              .links = {Link("active_roster_id", "quenby_rosters"),
                        Link("active_tournament_id", "tournaments")}}});
  AddTables(tables, InfoOfLayout<RosterLayout>(),
            {{.id = TableId::kQuenbyRosters,
              .name = "quenby_rosters",
              .own = {Id(), Number("number"), Flag("deleted")},
              .indexes = {"number"}}});
  AddTables(tables, InfoOfLayout<PlayerLayout>(),
            {{.id = TableId::kQuenbyGolferRosters,
              .name = "quenby_golfer_rosters",
              .own = {Link("golfer_id", "quenby_golfers")},
              .by = {{"slot", quenby_fields::kOfFour}},
              .only = "Rosters",
              .links = {Link("roster_id", "quenby_rosters")},
              .indexes = {"roster_id"}},
             {.id = TableId::kQuenbyGolfers,
              .name = "quenby_golfers",
              .own = {Id(), Number("record"), Flag("deleted")},
              .indexes = {"record", "\"IDNum\"", "\"NameLast\", \"NameFirst\""}}});
}

void AddTournamentTables(std::vector<RecordTable>& tables) {
  const IndexColumn round = {"round", quenby_fields::kByRound};
  const IndexColumn hole = {"hole", quenby_fields::kByHole};
  const ExportColumn tournament = Link("tournament_id", "tournaments");
  AddTables(
      tables, InfoOfLayout<TournamentLayout>(),
      {{.id = TableId::kTournamentTees,
        .name = "tournament_tees",
        .own = {tournament},
        .by = {{"sex", quenby_fields::kByGroup}, {"tee_group", quenby_fields::kByTeeGroup}, round},
        .links = {Link("tee_id", "tees")}},
       {.id = TableId::kTournamentRounds,
        .name = "tournament_rounds",
        .own = {tournament},
        .by = {round},
        .links = {Link("course_id", "courses")}},
       {.id = TableId::kTournamentFlights,
        .name = "tournament_flights",
        .own = {tournament},
        .by = {{"flight", quenby_fields::kByFlight}}},
       {.id = TableId::kTournamentPoints,
        .name = "tournament_points",
        .own = {tournament},
        .by = {{"difference", {-5, 11}}}},
       {.id = TableId::kTournamentPeoriaHoles,
        .name = "tournament_peoria_holes",
        .own = {tournament},
        .by = {hole}},
       {.id = TableId::kTournaments,
        .name = "tournaments",
        .own = {Id(), Number("number")},
        .indexes = {"number"}}});
  AddTables(tables, InfoOfLayout<TeamLayout>(),
            {{.id = TableId::kTeamRounds,
              .name = "team_rounds",
              .own = {Link("team_id", "teams")},
              .by = {round},
              .links = {Link("course_id", "courses")}},
             {.id = TableId::kTeams,
              .name = "teams",
              .own = {Id(), tournament, Number("number"), Flag("deleted")},
              .indexes = {"tournament_id, number"}}});
  const ExportColumn entry = Link("entry_id", "entries");
  AddTables(
      tables, InfoOfLayout<TournamentPlayerLayout>(),
      {{.id = TableId::kEntryScores, .name = "entry_scores", .own = {entry}, .by = {round, hole}},
       {.id = TableId::kEntryRounds,
        .name = "entry_rounds",
        .own = {entry},
        .by = {round},
        .links = {Link("team_id", "teams")},
        .indexes = {"team_id"}},
       {.id = TableId::kEntryTrials,
        .name = "entry_trials",
        .own = {entry},
        .by = {{"trial", {1, kTeamDrawTrials}}},
        .links = {Link("team_id", "teams")}},
       {.id = TableId::kEntries,
        .name = "entries",
        .own = {Id(), tournament, Number("record"), Flag("deleted")},
        .links = {Link("golfer_id", "quenby_golfers")},
        .indexes = {"tournament_id, record", "golfer_id"}}});
}

void AddLeagueTables(std::vector<RecordTable>& tables) {
  const IndexColumn event = {"event", zandel_fields::kByEvent};
  const ExportColumn league = Link("league_id", "leagues");
  const ExportColumn event_id = Link("event_id", "league_events");
  AddTables(tables, InfoOfLayout<LeagueControlLayout>(),
            {{.id = TableId::kLeagues,
              .name = "leagues",
              .own = {Id(), Text("base"), Text("league"), Number("division")},
              .links = {Link("current_event_id", "league_events")},
              .indexes = {"base"}}});
  AddTables(tables, InfoOfLayout<LeagueEventLayout>(),
            {{.id = TableId::kLeagueEvents,
              .name = "league_events",
              .own = {Id(), league, Number("event")},
              .indexes = {"league_id, event"}}});
  AddTables(tables, InfoOfLayout<LeagueTeamLayout>(),
            {{.id = TableId::kLeagueTeamEvents,
              .name = "league_team_events",
              .own = {Link("team_id", "league_teams")},
              .by = {event},
              .links = {event_id, Link("course_id", "courses"), Link("men_tee_id", "tees"),
                        Link("ladies_tee_id", "tees")}},
             {.id = TableId::kLeagueTeams,
              .name = "league_teams",
              .own = {Id(), league, Number("number")},
              .indexes = {"league_id, number"}}});
  const ExportColumn player = Link("player_id", "league_players");
  AddTables(tables, InfoOfLayout<LeaguePlayerLayout>(),
            {{.id = TableId::kLeaguePlayerEvents,
              .name = "league_player_events",
              .own = {player},
              .by = {event},
              .links = {event_id, Link("team_id", "league_teams")}},
             {.id = TableId::kLeaguePlayerScores,
              .name = "league_player_scores",
              .own = {player},
              .by = {{"slot", zandel_fields::kBySlot}},
              .links = {event_id}},
             {.id = TableId::kLeaguePlayers,
              .name = "league_players",
              .own = {Id(), league, Number("record"), Flag("substitute"), Flag("deleted")},
              .indexes = {"league_id, record", "\"GolferID\"", "\"LastName\", \"FirstName\""}}});
}

std::vector<RecordTable> MakeTables() {
  std::vector<RecordTable> tables(kInstallTables);
  AddCourseTables(tables);
  AddKelvaneTables(tables);
  AddQuenbyTables(tables);
  AddTournamentTables(tables);
  AddLeagueTables(tables);
  return tables;
}

}  // namespace

ExportTable RecordTable::Describe() const {
  const bool has_id = !own.empty() && own.front().name == "id";
  const auto flags = std::ranges::count(own, ColumnType::kBoolean, &ExportColumn::type);
  const std::size_t keys = own.size() - static_cast<std::size_t>(flags) + fields.by().size();
  ExportTable table{name, own, has_id ? 1 : keys, indexes};
  for (const IndexColumn& index : fields.by()) table.columns.push_back(Number(index.name));
  for (const auto* columns : {&links, &fields.columns()}) {
    table.columns.insert(table.columns.end(), columns->begin(), columns->end());
  }
  return table;
}

const std::vector<RecordTable>& InstallTables() {
  static const std::vector<RecordTable> kTables = MakeTables();
  return kTables;
}

const RecordTable& TableOf(TableId id) { return InstallTables()[static_cast<std::size_t>(id)]; }

}  // namespace golf
