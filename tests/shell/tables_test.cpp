// Tests what the tables of the results and of the history show, copy and save, on the demonstration
// install.

#include "app/demo/demo_install.h"
#include "core/text.h"
#include "screens/history/change_preview.h"
#include "screens/history/transfer_history.h"
#include "screens/results/team_results_screen.h"
#include "screens/rosters/load_roster.h"
#include "screens/table_export.h"
#include "screens/transfers/kv_to_qb.h"
#include "screens/transfers/kv_to_zd.h"
#include "support/test_host.h"

namespace golf {
namespace {

class TablesTest : public testing::Test {
 protected:
  TablesTest() { MakeDemoInstall(install.state()); }

  void Press(Screen& screen, const char* button) { install.host->Press(screen, button); }

  TestInstall install{false};
};

// Returns the rows with the columns that are not hidden, after a row of headings.
std::string Shown(const Grid& grid) {
  std::string shown;
  for (const auto& line : GridLines(grid)) {
    for (const std::string& cell : line) shown += cell + "|";
    shown += "\n";
  }
  return shown;
}

TEST_F(TablesTest, TeamResults) {
  const std::string holes = "Player|1|2|3|4|5|6|7|8|9|Out|10|11|12|13|14|15|16|17|18|In|Total|\n";
  install.Open("TeamResults", [&](Screen& screen) {
    auto& results = dynamic_cast<TeamResults&>(screen);
    results.RoundList.Select(1);
    results.teams.LayoutList.Select(1);
    EXPECT_EQ(Shown(results.tables.grid1).substr(0, 40),
              "Team|Name|Players|Front (Rnd #1)|Back (R");
    results.tables.grid1.SetActiveRow(2);
    EXPECT_EQ(results.tables.CardLabel.caption(),
              "Team #2, round 2: a ball that counts is marked *");
    EXPECT_EQ(Shown(results.tables.grid2),
              holes +
                  "Farrow, Ruth, gross|5|5|5|5|5|5|5|5|5|45|5|5|5|5|5|5|5|5|5|45|90|\n"
                  "Farrow, Ruth, net|4*|4*|5*|4*|4*|4*|5*|5*|5|40|4*|5*|4*|4*|4*|5|4*|5*|4*|39|79|"
                  "\nGrimaldi, Hugo, gross|5|5|5|5|5|5|5|5|5|45|5|5|5|5|5|5|5|5|5|45|90|\n"
                  "Grimaldi, Hugo, net|4|4|5|4|4|4|5|5|4*|39|4|5|4|4|4|4*|4|5|4|38|77|\n"
                  "H\xF6lzer, Lena, gross|6|6|6|6|6|6|6|6|6|54|6|6|6|6|6|6|6|6|6|54|108|\n"
                  "H\xF6lzer, Lena, net|4|4|5|4|4|4|5|5|4|39|4|5|4|4|4|4|4|5|4|38|77|\n"
                  "Idris, Omar, gross|4*|4*|4*|4*|4*|4*|4*|4*|4*|36|4*|4*|4*|4*|4*|4*|4*|4*|4*|36|"
                  "72|\nIdris, Omar, net|4|4|5|4|4|4|4|4|4|37|4|4|4|4|4|4|4|4|4|36|73|\n"
                  "Counted|8|8|9|8|8|8|9|9|8|75|8|9|8|8|8|8|8|9|8|74|149|\n");
    Press(results, "CopyButton");
    for (const char* name : {"", "a:b", "Standings", "standings.CSV"}) {
      install.host->QueueAnswer("Save as CSV", name);
      Press(results, "SaveButton");
    }
  });
  std::string expected =
      "Team,Name,Players,Front (Rnd #1),Back (Rnd #1),Total (Rnd #1),Front (Rnd #2),Back (Rnd #2),"
      "Total (Rnd #2),Total for Rounds 1 to 2,Total Points for Rounds 1 to 2,Place\r\n"
      "1,Team #1,\"Bergstrom, Calder, Duarte, Eames\",70,72,142,68,68,136,278,190,1\r\n"
      "2,Team #2,\"Farrow, Grimaldi, H\xF6lzer, Idris\",76,77,153,75,74,149,302,145,2\r\n"
      "3,Team #3,\"Jarvis, Kettle, Stoll, Umber\",78,78,156,78,77,155,311,148,3\r\n";
  EXPECT_EQ(install.folder.Read("Standings.csv"), expected);
  for (const auto& [from, to] : {std::pair{", ", "; "}, {",", "\t"}, {"; ", ", "}, {"\"", ""}}) {
    expected = ReplaceText(expected, from, to, ReplaceMode::kExact);
  }
  EXPECT_EQ(install.host->copied(), expected);
  EXPECT_TRUE(Told(install, "message [Notice] The standings were saved as " +
                                install.state().ProgramPath + "Standings.csv -> OK"));
  EXPECT_TRUE(Told(install,
                   "message [Notice] A file name cannot hold any of the characters \\ / : * ? \" < "
                   "> | -> OK"));
  EXPECT_EQ(install.LastMessage(),
            "message [Replace file?] standings.CSV already exists.  Do you want to replace it? -> "
            "No");
}

TEST_F(TablesTest, ThePreviewAndTheHistoryOfATransfer) {
  const auto golfers = [&] { return install.folder.Read("qbdata/QBGOLFER.Q9D"); };
  const std::string before = golfers();
  std::string csv;
  const auto work = [&](Screen& screen) {
    if (auto* list = dynamic_cast<ChangePreview*>(&screen)) {
      EXPECT_EQ(list->CountsLabel.caption(), "10 golfers changed, 2 added in Quenby; 1 file");
      EXPECT_EQ(list->ChangeList.rows(), 45);
      list->FilterBox.Enter("555-0103");
      EXPECT_EQ(Shown(list->ChangeList),
                "Golfer|Field|Before|After|\nDuarte, Ines|PhoneHome|\"\"|\"555-0103\"|\n");
      Press(screen, "SaveButton");
      csv = install.folder.Read("Changes.csv");
      list->FilterBox.Enter("");
      list->KindList.Select(1);
      Press(screen, "CopyButton");
    } else if (auto* transfer = dynamic_cast<KVtoQB*>(&screen)) {
      transfer->HandicapRoster.SetText("CLUB18");
      transfer->TournamentRoster.SetText("Larkfield Members 001");
      Press(screen, "PreviewButton");
      EXPECT_TRUE(golfers() == before);
      Press(screen, "TransferButton");
      EXPECT_FALSE(golfers() == before);
    } else if (auto* history = dynamic_cast<TransferHistory*>(&screen)) {
      const std::string headings = "When|Transfer|About|Changes|State|\n";
      const std::string about = "|CLUB18 to Larkfield Members (1)|";
      EXPECT_EQ(Shown(history->RunList),
                headings + "today 00:00|golfers to QB" + about + "12|done|\n");
      Press(screen, "ChangesButton");
      const std::string added =
          "Golfer\tField\tBefore\tAfter\r\nLindqvist, Nora\tIDNum\t-\t111\r\n";
      EXPECT_EQ(install.host->copied().substr(0, added.size()), added);
      Press(screen, "CopyButton");
      EXPECT_EQ(install.host->copied(), history->ReportText.text());
      EXPECT_TRUE(history->ReportText.text().starts_with("CLUB18 TRANSFERED:\r\n10 golfers"));
      Press(screen, "SaveButton");
      EXPECT_EQ(install.folder.Read("golfers to QB 2024-05-13 0000.txt"),
                history->ReportText.text());
      install.host->QueueAnswer("Undo", "Yes");
      Press(screen, "UndoButton");
      EXPECT_TRUE(golfers() == before);
      const std::string undone = "today 00:00|golfers to QB" + about + "12|undone|\n";
      EXPECT_TRUE(Shown(history->RunList).starts_with(headings + "today 00:00|undo|"));
      EXPECT_TRUE(Shown(history->RunList).ends_with("|done|\n" + undone));
      install.host->QueueAnswer("Forget", "Yes");
      Press(screen, "ForgetButton");
      EXPECT_EQ(Shown(history->RunList), headings + undone);
    }
  };
  for (const char* screen : {"KVtoQB", "TransferHistory"}) install.Open(screen, work);
  EXPECT_EQ(csv,
            "Golfer,Field,Before,After\r\n"
            "\"Duarte, Ines\",PhoneHome,\"\"\"\"\"\",\"\"\"555-0103\"\"\"\r\n");
  EXPECT_TRUE(Told(install,
                   "message [Undo] Undo this transfer?\r\rgolfers to QB, today 00:00\rCLUB18 to "
                   "Larkfield Members (1)\r\rIt would change: 10 golfers changed, 2 removed in "
                   "Quenby; 1 file -> Yes"));
}

using Files = std::map<std::string, std::string>;

// Returns the data files, and the reports of the history as the file "reports".
Files DataOf(TestInstall& install) {
  Files files = install.folder.Files();
  std::erase_if(files, [](const auto& file) {  // the history, settings, and a moment
    return file.first.starts_with("transfer-") || file.first.ends_with("toQB.DAT") ||
           file.first == "KVSYSTEM.FIL";
  });
  HistoryFolder& history = install.state().transactions->history();
  std::string& reports = files["reports"];
  for (const HistoryRun& run : ListRuns(history).runs) {  // the last one comes first
    reports = ReportOf(history, run) + (reports.empty() ? "" : "\r\n") + reports;
  }
  return files;
}

TEST(PreviewTest, TransferNowDoesWhatTheTransferDoesAndCloseDoesNothing) {
  const struct {
    const char* screen;
    std::vector<std::pair<const char*, const char*>> texts;
    const char* transfer;  // the button that transfers at once
    const char* counts;
  } kCases[] = {
      {"KVCoursestoQB", {}, "TransferCourses", "2 courses changed, 5 added in Quenby; 4 files"},
      {"KVtoQB",
       {{"HandicapRoster", "CLUB18"}, {"TournamentRoster", "Larkfield Members 001"}},
       "TransferButton",
       "10 golfers changed, 2 added in Quenby; 12 tournament entries changed in Quenby; 2 files"},
      {"ZDtoQB",
       {{"LeagueRoster", "Larkfield 00011"}, {"TournamentRoster", "Larkfield Members 001"}},
       "TransferButton",
       "6 golfers added in Quenby; 1 file; 2 left out"}};
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.screen);
    Files before;
    // Presses a button, another one in the preview, and transfers if the preview was closed.
    const auto files_after = [&](const char* button, const std::string& in_preview) {
      TestInstall install(false);
      MakeDemoInstall(install.state());
      before = DataOf(install);
      install.host->QueueAnswer("Update Handicaps?", "YES", true);
      install.Open(c.screen, [&](Screen& screen) {
        if (auto* list = dynamic_cast<ChangePreview*>(&screen)) {
          EXPECT_EQ(list->CountsLabel.caption(), c.counts);
          return install.host->Press(screen, in_preview);
        }
        for (const auto& [name, text] : c.texts) {
          dynamic_cast<TextBox&>(*screen.FindControl(name)).SetText(text);
        }
        install.host->Press(screen, button);
        if (in_preview != "CloseButton") return;
        EXPECT_TRUE(DataOf(install) == before);
        install.host->Press(screen, c.transfer);
      });
      return DataOf(install);
    };
    const Files after = files_after(c.transfer, "");
    EXPECT_FALSE(after == before);
    EXPECT_TRUE(files_after("PreviewButton", "CloseButton") == after);
    EXPECT_TRUE(files_after("PreviewButton", "TransferNowButton") == after);
  }
}

// The run fills in the percentage.
TEST_F(TablesTest, AClosedPreviewLeavesTheScreenAsItWas) {
  install.host->QueueAnswer("Question", "Yes");
  install.Open("KVtoZD", [&](Screen& screen) {
    if (PickRoster<LoadRoster>(*install.host, screen, 1)) return;
    auto* const transfer = dynamic_cast<KVtoZD*>(&screen);
    if (transfer == nullptr) return;
    Press(screen, "FindZDButton");
    transfer->picker.LeagueList.Select(
        static_cast<int>(transfer->picker.LeagueList.items().size()) - 2);
    for (const char* button : {"OKLEague", "FindKVMButton", "PreviewButton"}) Press(screen, button);
    EXPECT_EQ(transfer->HandicapPrct.text(), "");
  });
  EXPECT_TRUE(Told(install, "open ChangePreview"));
}

}  // namespace
}  // namespace golf
