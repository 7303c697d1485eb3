// The preview of a transfer and the history on screen, on the demonstration and with the real
// program.

#include "cli/command_line_fixture.h"

namespace golf {
namespace {

using nlohmann::json;

class PreviewTest : public CommandLineTest {
 protected:
  // The install's files without the history, the moment of the last transfer and the settings of
  // screens.
  Tree Data() const {
    Tree files = CommandLineTest::Data();
    std::erase_if(files, [](const auto& file) {
      return file.first.ends_with("toQB.DAT") || file.first == "KVSYSTEM.FIL";
    });
    return files;
  }
  // Data contain moments.
  Ended Script(const std::string& lines) {
    return Run("--install i --now \"2026-05-13 12:00:00\" script -", lines);
  }
  void Restore(const Tree& files) {
    for (const auto& [name, bytes] : AllFiles()) folder.Remove("i/" + name);
    for (const auto& [name, bytes] : files) folder.Write("i/" + name, bytes);
  }
  std::string Shown(const std::vector<json>& events, const std::string& control,
                    const char* key = "text") {
    for (const json& event : events) {
      if (event.value("name", "") == control) return event[key].dump();
    }
    return "not shown";
  }
};

struct PreviewCase {
  const char* set_up;
  const char* transfer;  // the button that transfers at once
  const char* counts;
};

const PreviewCase kCases[] = {
    {"open KVCoursestoQB\n", "TransferCourses", "2 courses changed, 5 added in Quenby; 4 files"},
    {"open KVtoQB\nset HandicapRoster CLUB18\nset TournamentRoster \"Larkfield Members 001\"\n"
     "answer \"Update Handicaps?\" YES\n",
     "TransferButton",
     "10 golfers changed, 2 added in Quenby; 12 tournament entries changed in Quenby; 2 files"},
    {"open ZDtoQB\nset LeagueRoster \"Larkfield 00011\"\n"
     "set TournamentRoster \"Larkfield Members 001\"\n",
     "TransferButton", "6 golfers added in Quenby; 1 file; 2 left out"}};

TEST_F(PreviewTest, TransferNowDoesWhatTheTransferDoesAndCloseDoesNothing) {
  const Tree pristine = AllFiles();
  const Tree before = Data();
  for (const PreviewCase& c : kCases) {
    SCOPED_TRACE(c.set_up);
    const std::string preview = std::string(c.set_up) + "click PreviewButton\nshow CountsLabel\n";
    const auto closed = JsonLines(Script(preview + "click CloseButton\nshow\n").out);
    EXPECT_EQ(Shown(closed, "CountsLabel"), json(c.counts).dump());
    EXPECT_EQ(Shown(closed, c.transfer, "visible"), "true");
    EXPECT_TRUE(Data() == before);
    EXPECT_EQ(Script(preview + "click TransferNowButton\n").code, 0);
    const Tree previewed = Data();
    Restore(pristine);
    EXPECT_EQ(Script(std::string(c.set_up) + "click " + c.transfer + "\n").code, 0);
    EXPECT_TRUE(Data() == previewed);
    EXPECT_FALSE(Data() == before);
    Restore(pristine);
  }
}

// The run fills in the percentage.
TEST_F(PreviewTest, CloseLeavesTheScreenAsItWas) {
  const Ended ended = Script(
      "open KVtoZD\nclick FindZDButton\npick LeagueList 00021\nclick OKLEague\n"
      "click FindKVMButton\nrow grid1 1\nclick LoadButton\n"
      "answer Question Yes\nclick PreviewButton\nclick CloseButton\nshow HandicapPrct\n");
  EXPECT_EQ(Shown(JsonLines(ended.out), "HandicapPrct"), R"("")") << ended.problems;
}

TEST_F(PreviewTest, TheListIsFilteredByTextAndKind) {
  const Ended ended = Script(
      "open KVtoQB\nset HandicapRoster CLUB18\nset TournamentRoster \"Larkfield Members 001\"\n"
      "click PreviewButton\nset FilterBox 555-0103\nshow ChangeList\nset FilterBox \"\"\n"
      "select KindList 1\nshow ChangeList\n");
  std::vector<json> lists;
  for (const json& event : JsonLines(ended.out)) {
    if (event.value("name", "") == "ChangeList") lists.push_back(event["rows"]);
  }
  ASSERT_EQ(lists.size(), 2u) << ended.problems;
  EXPECT_EQ(lists[0], json::parse(R"j([["","Duarte, Ines","PhoneHome","\"\"","\"555-0103\""]])j"));
  EXPECT_EQ(lists[1][0], json::parse(R"j(["","Lindqvist, Nora","IDNum","-","111"])j"));
}

TEST_F(PreviewTest, TheHistoryShowsUndoesAndForgets) {
  const Tree before = Data();
  ASSERT_EQ(In("courses-kv-to-qb").code, 0);
  const auto events = JsonLines(
      Script("open TransferHistory\nshow ReportText\nclick ChangesButton\nshow CountsLabel\n"
             "click CloseButton\nanswer Undo Yes\nclick UndoButton\nshow RunList\n"
             "answer Forget Yes\nclick ForgetButton\nshow RunList\n")
          .out);
  EXPECT_EQ(Shown(events, "CountsLabel"),
            json("2 courses changed, 5 added in Quenby; 4 files").dump());
  EXPECT_TRUE(Data() == before);
  std::string asked;
  std::vector<std::size_t> runs;
  for (const json& event : events) {
    if (event.value("title", "") == "Undo") asked += event["text"].get<std::string>();
    if (event.value("name", "") == "RunList") runs.push_back(event["rows"].size());
  }
  EXPECT_NE(asked.find("courses to QB, today 12:00"), std::string::npos) << asked;
  EXPECT_EQ(runs, (std::vector<std::size_t>{2, 1}));
}

}  // namespace
}  // namespace golf
