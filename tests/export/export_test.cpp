// Exports random installs with the real program, and compares the tables with what the program's
// other commands write.

#include <algorithm>
#include <random>
#include <set>

#include "cli/command_line_fixture.h"
#include "export/database.h"
#include "outlets/file_kinds.h"

namespace golf {

std::string Database::Cell(sqlite3_stmt* statement, int i) {
  switch (sqlite3_column_type(statement, i)) {
    case SQLITE_NULL:
      return "null";
    case SQLITE_FLOAT:
      return nlohmann::json(sqlite3_column_double(statement, i)).dump();
    default: {
      const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
      return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement, i))};
    }
  }
}

namespace {

using Json = nlohmann::json;
using Values = std::vector<std::string>;  // sorted

// Describes the live records of a kind of file, and where the export has them.
struct Family {
  std::string_view layout;
  bool (*is_live)(const Json& record);
  std::vector<const char*> tables;
};

bool Always(const Json&) { return true; }
bool HasGolfer(const Json& record) {
  return record["GolferID"] >= 1 ||
         record["LastName"].get<std::string>().find_first_not_of(' ') != std::string::npos;
}

const std::vector<Family> kFamilies = {
    {"kelvane header", Always, {"kelvane_rosters", "kelvane_roster_tables"}},
    {"kelvane golfer",
     [](const Json& record) { return record["Status"] >= 1; },
     {"kelvane_golfers"}},
    {"kelvane system", Always, {"kelvane_system"}},
    {"quenby master", Always, {"quenby_master"}},
    {"quenby roster",
     [](const Json& record) { return record["IsRosterActive"] != 0; },
     {"quenby_rosters"}},
    {"quenby golfer",
     [](const Json& record) { return record["IDNum"] >= 1; },
     {"quenby_golfers", "quenby_golfer_rosters"}},
    {"course",
     [](const Json& record) { return record["activeflag"] != 0; },
     {"courses", "tees", "holes"}},
    {"tournament",
     Always,
     {"tournaments", "tournament_rounds", "tournament_tees", "tournament_flights",
      "tournament_points", "tournament_peoria_holes"}},
    {"tournament player",
     [](const Json& record) { return record["TourRosterRecordPointer"] >= 1; },
     {"entries", "entry_rounds", "entry_scores", "entry_trials"}},
    {"league control", Always, {"leagues"}},
    {"league player",
     HasGolfer,
     {"league_players", "league_player_events", "league_player_scores"}},
    {"league team", Always, {"league_teams", "league_team_events"}},
    {"league event", Always, {"league_events"}}};

// A value that a row may lack.
bool IsEmpty(const std::string& value) {
  return value == "0" || value == "0.0" || value == "null" || value == "-0.0" ||
         value.find_first_not_of(std::string(" \0", 2)) == std::string::npos;
}

std::string TextOf(const Json& value) {
  return value.is_string() ? value.get<std::string>() : value.dump();
}

// Adds the elements of a field to the values, except for empty ones.
void AddElements(const Json& field, const Field& described, Values& values) {
  if (field.is_array()) {
    for (const Json& element : field) AddElements(element, described, values);
    return;
  }
  std::string value = TextOf(field);
  if (described.type == FieldType::kSingle && field.is_number()) {
    value = Json(field.get<double>()).dump();
  }
  if (!IsEmpty(value)) values.push_back(std::move(value));
}

// Converts an amount such as "-12.5" to ten-thousandths, as `dump` shows it.
std::string TenThousandths(std::string amount) {
  const std::size_t point = amount.find('.');
  amount.append(4 - (amount.size() - point - 1), '0');
  amount.erase(point, 1);
  const bool is_negative = amount[0] == '-';
  const std::size_t digits = amount.find_first_not_of("-0");
  return digits == std::string::npos ? "0" : (is_negative ? "-" : "") + amount.substr(digits);
}

class ExportTest : public CommandLineTest {
 protected:
  std::string Export(const std::string& words) {
    const Ended ended = In("export " + words);
    EXPECT_EQ(ended.code, 0) << ended.problems;
    return ended.out;
  }

  // Replaces random named fields of random records by random bytes. Keeps the fields that decide
  // whether a record is live, and the counts of leagues.
  void Damage(std::uint32_t seed) {
    std::mt19937 random(seed);
    const std::set<std::string_view> kept = {"Status",        "activeflag",    "IsRosterActive",
                                             "PlayerFactor1", "PlayerFactor2", "LastSubRecord"};
    for (auto& [name, bytes] : AllFiles()) {
      const auto layout = LayoutOfFile(name.substr(name.rfind('/') + 1));
      if (!layout || layout->name == "course index") continue;
      std::string damaged = bytes;
      const std::size_t records = bytes.size() / layout->length;
      for (std::size_t i = 0; records > 0 && i < 40 + 4 * records; ++i) {
        const Field& field = layout->fields[random() % layout->fields.size()];
        if (kept.contains(field.name)) continue;
        const std::size_t at =
            (random() % records) * layout->length + field.OffsetOfNth(random() % field.Count());
        for (std::size_t b = 0; b < field.width; ++b) damaged[at + b] = static_cast<char>(random());
      }
      folder.Write("i/" + name, damaged);
    }
  }

  // Returns the live records of all files of a family.
  std::vector<Json> LiveRecords(const Family& family) {
    std::vector<Json> live;
    std::size_t golfers = 0;  // of Quenby
    for (const auto& [name, bytes] : AllFiles()) {
      if (name.ends_with("QBGOLFER.Q9D")) golfers = bytes.size() / 1867;
    }
    for (const auto& [name, bytes] : AllFiles()) {
      const auto layout = LayoutOfFile(name.substr(name.rfind('/') + 1));
      if (!layout || layout->name != family.layout) continue;
      for (Json& record : JsonLines(In("--json dump i/" + name).out)) {
        const bool is_substitute = name.ends_with(".ZS8") || name.ends_with(".zs8");
        if (is_substitute && record["record"] < 6) continue;
        const auto pointer = record.find("TourRosterRecordPointer");
        if (pointer != record.end() && *pointer > golfers) continue;
        if (family.is_live(record)) live.push_back(std::move(record));
      }
    }
    return live;
  }

  // Returns the values of the columns of a field, and checks that one table has them.
  static Values Exported(Database& database, const Family& family, const Field& field) {
    Values values;
    int tables = 0;
    for (const char* const table : family.tables) {
      int columns = 0;
      for (const auto& row : database.Rows("pragma table_info(" + std::string(table) + ")")) {
        const std::string& column = row[1];
        const bool is_element = column.starts_with(std::string(field.name) + "_");
        if (column != field.name && !is_element) continue;
        if (column.ends_with("_hex")) continue;
        ++columns;
        for (std::string& value :
             database.Column("select \"" + column + "\" from " + std::string(table))) {
          if (field.type == FieldType::kCurrency) value = TenThousandths(value);
          if (!IsEmpty(value)) values.push_back(std::move(value));
        }
      }
      tables += columns > 0 ? 1 : 0;
    }
    EXPECT_EQ(tables, 1) << field.name;
    return values;
  }
};

// Dates and times have another form in the export, and flags are 1 or 0. Only their number counts
// here; see shown_value_test.cpp.
bool HasOtherForm(const Field& field) {
  return field.type == FieldType::kDate || field.name == "EventDate" || field.name == "TourFlags" ||
         field.name == "PrintPlayer" || field.name == "Cart";
}

bool IsFlag(const Field& field) {
  const std::set<std::string_view> flags = {
      "MarkedToPrint", "IsRosterActive",  "IndextoHandicap",  "HandicapDecimalPlaces",
      "RCGAESC",       "ScoreEntryTotal", "ShowTeamsonSheet", "TourCart",
      "activeflag",    "ActiveTees"};
  return flags.contains(field.name) || field.name.ends_with("SortedHow");
}

TEST_F(ExportTest, RandomInstallsHaveEachNamedFieldOnce) {
  for (const std::uint32_t seed : {1u, 2u}) {
    MakeDemo();
    Damage(seed);
    const Tree before = AllFiles();
    In("export --to e.sqlite --replace");  // some results cannot be calculated
    EXPECT_TRUE(AllFiles() == before);
    Database database(folder.Path("e.sqlite"));
    EXPECT_EQ(database.Text("pragma foreign_key_check"), "");
    EXPECT_EQ(database.Text("pragma integrity_check"), "ok\n");
    for (const Family& family : kFamilies) {
      const std::vector<Json> records = LiveRecords(family);
      EXPECT_EQ(database.Text("select count(*) from " + std::string(family.tables[0])),
                std::to_string(records.size()) + "\n")
          << family.tables[0];
      const auto kind = std::ranges::find_if(
          FileKinds(), [&](const FileKind& known) { return known.layout.name == family.layout; });
      for (const Field& field : kind->layout.fields) {
        if (field.name.empty()) continue;
        Values wanted;
        for (const Json& record : records) {
          AddElements(record[std::string(field.name)], field, wanted);
        }
        Values found = Exported(database, family, field);
        if (HasOtherForm(field)) continue;
        if (IsFlag(field)) {
          EXPECT_EQ(found, Values(wanted.size(), "1")) << family.layout << ' ' << field.name;
          continue;
        }
        std::ranges::sort(wanted);
        std::ranges::sort(found);
        EXPECT_EQ(found, wanted) << family.layout << ' ' << field.name;
      }
    }
  }
}

// Each row has a query and the same figures of another command.
TEST_F(ExportTest, TheSumsAreThoseOfTheOtherCommands) {
  Export("--to e.sqlite");
  Database database(folder.Path("e.sqlite"));
  const auto listed = [&](const std::string& words, const std::vector<const char*>& keys) {
    std::string text;
    for (const Json& object : JsonLines(In("--json " + words).out)) {
      if (object.value("division", 1) == 0) continue;  // the league as a whole
      for (const char* const key : keys) text += (key == keys[0] ? "" : "|") + TextOf(object[key]);
      text += "\n";
    }
    return text;
  };
  EXPECT_EQ(database.Text("select r.name, r.\"Holes\", count(*) from kelvane_rosters r "
                          "join kelvane_golfers g on g.roster_id = r.id group by r.id"),
            listed("list rosters", {"name", "holes", "golfers"}));
  EXPECT_EQ(database.Text("select roster, \"ClubName\", count(*) from quenby_roster_golfers "
                          "group by roster"),
            listed("list qb-rosters", {"number", "name", "golfers"}));
  for (const auto& [library, option] :
       {std::pair("kelvane", "kv"), {"quenby", "qb"}, {"zandel", "zd"}}) {
    EXPECT_EQ(database.Text("select c.number, c.\"Name\", ifnull(k.number, 0) from courses c "
                            "left join courses k on k.id = c.kelvane_course_id "
                            "join course_lists l on l.course_id = c.id and l.list = 'all' "
                            "where c.library = '" +
                            std::string(library) + "' order by c.number"),
              listed("list courses --library " + std::string(option), {"number", "name", "link"}));
  }
  EXPECT_EQ(database.Text("select t.number, t.\"Name\", t.\"NumRounds\", count(*) "
                          "from tournaments t join entries e on e.tournament_id = t.id "
                          "group by t.id"),
            listed("list tournaments", {"number", "name", "rounds", "players"}));
  EXPECT_EQ(database.Text("select base, \"LeagueName\", \"LeagueHoles\", \"CurrentEvent\" "
                          "from leagues"),
            listed("list leagues", {"base", "name", "holes", "currentEvent"}));
  EXPECT_EQ(database.Text("select count(*) from golfer_scores"),
            database.Text("select sum(\"ScoreCounter_1\") from kelvane_golfers"));
}

// A golfer whose net is below 0 is first, and one with a score below 0 has no place.
TEST_F(ExportTest, TheStandingsHaveThePlacesOfTheCommand) {
  const char* const file = "qbdata/X0001.Q9G";
  Put(file, 2 * 3052 + 86, std::string("\0\0\xF0\x42", 4));  // a handicap of 120 in round 1
  for (std::size_t hole = 0; hole < 18; ++hole) Put(file, 443 + 2 * hole, "\xFE\xFF");
  Export("--to e.sqlite");
  std::istringstream csv(In("results players --tournament 1 --round 1 --csv").out);
  std::string wanted;
  std::string line;
  for (std::getline(csv, line); std::getline(csv, line);) {
    std::istringstream cells(line.substr(line.find('"', 1) + 2));
    std::string place;
    for (int column = 0; column < 7; ++column) std::getline(cells, place, ',');
    if (!place.empty()) wanted += line.substr(1, line.find('"', 1) - 1) + "|" + place + "\n";
  }
  EXPECT_NE(wanted.find("|10\n"), std::string::npos) << wanted;
  EXPECT_EQ(Database(folder.Path("e.sqlite"))
                .Text("select \"NameLF\", place from tournament_standings "
                      "where round = 1 and place > 0 order by place, entry_id"),
            wanted);
}

// Compares the tables of results with the values of `results --json`.
TEST_F(ExportTest, ResultsAreThoseOfTheCommand) {
  Export("--to e.sqlite");
  Database database(folder.Path("e.sqlite"));
  const struct {
    const char* what;
    std::string table;   // of rounds
    std::string holes;   // of holes
    std::string keys;    // of keys
    const char* owner;   // the column of the table that identifies an object
    const char* number;  // the key of the JSON object that identifies it
    const char* of;      // the table of the owners, with its number
  } kKinds[] = {
      {"players", "results_players", "results_player_holes", "results_player_hole_differences",
       "entry_id", "record", "select record from entries where id = "},
      {"teams", "results_teams", "results_team_holes", "results_team_hole_balls", "team_id",
       "TeamNumber", "select number from teams where id = "}};
  int compared = 0;
  for (const auto& kind : kKinds) {
    for (const std::string round : {"1", "2"}) {
      for (const Json& object : JsonLines(
               In("--json results " + std::string(kind.what) + " --tournament 1 --round " + round)
                   .out)) {
        const std::string where = " from " + kind.table + " r where r.round = " + round + " and (" +
                                  kind.of + "r." + kind.owner + ") = " + object[kind.number].dump();
        for (const auto& item : object.items()) {
          const std::string& name = item.key();
          const Json& value = item.value();
          // The tables of results have no columns for the flight, the sex and the places.
          const bool is_no_column = name == "record" || name == "round" || name == "TourFlight" ||
                                    name == "sex" || name.ends_with("Places");
          if (is_no_column) continue;
          const auto check = [&](const std::string& query, const Json& wanted) {
            EXPECT_EQ(database.Text(query), TextOf(wanted) + "\n") << query;
            ++compared;
          };
          const auto column = [&](const std::string& end) {
            return "select \"" + name + end + "\"" + where;
          };
          const auto hole = [&](const std::string& table, const std::string& more) {
            const std::string owner = kind.owner;
            return "select ifnull((select h.\"" + name + "\" from " + table + " h where h." +
                   owner + " = r." + owner + " and h.round = r.round and h.hole = " + more +
                   "), '0')" + where;
          };
          if (!value.is_structured()) {
            check(column(""), value);
          } else if (value.is_array() && value.size() == 9) {
            for (std::size_t i = 0; i < 9; ++i) check(column("_" + std::to_string(i)), value[i]);
          } else if (value.is_array() && value.size() != 18) {
            const std::size_t sums = value.size() - 3;
            check(column("_out"), value[sums]);
            check(column("_in"), value[sums + 1]);
            check(column("_total"), value[sums + 2]);
          }
          if (value.is_array() && value.size() >= 18) check(hole(kind.holes, "3"), value[2]);
          if (value.is_object() && value.begin()->size() == 21) {
            for (const auto& [key, values] : value.items()) {
              const std::string column_of_key = kind.number[0] == 'r' ? "difference" : "balls";
              check(hole(kind.keys, "4 and h." + column_of_key + " = " + key), values[3]);
            }
          }
        }
      }
    }
  }
  EXPECT_GT(compared, 2000);
}

// Text of any bytes comes back from each format.
TEST_F(ExportTest, TextsOfAnyBytesComeBack) {
  std::string names;
  for (int code = 0; code < 256; ++code) names += static_cast<char>(code);
  const std::string texts[] = {"=1+1", "'=x", "a\"b,c", "-two", "\t=3", "@d", "+5", "''x"};
  for (const std::string& text : texts) names += text + std::string(16 - text.size(), ' ');
  const std::string file = "i/qbdata/QBGOLFER.Q9D";
  std::string golfers = folder.Read(file);
  constexpr std::size_t kLength = 1867;
  golfers.resize(kLength * 9);
  for (std::size_t i = 0; i + 16 <= names.size(); i += 16) {
    std::string golfer(kLength, '\0');
    golfer[4] = 1;
    golfers += golfer.replace(27, 16, names, i, 16);
  }
  folder.Write(file, golfers);
  Values wanted;
  for (const Json& golfer : JsonLines(In("--json dump " + file).out)) {
    if (golfer["IDNum"] == 1) wanted.push_back(golfer["NameLast"]);
  }
  ASSERT_EQ(wanted.size(), 24u);
  Export("--to e.sqlite");
  Export("--to e.jsonl");
  Export("--to e --bom");
  EXPECT_EQ(Database(folder.Path("e.sqlite"))
                .Column("select \"NameLast\" from quenby_golfers order by id"),
            wanted);
  Values lines;
  for (const Json& golfer : JsonLines(folder.Read("e.jsonl/quenby_golfers.jsonl"))) {
    lines.push_back(golfer["NameLast"]);
  }
  EXPECT_EQ(lines, wanted);
  const std::string csv = folder.Read("e/quenby_golfers.csv");
  EXPECT_TRUE(csv.starts_with("\xEF\xBB\xBFid,record,deleted,PrintPlayer,"));
  const std::string shown[] = {"'=1+1", "''=x", "\"a\"\"b,c\"", "'-two",
                               "'\t=3", "'@d",  "+5",           "''x"};
  for (const std::string& text : shown) {
    EXPECT_NE(csv.find(",\"\"," + text + ",0,"), std::string::npos) << text;
  }
}

TEST_F(ExportTest, ATargetIsReplacedOnlyOnRequest) {
  folder.Write("there.sqlite", "old");
  folder.Write("open.sqlite-wal", "");
  folder.Write("notes.txt", "old");
  folder.Write("kept/notes.txt", "old");
  const struct {
    const char* words;
    int code;
    const char* problem;
  } kCases[] = {
      {"there.sqlite", 1, "With --replace, the export replaces it."},
      {"kept", 1, "It is not a folder of an earlier export"},
      {"kept --replace", 1, "It is not a folder of an earlier export"},
      {"kept/x.sqlite --format csv", 0, ""},
      {"there.sqlite --format csv --replace", 1, "It is not a folder of an earlier export"},
      {"open.sqlite --replace", 1, "another program has the database open"},
      {"there.sqlite --replace", 0, ""},
      {"notes.txt --format sqlite --replace", 1, "It is no file with the extension .sqlite"},
      {"missing/x.sqlite", 1, "There is no folder missing."},
      {"i/kvdata/x", 1, "is in the folder kvdata, which contains golf data"},
      {"KVData", 1, "has the name of golf data"},
      {"club.kv5 --format sqlite", 1, "has the name of golf data"},
      {"i/kvdata/../x.sqlite", 0, ""},
      {".", 1, "is no name"},
  };
  const auto files = [&] {
    Tree all = folder.Files();
    for (const char* const stream : {"in", "out", "problems"}) all.erase(stream);
    return all;
  };
  for (const auto& row : kCases) {
    const Tree before = files();
    const Ended ended = In("export --to " + std::string(row.words));
    EXPECT_EQ(ended.code, row.code) << row.words << ": " << ended.problems;
    EXPECT_NE(ended.problems.find(row.problem), std::string::npos)
        << row.words << ": " << ended.problems;
    if (row.code != 0) {
      EXPECT_TRUE(files() == before) << row.words;
    }
  }
  EXPECT_EQ(folder.Read("kept/notes.txt"), "old");
  for (const auto& [name, bytes] : files()) {
    EXPECT_EQ(name.find(".new-"), std::string::npos) << name;
  }
}

TEST_F(ExportTest, TheScreenWritesTheSameFiles) {
  for (const char* const side : {"a", "b"}) folder.MakeFolder(side);
  const auto install = AllFiles();
  const char* const kFormats[] = {"sqlite", "csv", "jsonl"};
  for (int i = 0; i < 3; ++i) {
    for (const bool with_deleted : {false, true}) {
      const std::string format = kFormats[i];
      SCOPED_TRACE(format);
      Export("--replace --to a/of." + format + " --format " + format +
             (with_deleted ? " --with-deleted" : ""));
      const Ended ended = Script(
          "open ExportData\nselect FormatList " + std::to_string(i) + "\nset TargetText \"" +
          folder.Path("b/of." + format) + "\"\ncheck DeletedCheck " +
          (with_deleted ? "on" : "off") +
          "\ncheck ReplaceCheck on\nclick ExportButton\nshow MessageLabel\nshow SummaryLabel\n");
      EXPECT_NE(ended.out.find("The golf data was exported to "), std::string::npos) << ended.out;
    }
  }
  EXPECT_FALSE(folder.Files("a").empty());
  EXPECT_TRUE(folder.Files("a") == folder.Files("b"));
  EXPECT_TRUE(AllFiles() == install);
}

TEST_F(ExportTest, DeletedRecordsComeOnRequest) {
  const auto count = [&](const std::string& words) {
    Export("--to e.sqlite --replace " + words);
    return Database(folder.Path("e.sqlite"))
        .Text(
            "select (select count(*) from teams), (select count(*) from teams where deleted), "
            "(select count(*) from courses), (select count(*) from courses where deleted), "
            "(select count(*) from kelvane_scores where golfer_id = 1)");
  };
  Put("kvdata/CLUB18.kvg", 455, "\3");  // the first golfer has three scores
  ASSERT_EQ(Script("open CourseTable KV\nrow CourseGrid 1\nanswer \"DELETE COURSE?\" YES\n"
                   "click DeleteCourseButton\n")
                .code,
            0);
  EXPECT_EQ(count(""), "3|0|10|0|3\n");
  EXPECT_EQ(count("--with-deleted"), "200|197|12|2|18\n");
}

}  // namespace
}  // namespace golf
