// These tests cover report layouts: their files, their builder, and the ranking of teams under
// them.

#include <numeric>

#include "scoring/layouts/custom_balls.h"
#include "scoring/layouts/custom_standings.h"
#include "scoring/standings_table.h"
#include "screens/results/team_layout_builder.h"
#include "screens/results/team_layout_list.h"
#include "support/quenby_test.h"

namespace golf {
namespace {

class CustomTeamsTest : public QuenbyTest {
 protected:
  CustomTeamsTest() {
    program.OpenMasterFile();
    program.SetActiveTournament(1);
    program.SaveMasterRecord();
  }

  // Opens the builder and calls `work` after its timer has fired.
  void Build(const std::string& name, const std::function<void(XReportsCustomTeamResults&)>& work) {
    install.events().clear();
    install.host->drive = [&](Screen& screen) {
      auto& builder = dynamic_cast<XReportsCustomTeamResults&>(screen);
      install.host->Operate(screen, builder.Timer1.on_timer);
      if (install.host->IsShown(builder)) work(builder);
      if (install.host->IsShown(builder)) install.host->Press(builder, "CancelButton");
    };
    OpenTeamLayoutBuilder(state, *install.host, name);
  }
  std::string Events() const {
    const auto& events = install.listener.events;
    return std::accumulate(
        events.begin(), events.end(), std::string(),
        [](const std::string& all, const std::string& one) { return all + one + "\n"; });
  }
};

TEST_F(CustomTeamsTest, ANewLayoutIsSavedByteForByte) {
  Build("", [&](XReportsCustomTeamResults& builder) {
    EXPECT_EQ(builder.ConsiderPlayers(90, 0) + builder.ConsiderPlayers(1, 1), "123456780");
    builder.HoleNumberUsedList.Select(2);
    builder.grid1.Enter(2, 3, "2 low|L12");
    builder.grid1.Enter(5, 11, "NO Players|0");
    EXPECT_TRUE(builder.grid1.IsLocked(2, HoleColumn(10)));
    builder.ReportName.SetText("  Nines ");
    builder.ReportDescription.SetText("Two on the third");
    builder.TabMain.Choose(1);
    install.host->QueueAnswer("Font", "Courier New, 9, bold");
    install.host->Press(builder, "FontButton(1)");
    EXPECT_TRUE(builder.SaveReport());
  });
  std::string first = "\"Two on the third\"\r\n9,4\r\n\"D\",\"G\"\r\n";
  for (int hole = 1; hole <= 90; ++hole) {
    first += std::string("\"12345678\",\"") + (hole % 9 == 3 ? "L12" : "NONE") +
             "\",\"NONE\"\r\n\"0\",\"NONE\",\"NONE\"\r\n";
  }
  EXPECT_EQ(Read("Nines.TR1"), first + "\"Courier New\",9,1\r\n\"Arial\",10,0\r\n0,0\r\n");
  std::string second =
      "\"Arial\",16,0\r\n\"Report Name\",\"\",\"\",\"\",\"\"\r\n\"\"\r\n0\r\n0\r\n0\r\n";
  for (int line = 7; line <= 23; ++line) second += "\"\"\r\n";
  EXPECT_EQ(Read("Nines.TR2"), second);
}

TEST_F(CustomTeamsTest, NamesAndTextsThatAreRefused) {
  ReportLayout layout;
  for (const char* name : {"There", "(System)"}) {
    WriteReportLayout(state.files, state.QBDataPath + name + ".TR", layout);
  }
  const struct {
    const char *name, *description, *told;
  } kCases[] = {{" ", "", "You did not enter a name"},
                {"(system)", "", "permanent system report"},
                {"a/b", "", "cannot hold any of"},
                {"fine", "a \"quote\"", "double quote"},
                {"THERE", "", "already exists"}};
  for (const auto& c : kCases) {
    Build("", [&](XReportsCustomTeamResults& builder) {
      builder.ReportName.SetText(c.name);
      builder.ReportDescription.SetText(c.description);
      builder.TabMain.Choose(1);
      EXPECT_FALSE(builder.SaveReport()) << c.name;
      EXPECT_TRUE(builder.focus() != nullptr && builder.focus()->IsShown()) << c.name;
    });
    EXPECT_NE(Events().find(c.told), std::string::npos) << Events();
  }
}

TEST_F(CustomTeamsTest, LayoutsThatAreOutOfTheOrdinary) {
  ReportLayout layout;
  layout.ReportDescription = "A";
  layout.kept[16] = "later";
  layout.behind = {"more\r\n", "\"and more\"\r\n"};
  WriteReportLayout(state.files, state.QBDataPath + "X.TR", layout);
  const std::string good = Read("X.TR1");
  const auto with = [&](const std::string& from, const std::string& to) {
    return std::string(good).replace(good.find(from), from.size(), to);
  };
  const struct {
    std::string bytes;
    const char* told;  // a text that the builder shows before it closes
  } kCases[] = {
      {good, "Cancel?"},
      {good.substr(0, 400), "lacks the end of a text."},
      {good.substr(0, 13), "line 3 lacks another value."},
      {"", "ends before line 1"},
      {with("\"A\"\r\n1,4\r\n", "1,4\r\n\"A\"\r\n"), "line 1 lacks a text."},
      {with("1,4", "1,4,5"), "line 2 lacks its end."},
      {with("\"D\",\"G\"", "\"D\",G"), "line 3 lacks a text."},
      {with("\"0\"", "\"00\""), "1 code of this report cannot be read."},
      {with("\"NONE\"", "\"Q7\""), "1 code of this report cannot be read."},
      {with("1,4", "99,9"), "Cancel?"},
      {with("\"A\"", "\"A \"B\" C\""), "Cancel?"},
  };
  for (const auto& c : kCases) {
    Write("X.TR1", c.bytes);
    Build("X", [](XReportsCustomTeamResults&) {});
    EXPECT_NE(Events().find(c.told), std::string::npos) << c.told << Events();
    EXPECT_EQ(Read("X.TR1"), c.bytes);
  }
  Build("X", [](XReportsCustomTeamResults& builder) {
    EXPECT_EQ(builder.ReportDescription.text(), "A \"B\" C");
    builder.ReportDescription.SetText("A");
    EXPECT_TRUE(builder.SaveReport());
  });
  EXPECT_EQ(Read("X.TR1"), good);
  EXPECT_NE(Read("X.TR2").find("\"later\"\r\n\"and more\"\r\n"), std::string::npos);
  WriteReportLayout(state.files, state.QBDataPath + "(P.TR", layout);
  Build("(P", [](XReportsCustomTeamResults& builder) { EXPECT_EQ(builder.ReportName.text(), ""); });
  EXPECT_NE(Events().find("permanent system report"), std::string::npos);
}

TEST_F(CustomTeamsTest, ChoicesOfTheLists) {
  const auto players = PlayerChoices(4);
  EXPECT_EQ(players.size(), 2U + 4 + 6 + 4);
  EXPECT_EQ(players[7].text + players[7].code, "Players 1, 313");
  EXPECT_EQ(players.back().code, "234");
  EXPECT_EQ(PlayerChoices(8).size(), 256U);
  std::string balls;
  for (const LayoutChoice& choice : BallChoices(3)) balls += choice.text + "=" + choice.code + ";";
  EXPECT_EQ(balls,
            "Use NO score=NONE;1 best ball (Low ball)=L1;2 best ball (Total 2 low balls)=L12;"
            "3 best ball (Total All balls)=L123;1st best ball (1st ball only)=X1;"
            "2nd best ball (2nd ball only)=X2;3rd best ball (High ball only)=X3;"
            "1 worst ball (High ball)=H1;2 worst balls (Total 2 high balls)=H12;"
            "3 worst balls (Total All balls)=H123;");
}

TEST_F(CustomTeamsTest, ChoicesOutOfRangeAreReplaced) {
  for (const std::string style : {"N", "n", "B", "b", "G", "x"}) {
    ReportLayout layout;
    layout.BallSelection = style;
    LimitToChoices(layout);
    EXPECT_EQ(layout.BallSelection, style == "x" ? "G" : UpperCase(style));
    for (const auto& [holes, players] : {std::pair{0, 0}, {1, 1}, {90, 8}, {91, 9}}) {
      layout.HoleNumberUsed = holes;
      layout.PlayersPerTeam = players;
      LimitToChoices(layout);
      EXPECT_EQ(layout.HoleNumberUsed, holes == 90 ? 90 : 1);
      EXPECT_EQ(layout.PlayersPerTeam, players == 8 ? 8 : 1);
    }
    for (const int hole : {0, 91}) EXPECT_EQ(ErrorOf([&] { layout.At(hole, 0); }), 9);
  }
}

// The place of the running total of the last round orders the rows.
TEST_F(CustomTeamsTest, RowsOfStandings) {
  CustomStanding second;
  second.TeamNumber = 7;
  second.TeamName = "G";
  second.golfers = "Ann";
  second.Scores = {{1, 2, 3, 4}, {5, 6, 7, 8}};
  second.Points = {{11, 12, 13, 14}, {15, 16, 17, 18}};
  second.Positions = {{1, 1, 1, 1}, {1, 1, 1, 2}};
  CustomStanding first = second;
  first.TeamNumber = 9;
  first.Positions = {{2, 2, 2, 2}, {2, 2, 2, 1}};
  CustomStanding none = second;
  none.Scores.back().back() = std::nullopt;
  none.Positions.back().back() = 3;
  std::string cells;
  for (const StandingsRow& row : CustomTable({none, second, first}, 2).rows) {
    for (const std::string& cell : row.cells) cells += cell + "|";
  }
  EXPECT_EQ(cells,
            "9|G|Ann|1|2|3|5|6|7|8|18|1|7|G|Ann|1|2|3|5|6|7|8|18|2|7|G|Ann|1|2|3|5|6|7||18||");
}

TEST_F(CustomTeamsTest, RanksTeams) {
  ReportLayout layout;
  layout.At(18, 0) = {"10", "L1", "NONE"};  // golfers 1 and 10
  layout.At(19, 0) = {"10", "L12", "NONE"};
  CustomBalls balls(layout);
  const int scores[] = {5, 0, 4, 5, 6};  // on hole 18; the second team has not played
  balls.XBallInitializeTeamGrid(5);
  for (int t = 1; t <= 5; ++t) {
    if (scores[t - 1] == 0) continue;
    for (const BallTable table : {BallTable::kGross, BallTable::kGrossPoints}) {
      balls.Team(t).At(table, 1, HoleColumn(18)).value = scores[t - 1];
    }
  }
  balls.PopulateTeamGridwithManualData(5, BallTable::kGross, std::vector(10, std::vector(120, 3)));
  balls.XBallConsiderWhichScores(false, {});
  balls.XBallCalculateTeamScore({});
  EXPECT_EQ(balls.Team(5).Score(SumColumn(2, 4)), 3 + 6);
  EXPECT_EQ(balls.Team(1).Score(SumColumn(1, 1)), std::nullopt);
  EXPECT_EQ(balls.TiebreakKeys(1, 1, 18, {18, 9, 10})[0], "0005,005,005,05,05");
  EXPECT_EQ(balls.TiebreakKeys(1, 1, 18, {18, 9, 10})[1], "0005,05,00");
  EXPECT_EQ(balls.TiebreakKeys(1, 1, 9, {18, 1})[1], "0005,00");
  const auto places = [&](const RankingOrder& order, int option, int block) {
    balls.XBallSortTeamStandings(order, option, {"B", "A", "A", "A", "B"});
    std::string all;
    for (int t = 1; t <= 5; ++t) all += std::to_string(balls.position(t, 4, block));
    return all;
  };
  EXPECT_EQ(places({}, 1, 1), "34231");
  EXPECT_EQ(places({}, 2, 1), "35231");
  EXPECT_EQ(places({.points = true}, 2, 1), "25421");
  EXPECT_EQ(places({.by_flight = true}, 2, 1), "23121");
  EXPECT_EQ(HoleColumn(91) + HoleColumn(0), 0);
  const auto mark = [&](int hole) {
    return balls.Team(5).At(BallTable::kGross, 10, HoleColumn(hole)).mark;
  };
  balls.XBallConsiderWhichScores(false, {.hole = 18});
  EXPECT_TRUE(mark(18) == BallMark::kGross && mark(19) == BallMark::kNone);
  balls.XBallCalculateTeamScore({});
  EXPECT_EQ(balls.Team(5).Score(SumColumn(2, 4)), 3);
}

}  // namespace
}  // namespace golf
