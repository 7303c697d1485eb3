// The command-line program as a process: its output, its problems, and its exit codes.

#include "cli/command_line_fixture.h"

namespace golf {
namespace {

TEST_F(CommandLineTest, ExitCodesAndWhereTextsGo) {
  folder.MakeFolder("empty");
  folder.Write("file", "");
  folder.Write("bad-library.txt", "open CourseTable xx\n");
  std::string cut = folder.Read("i/kvdata/kvcrs.dat").substr(0, 3226 + 100);
  cut[792 + 12 + 2] = cut[792 + 2];  // tee 2: the second hole gets the handicap of the first
  folder.MakeFolder("cut");
  folder.MakeFolder("cut/kvdata");
  folder.Write("cut/kvdata/kvcrs.dat", cut);
  const std::string in = "--install i ", results = in + "results ", course = in + "course ";
  const std::string zd = in + "scores-zd-to-kv --league 00021 --batch ";
  const std::string qb = in + "scores-qb-to-kv --tournament 1 --round ";
  const struct {
    std::string words;
    int code;
    const char* told;  // on standard output, or on standard error after a failure
  } kCases[] = {
      {"--version", 0, "golf-transfer-cli"},
      {"--help", 0, "courses-kv-to-qb"},
      {"dump --help", 0, "Example:"},
      {"", 2, "A command is required"},
      {"frob", 2, "There is no command frob"},
      {"list nothing", 2, "nothing"},
      {in + "list events", 2, "--league is required"},
      {"--now yesterday list courses", 2, "YYYY-MM-DD"},
      {"--install nowhere list courses", 1, "There is no folder nowhere."},
      {"--install \"\" courses-kv-to-qb", 1, "names no folder"},
      {in + "script i", 1, "cannot be read"},
      {"--install file courses-kv-to-qb", 1, "There is no folder file."},
      {"--install empty list courses", 1, "not there.\nName the folder"},
      {"--install empty courses-kv-to-qb", 1, "Cannot transfer data because the Kelvane"},
      {"demo i", 1, "not empty"},
      {"demo file", 1, "is a file"},
      {"dump i/kvdata/none.xyz", 1, "not the name"},
      {"dump i/kvdata/kvcrs.dat --bom", 2, "--csv"},
      {"dump i/zddata/18CRSKV.INX", 1, "There is no file"},
      {"dump i/kvdata/kvcrs.dat --record 8", 1, "no record 8"},
      {in + "dump kvdata/kvcrs.dat --record 7", 0, "Ash Ridge Municipal"},
      {results + "players", 2, "--tournament"},
      {results + "players --tournament 2", 1, "There is no tournament 2."},
      {results + "players --tournament -1", 1, "There is no tournament -1."},
      {results + "players --tournament 1 --round 3", 1, "has 2."},
      {results + "players --tournament 1", 0, "Duarte, Ines           26  "},
      {results + "custom --tournament 1", 2, "--layout"},
      {results + "custom --tournament 1 --layout no", 1,
       "There is no file no.TR1.\nLayouts: Gross and net, Two best nets."},
      {results + "teams --tournament 1", 0, "Jarvis, Kettle, Stoll, Umber"},
      {in + "script none.txt", 1, "cannot be read"},
      {in + "list events --league 0001?", 1, "There is no league 0001?."},
      {in + "list leagues", 0, "Saturday Eighteen"},
      {in + "dump zddata/0001.ZS8 --record 6", 0, "Jarvis"},
      {zd + "77 --roster CLUB18", 1, "no batch 77"},
      {zd + "077 --roster CLUB18", 1, "no batch 77"},
      {zd + "0x2 --roster CLUB18", 2, "0x2"},
      {zd + "2 --roster nine9", 1, "9 hole"},
      {zd + "2 --roster club18", 0, "...9 scores"},
      {zd + "2 --roster club18", 1, "The option --again answers otherwise.\nNothing was"},
      {zd + "2 --roster club18 --again no", 0, "...0 scores"},
      {zd + "2 --roster club18 --again yes", 0, "83 - Ruth Farrow"},
      {qb + "3 --roster club18", 1, "has 2."},
      {qb + "1 --roster club18 --course 6", 1, "no course 6"},
      {qb + "1 --roster nine9", 1, "9 hole"},
      {qb + "1 --roster club18", 0, "10 Scores"},
      {qb + "2 --roster club18 --points", 0, "Umber, Ned (No ID# match found)"},
      {course + "show 9", 1, "There is no course 9; the library holds 7."},
      {course + "show 6", 1, "Course 6 was deleted."},
      {course + "show 5", 0, "Sequence   16   14   18"},
      {course + "check", 0, "4 Heron Lake - West, tee 1 Blue: ladies' rating: 18"},
      {in + "script bad-library.txt", 3, "no course library \"xx\""},
      {in + "courses-kv-to-qb", 0, "Number of courses ADDED: 5"},
      {"courses-kv-to-qb --install i", 0, "Number of courses UPDATED: 6"},
  };
  for (const auto& c : kCases) {
    const Ended ended = Run(c.words);
    EXPECT_EQ(ended.code, c.code) << c.words;
    EXPECT_NE((c.code == 0 ? ended.out : ended.problems).find(c.told), std::string::npos)
        << c.words << ended.out << ended.problems;
    if (c.code == 0) {
      EXPECT_EQ(ended.problems, "") << c.words;
    }
  }
  const Ended torn = Run("--install cut course check --json");
  EXPECT_EQ(torn.code, 0);
  EXPECT_NE(torn.problems.find("ends with 100 bytes"), std::string::npos);
  EXPECT_NE(torn.out.find(R"("tee":2,"teeName":"White","field":"handicap","hole":2,)"
                          R"("text":"Handicap Holes)"),
            std::string::npos);
}

TEST_F(CommandLineTest, ReadingChangesNothing) {
  for (const char* made_by_looking : {"i/zddata/9CRSZD.INX", "i/qbdata/X0001.Q9T"}) {
    std::filesystem::remove(folder.Path(made_by_looking));
  }
  const auto before = AllFiles();
  for (const std::string words :
       {"list rosters", "list courses", "list courses --library qb", "list courses --library zd",
        "list qb-rosters", "list tournaments", "list leagues", "list events --league 00011",
        "course show 1", "course check --library zd", "results players --tournament 1",
        "results teams --tournament 1 --round 2",
        "results custom --tournament 1 --layout \"Two best nets\"", "dump kvdata/kvcrs.dat",
        "dump qbdata/QBGOLFER.Q9D --csv"}) {
    for (const char* form : {"", " --json"}) {
      EXPECT_EQ(Run("--install i " + words + form).code, 0) << words;
      EXPECT_TRUE(AllFiles() == before) << words;
    }
  }
}

TEST_F(CommandLineTest, ListsLeaguesAndWhatTheyHaveToPost) {
  for (const std::string name : {"00019.ZL8", "0006.ZL8", "000112.ZL8", "10011.ZL8", "00071.ZL7"}) {
    folder.Write("i/zddata/" + name, "");
  }
  std::filesystem::remove(folder.Path("i/zddata/00012.ZE8"));
  const auto leagues = JsonLines(Run("--install i list leagues --json").out);
  std::string entries;
  for (const auto& league : leagues) {
    entries += league["base"].get<std::string>() + " " + league["division"].dump() + ", ";
  }
  EXPECT_FALSE(folder.Exists("i/zddata/0006..ZL8"));
  // A longer file name counts for the league whose number it starts with.
  EXPECT_EQ(entries, "00011 0, 00011 1, 00011 0, 00011 1, 00012 2, 00019 9, 00021 0, 00021 1, ");
  EXPECT_EQ(leagues.back(), nlohmann::json::parse(R"({"base":"00021","name":"Saturday Eighteen",
      "division":1,"holes":18,"currentEvent":4})"));
  const auto events = JsonLines(Run("--install i list events --league 00012 --json").out);
  ASSERT_EQ(events.size(), 24u);
  for (std::size_t i = 0; i < 24; ++i) EXPECT_EQ(events[i]["current"], i == 11) << i;
  EXPECT_EQ(events[11]["code"], 6);
  EXPECT_EQ(events[10]["text"], "Non-Event scores after event #5 but before #6");
  EXPECT_FALSE(folder.Exists("i/zddata/00012.ZE8"));
}

TEST_F(CommandLineTest, ResultsOfPlayers) {
  folder.Remove("i/qbdata/X0001.Q9T");
  const std::string entries = folder.Read("i/qbdata/X0001.Q9G");
  const std::string results = "--install i results players --tournament 1";
  const std::string csv = Run(results + " --csv").out;
  EXPECT_EQ(Run(results + " --csv --bom").out, "\xEF\xBB\xBF" + csv);
  EXPECT_TRUE(csv.starts_with("Name,Handicap,Out,In,Total,Net,Points,Place,Flight,Sex,"));
  EXPECT_NE(csv.find("\n\"Duarte, Ines\",26,47,47,94,68,54,1,C,F,5,"), std::string::npos);
  Put("qbdata/X0001.Q9G", 7 * 3052 + 443, std::string(72, '\0'));
  EXPECT_NE(Run(results + " --csv --round 2").out.find("\n\"Idris, Omar\",+1,,,,,,,A,M,,"),
            std::string::npos);
  folder.Write("i/qbdata/X0001.Q9G", entries);
  Put("qbdata/X0001.Q9C", 180, std::string(1, '\0'));  // round 1 has no ladies' tee
  const Ended ended = Run(results + " --json");
  EXPECT_EQ(ended.code, 3);
  EXPECT_NE(ended.problems.find("Record 1, Bergstrom, Anna: Error # 9 was"), std::string::npos);
  EXPECT_TRUE(ended.problems.ends_with("6 faults.\n")) << ended.problems;
  const auto lines = JsonLines(ended.out);
  ASSERT_EQ(lines.size(), 12u);
  EXPECT_EQ(lines[0],
            nlohmann::json::parse(R"({"record":1,"NameLF":"Bergstrom, Anna","error":9})"));
  const auto& calder = lines[1];
  EXPECT_EQ(calder["TourScoreNet"].size(), 21u);
  EXPECT_EQ(calder["TourScoreNet"][20], "69");
  EXPECT_EQ(calder["TourHoleStrokes"].size(), 18u);
  EXPECT_EQ(calder["TourPBEStatsGross"]["-5"].size(), 21u);
  EXPECT_EQ(calder["TourTotalNet"], "69");
  EXPECT_EQ(calder["TourTeeTime"], "12:00 am");
  EXPECT_EQ(calder["TourCoursePlayedNumber"], 2);
  EXPECT_FALSE(folder.Exists("i/qbdata/X0001.Q9T"));
  EXPECT_EQ(folder.Read("i/qbdata/X0001.Q9G"), entries);
}

// The golfers' names hold what a spreadsheet or a terminal would obey.
TEST_F(CommandLineTest, NamesAreNoCommands) {
  Put("qbdata/QBGOLFER.Q9D", folder.Read("i/qbdata/QBGOLFER.Q9D").find("Calder"), "=\x7F+\x81 1");
  const std::string results = "--install i results players --tournament 1";
  EXPECT_NE(Run(results + " --csv").out.find("\n\"'=?+? 1, "), std::string::npos);
  EXPECT_NE(Run(results + " --json").out.find(R"("NameLF":"=\u007f+\u0081 1, )"),
            std::string::npos);
}

TEST_F(CommandLineTest, ResultsOfTeams) {
  const std::string results = "--install i --json results ";
  const auto teams = JsonLines(Run(results + "teams --tournament 1 --round 2").out);
  ASSERT_EQ(teams.size(), 3u);
  EXPECT_EQ(teams[0]["NameofPlayersOnTeam"][1], "Bergstrom, Anna");
  EXPECT_EQ(teams[0]["BestBallNet"]["2"][20], "128");
  EXPECT_EQ(teams[0]["BestTotalXofYGross"]["4"].size(), 3u);
  EXPECT_EQ(teams[0]["ScrambleNet"].size(), 21u);
  const auto custom =
      JsonLines(Run(results + "custom --tournament 1 --layout \"two best nets\"").out);
  ASSERT_EQ(custom.size(), 3u);
  EXPECT_EQ(custom[0], nlohmann::json::parse(R"({"TeamNumber":1,"TeamName":"Team #1",
      "Scores":[[64,66,130,130],[64,64,128,258]],"Points":[[60,56,116,116],[56,60,116,232]],
      "Positions":[[1,1,1,1],[1,1,1,1]],"PointsPositions":[[1,1,1,1],[1,1,1,1]],"round":1,"Flight":"A",
      "Tiebreaks":{"usga":"0130,066,043,22,08","handicap":"0130,06,06,07,07,08,08,08,08,08",
      "18-to-1":"0130,08,06,08,07,06,08,08,08,07","1-to-18":"0130,07,08,08,08,06,07,08,06,08"},
      "Places":{"all":{"scores":1,"points":1},"flight":{"scores":1,"points":1}},
      "TotalPlaces":{"all":{"scores":1,"points":1},"flight":{"scores":1,"points":1}}})"));
}

TEST_F(CommandLineTest, ShowsCoursesAndDumpsTablesInTheOrderOfTheirIndexes) {
  const auto course = JsonLines(Run("dump i/kvdata/kvcrs.dat --record 3 --json").out).at(0);
  EXPECT_EQ(course["record"], 3);
  EXPECT_EQ(course["Name"], "Millpond Short Nine");
  EXPECT_EQ(course["Rating"][1], nlohmann::json::parse("[33.2, 35.4]"));
  EXPECT_EQ(course["HoleYard"][0].size(), 18u);
  EXPECT_EQ(course["HoleYard"][0][1], 401);
  EXPECT_EQ(course["ActiveTees"], nlohmann::json::parse("[255, 255, 0, 0, 0, 0]"));
  EXPECT_EQ(course["bytes@1443"].get<std::string>().size(), 2u * 1783);
  EXPECT_EQ(JsonLines(Run("--install i list courses --library zd --json").out).at(1),
            nlohmann::json::parse(R"({"number":2,"name":"Millpond Short Nine","holes":"9F","link":0,
              "tees":[{"number":1,"name":"Yellow","abbreviation":"Y"},
                      {"number":2,"name":"Red","abbreviation":"R"}]})"));
  const std::string csv = Run("dump i/kvdata/ALLCRSKV.INX --csv").out;
  EXPECT_EQ(csv, "record,Index\n1,6\n2,7\n3,5\n4,4\n5,1\n6,3\n7,2\n");
  EXPECT_EQ(Run("dump i/kvdata/ALLCRSKV.INX --csv --bom").out, "\xEF\xBB\xBF" + csv);
}

TEST_F(CommandLineTest, HeldFilesAreExitCodeFour) {
  const HeldFile held(folder.Path("i/qbdata/qbcrs.dat"));
  ASSERT_TRUE(held.held());
  for (const char* words : {"courses-kv-to-qb", "list courses --library qb", "script -"}) {
    const Ended ended = Run(std::string("--install i ") + words,
                            "open KVCoursestoQB\nclick TransferCourses\nclose\n");
    EXPECT_EQ(ended.code, 4) << words;
    EXPECT_NE(ended.problems.find("Error # 70 was generated by "), std::string::npos);
    EXPECT_NE(ended.problems.find("crs.dat. Close that program"), std::string::npos);
  }
}

TEST_F(CommandLineTest, ScriptDrivesTheScreens) {
  const Ended ended = Script(
      "# comment\n\ncaller QB\nopen TransferMenu\nclick KVCoursestoQBButton\n"
      "show Label1\nclick TransferCourses\nshow ExitButton\n");
  EXPECT_EQ(ended.code, 0) << ended.problems;
  const auto events = JsonLines(ended.out);
  std::vector<std::string> kinds;
  for (const auto& event : events) kinds.push_back(event["event"]);
  EXPECT_EQ(kinds, std::vector<std::string>(
                       {"open", "open", "control", "message", "close", "control", "start", "end"}));
  EXPECT_EQ(events[3]["text"], "Number of courses ADDED: 5\rNumber of courses UPDATED: 2\r");
  EXPECT_EQ(events[3]["icon"], "information");
  EXPECT_EQ(events[5]["cancel"], true);
  EXPECT_EQ(events[6]["arguments"], "");
}

TEST_F(CommandLineTest, ScriptsThatCannotBeFollowed) {
  std::vector<std::string> scripts = {
      "click ExitButton", "open Nowhere", "open TipBox", "open GridSort",
      "answer \"Course transfer complete.\" Maybe\nopen KVCoursestoQB\nclick TransferCourses"};
  for (const char* on_the_menu : {"click Nothing", "show Label1(3)", "show Label1(1x)",
                                  "click Label1(1)", "open TransferMenu", "fly away",
                                  "set ExitButton x", "tab SSTab1 1", "answer \"Not closed"}) {
    scripts.push_back(std::string("open TransferMenu\n") + on_the_menu);
  }
  for (const std::string& script : scripts) {
    const Ended ended = Script(script);
    EXPECT_EQ(ended.code, 2) << script;
    EXPECT_NE(ended.problems.find("Line "), std::string::npos) << ended.problems;
  }
}

TEST_F(CommandLineTest, AnErrorEndsTheScriptAtItsLine) {
  std::filesystem::remove(folder.Path("i/kvdata/kvcrs.dat"));
  folder.MakeFolder("i/kvdata/kvcrs.dat");
  const Ended ended =
      Script("open TransferMenu\nclick KVCoursestoQBButton\nclick TransferCourses\nshow\n");
  EXPECT_EQ(ended.code, 3);
  const auto events = JsonLines(ended.out);
  EXPECT_EQ(events.back()["event"], "error");
  EXPECT_EQ(events.back()["number"], 75);
  EXPECT_EQ(events.back()["line"], 3);
}

}  // namespace
}  // namespace golf
