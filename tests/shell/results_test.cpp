// Tests the screen Results on the demonstration install. What it shows is compared with sums,
// places and statistics that these tests calculate from the bytes of the entries.

#include <array>
#include <filesystem>
#include <set>

#include "app/demo/demo_install.h"
#include "core/number_text.h"
#include "outlets/install_reader.h"
#include "scoring/tournament_class.h"
#include "screens/results/results_screen.h"
#include "screens/results/team_results_screen.h"
#include "screens/table_export.h"
#include "support/test_host.h"

namespace golf {
namespace {

constexpr const char* kEntries = "qbdata/X0001.Q9G";
constexpr const char* kControl = "qbdata/X0001.Q9C";
// These are the columns of the standings. The four scores of the round and the four totals are in
// the order of the measures.
constexpr int kPlace = 1, kName = 2, kHandicap = 3, kFlight = 4, kSex = 5, kOut = 6, kIn = 7;
constexpr int kRoundScores = 8, kTotals = 12;
constexpr int kByGross = 0, kByNet = 1, kByPoints = 2, kByQuota = 3;

// A plus sign means that a score or a handicap is below 0.
int NumberIn(const std::string& text) {
  const bool is_plus = text.starts_with('+');
  const int number = RoundToInt32(LeadingNumber(is_plus ? text.substr(1) : text));
  return is_plus ? -number : number;
}

using Lines = std::vector<std::vector<std::string>>;
// Returns the texts of all rows, from column 0 on.
Lines RowsOf(const Grid& grid) {
  Lines rows;
  for (int row = 1; row <= grid.rows(); ++row) {
    auto& cells = rows.emplace_back();
    for (int column = 0; column <= grid.columns(); ++column) {
      cells.push_back(grid.text(column, row));
    }
  }
  return rows;
}

class ResultsTest : public testing::Test {
 protected:
  ResultsTest() {
    MakeDemoInstall(install.state());
    entries = install.folder.Read(kEntries);
  }

  void OpenResults(const std::function<void(Results&)>& work) {
    install.Open("Results", [&](Screen& screen) { work(dynamic_cast<Results&>(screen)); });
  }

  // Another program holds the file until the platform heals.
  void Hold(const char* file) {
    install.platform->Fail({.error = ErrorNumber::kPermissionDenied,
                            .only = Operation::kOpen,
                            .name = file,
                            .stays = true});
  }

  // Returns the gross score of a hole. Records, rounds and holes count from 1.
  int Gross(int record, int round, int hole) const {
    constexpr int kRecordLength = 3052, kFirstScore = 443;
    const int at = (record - 1) * kRecordLength + kFirstScore + ((round - 1) * 18 + hole - 1) * 2;
    return static_cast<unsigned char>(entries[static_cast<std::size_t>(at)]);
  }
  int Gross(int record, int round, int first, int last) const {
    int sum = 0;
    for (int hole = first; hole <= last; ++hole) sum += Gross(record, round, hole);
    return sum;
  }
  // Returns the scores that the tiebreaks "last holes" and "18 to 1" compare.
  std::vector<int> TiebreakOf(int record, int round, int tiebreak) const {
    std::vector<int> key;
    if (tiebreak == 1) {
      for (const int holes : {9, 6, 3, 1}) key.push_back(Gross(record, round, 19 - holes, 18));
    }
    for (int hole = 18; tiebreak == 3 && hole > 0; --hole) {
      key.push_back(Gross(record, round, hole));
    }
    return key;
  }

  void CheckPlaces(const Results& results, int measure, bool all_rounds, int tiebreak, int option) {
    const Lines rows = RowsOf(results.tables.grid1);
    const int round = results.RoundList.index() + 1;
    using Score = std::pair<int, std::vector<int>>;
    std::vector<Score> scores;
    for (const auto& row : rows) {
      const int score =
          NumberIn(row[static_cast<std::size_t>((all_rounds ? kTotals : kRoundScores) + measure)]);
      scores.push_back({measure < kByPoints ? score : -score,
                        measure == kByGross ? TiebreakOf(std::stoi(row[0]), round, tiebreak)
                                            : std::vector<int>()});
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
      std::multiset<Score> better;
      for (const Score& other : scores) {
        if (other < scores[i]) better.insert(other);
      }
      const std::set<Score> distinct(better.begin(), better.end());
      EXPECT_EQ(rows[i][kPlace],
                std::to_string(1 + (option == 1 ? distinct.size() : better.size())))
          << rows[i][kName];
    }
  }

  // Checks the scores of the standings against the entries, and the card and the statistics of the
  // active row.
  void CheckScores(const Results& results) {
    const int round = results.RoundList.index() + 1;
    for (const auto& row : RowsOf(results.tables.grid1)) {
      SCOPED_TRACE(row[kName]);
      const int record = std::stoi(row[0]);
      const int gross = Gross(record, round, 1, 18);
      EXPECT_EQ(NumberIn(row[kOut]), Gross(record, round, 1, 9));
      EXPECT_EQ(NumberIn(row[kIn]), Gross(record, round, 10, 18));
      EXPECT_EQ(NumberIn(row[kRoundScores + kByGross]), gross);
      EXPECT_EQ(NumberIn(row[kRoundScores + kByNet]), gross - NumberIn(row[kHandicap]));
      if (round == 1) continue;
      EXPECT_EQ(NumberIn(row[kTotals + kByGross]), Gross(record, 1, 1, 18) + gross);
    }
  }
  void CheckCard(Results& results) {
    const Grid& standings = results.tables.grid1;
    const auto row = RowsOf(standings)[static_cast<std::size_t>(standings.active_row()) - 1];
    const int record = std::stoi(row[0]);
    const int round = results.RoundList.index() + 1;
    const Lines card = RowsOf(results.tables.grid2);
    ASSERT_EQ(card.size(), 5U);
    std::array<std::array<int, 3>, 5> sums{};
    std::array<std::array<int, 5>, 2> counts{};
    for (int hole = 1; hole <= 18; ++hole) {
      const auto at = static_cast<std::size_t>(hole + (hole > 9 ? 2 : 1));
      const std::string& dots = card[1][at];
      const int given = static_cast<int>(std::ranges::count(dots, '\x95'));
      const int strokes = dots.starts_with('-') ? -given : given;
      const int par = NumberIn(card[0][at]);
      const int gross = Gross(record, round, hole);
      const int net = gross - strokes;
      const int points =
          std::stoi(install.state().Tournament().PointsGiven(std::clamp(net - par, -5, 5)));
      EXPECT_EQ(NumberIn(card[2][at]), gross);
      EXPECT_EQ(NumberIn(card[3][at]), net);
      EXPECT_EQ(NumberIn(card[4][at]), points);
      const int numbers[] = {par, strokes, gross, net, points};
      for (std::size_t i = 0; i < 5; ++i) {
        sums[i][hole > 9 ? 1 : 0] += numbers[i];
        sums[i][2] += numbers[i];
      }
      for (const std::size_t i : {0U, 1U}) {
        const int against_par = (i == 0 ? gross : net) - par;
        ++counts[i][static_cast<std::size_t>(std::clamp(against_par, -2, 2) + 2)];
      }
    }
    for (std::size_t i = 0; i < 5; ++i) {
      EXPECT_EQ(NumberIn(card[i][11]), sums[i][0]);
      EXPECT_EQ(NumberIn(card[i][21]), sums[i][1]);
      EXPECT_EQ(NumberIn(card[i][22]), sums[i][2]);
    }
    EXPECT_EQ(NumberIn(row[kRoundScores + kByPoints]), sums[4][2]);
    const Lines statistics = RowsOf(results.players.grid3);
    for (std::size_t i = 0; i < 2; ++i) {
      for (std::size_t n = 0; n < 5; ++n) EXPECT_EQ(NumberIn(statistics[i][n + 2]), counts[i][n]);
    }
  }

  TestInstall install{false};
  std::string entries;
};

TEST_F(ResultsTest, ThePlayersAgreeWithTheirEntries) {
  for (const int option : {1, 2}) {
    auto control = RecordOf<TournamentLayout>(install.folder.Read(kControl));
    control.Set<"PositionOption">(static_cast<std::int16_t>(option));
    install.folder.Write(kControl, control.Bytes());
    const auto before = install.folder.Files();
    OpenResults([&](Results& results) {
      PlayerStandings& players = results.players;
      for (const int round : {0, 1}) {
        results.RoundList.Select(round);
        CheckScores(results);
        for (int row = 1; row <= results.tables.grid1.rows(); ++row) {
          results.tables.grid1.SetActiveRow(row);
          CheckCard(results);
        }
        for (const int measure : {kByGross, kByNet, kByPoints, kByQuota}) {
          players.MeasureList.Select(measure);
          for (std::size_t flight = 0; flight < players.FlightList.items().size(); ++flight) {
            players.FlightList.Select(static_cast<int>(flight));
            for (const int sex : {0, 1, 2}) {
              players.SexList.Select(sex);
              for (const int span : {0, round}) {
                players.SpanList.Select(span);
                SCOPED_TRACE(testing::Message() << option << round << measure << flight << sex);
                CheckPlaces(results, measure, span == 1, 0, option);
                for (const auto& row : RowsOf(results.tables.grid1)) {
                  EXPECT_TRUE(flight == 0 || row[kFlight] == players.FlightList.text());
                  EXPECT_TRUE(sex == 0 || row[kSex] == (sex == 1 ? "M" : "F"));
                }
              }
            }
          }
        }
        for (ComboBox* list :
             {&players.MeasureList, &players.SpanList, &players.FlightList, &players.SexList}) {
          list->Select(0);
        }
        for (const int tiebreak : {1, 3, 0}) {
          results.TiebreakList.Select(tiebreak);
          CheckPlaces(results, kByGross, false, tiebreak, option);
        }
      }
    });
    EXPECT_TRUE(install.folder.Files() == before);
  }
}

TEST_F(ResultsTest, TheListIsSearchedAndSorted) {
  OpenResults([&](Results& results) {
    Grid& grid = results.tables.grid1;
    const auto names = [&] {
      std::string shown;
      for (const auto& row : RowsOf(grid)) shown += row[kPlace] + " " + row[kName] + "; ";
      return shown;
    };
    results.players.SearchText.Enter("L");
    EXPECT_EQ(names(),
              "2 Calder, Tom; 3 Eames, Walt; 3 Stoll, Vera; 4 Grimaldi, Hugo; "
              "4 Kettle, Sam; 5 H\xF6lzer, Lena; ");
    grid.on_heading_click(kName);
    results.players.SearchText.Enter("le");
    EXPECT_EQ(names(), "5 H\xF6lzer, Lena; 4 Kettle, Sam; ");
    EXPECT_EQ(results.tables.SortedLabel.caption(), "Sorted by Name");
    results.players.SearchText.Enter("");
    grid.on_heading_click(kHandicap);
    EXPECT_EQ(grid.text(kHandicap, 1), "+1");
    grid.on_heading_click(kHandicap);
    EXPECT_EQ(grid.text(kHandicap, 1), "36");
    EXPECT_EQ(results.tables.CardLabel.caption().substr(0, 13), "H\xF6lzer, Lena,");
    results.players.MeasureList.Select(kByNet);
    EXPECT_EQ(results.tables.SortedLabel.caption(), "");
    install.host->Press(results, "CopyButton");
    EXPECT_EQ(install.host->copied().substr(0, 24), "Place\tName\tHandicap\tFlig");
  });
}

// The tabs show the same tables as the screen TeamResults.
TEST_F(ResultsTest, TheTeamsAndLayoutsAreThoseOfTeamResults) {
  std::vector<std::vector<Lines>> shown;
  const auto note = [&](const StandingsTables& tables) {
    shown.push_back({GridLines(tables.grid1), GridLines(tables.grid2)});
  };
  install.Open("TeamResults", [&](Screen& screen) {
    auto& teams = dynamic_cast<TeamResults&>(screen);
    for (const int layout : {0, 1, 2}) {
      teams.teams.LayoutList.Select(layout);
      teams.tables.grid1.SetActiveRow(2);
      note(teams.tables);
    }
  });
  OpenResults([&](Results& results) {
    const auto check = [&](int page, int layout) {
      EXPECT_EQ(results.TabMain.page(), page);
      EXPECT_EQ(results.teams.LayoutList.index(), layout);
      results.tables.grid1.SetActiveRow(2);
      note(results.tables);
      EXPECT_EQ(shown.back(), shown[static_cast<std::size_t>(layout)]);
    };
    results.TabMain.Choose(Results::kTeamsPage);
    check(Results::kTeamsPage, 0);
    results.teams.LayoutList.Select(2);
    check(Results::kLayoutsPage, 2);
    results.TabMain.Choose(Results::kPlayersPage);
    EXPECT_EQ(results.tables.grid2.heading(1), "Hole");
    results.TabMain.Choose(Results::kLayoutsPage);
    check(Results::kLayoutsPage, 2);
    results.teams.LayoutList.Select(0);
    check(Results::kTeamsPage, 0);
  });
}

TEST_F(ResultsTest, TheLastResultsStayIfTheFilesCannotBeRead) {
  const auto damage = [&](const char* file, std::size_t length) {
    install.folder.Write(file, install.folder.Read(file).substr(0, length));
  };
  const std::string control = install.folder.Read(kControl);
  const std::string kept =
      "\rThe tables still show Autumn Medal, 09/14/24 (1), round 1, as it was read before.";
  const struct {
    std::string message;
    std::function<void()> spoil;
  } kCases[] = {
      {"X0001.Q9C is damaged: its last record is incomplete.", [&] { damage(kControl, 100); }},
      {"X0001.Q9C is damaged: it is empty.", [&] { damage(kControl, 0); }},
      {"X0001.Q9G is damaged: its last record is incomplete.", [&] { damage(kEntries, 5000); }},
      {"X0001.Q9G", [&] { Hold("X0001.Q9G"); }}};
  OpenResults([&](Results& results) {
    const auto rows = RowsOf(results.tables.grid1);
    for (const auto& c : kCases) {
      SCOPED_TRACE(c.message);
      c.spoil();
      results.RoundList.Select(1);
      const std::string message = results.MessageLabel.caption();
      EXPECT_NE(message.find(c.message), std::string::npos) << message;
      EXPECT_TRUE(message.ends_with(kept)) << message;
      EXPECT_TRUE(results.MessageLabel.visible());
      EXPECT_EQ(RowsOf(results.tables.grid1), rows);
      EXPECT_EQ(results.tables.grid2.rows(), 5);
      install.folder.Write(kControl, control);
      install.folder.Write(kEntries, entries);
      install.platform->Heal();
      install.host->Press(results, "ReadButton");
      EXPECT_EQ(results.MessageLabel.caption(), "");
      CheckScores(results);
      results.RoundList.Select(0);
      EXPECT_EQ(RowsOf(results.tables.grid1), rows);
    }
    // Windows cannot delete an open file. A failed reading therefore closes all files first.
    damage(kEntries, 5000);
    install.host->Press(results, "ReadButton");
    install.folder.Remove(kEntries);
    install.host->Press(results, "ReadButton");
    EXPECT_NE(results.MessageLabel.caption().find("X0001.Q9G is missing."), std::string::npos);
    EXPECT_TRUE(results.MessageLabel.caption().ends_with(kept));
  });
}

TEST_F(ResultsTest, AHeldTournamentIsReadWhenItIsFree) {
  for (const auto& [file, title, message] :
       {std::array{"QBMASTER.Q9D", "Autumn Medal, 09/14/24 (1)",
                   "The active tournament is not known, because QBMASTER.Q9D cannot be read."},
        std::array{"X0001.Q9C", "X0001.Q9C cannot be read (1)", "The results cannot be read. "}}) {
    Hold(file);
    OpenResults([&, title = title, message = message](Results& results) {
      EXPECT_EQ(results.TournamentList.text(), title);
      EXPECT_TRUE(results.MessageLabel.caption().starts_with(message));
      install.platform->Heal();
      install.host->Press(results, "ReadButton");
      EXPECT_EQ(results.MessageLabel.caption(), "");
      EXPECT_EQ(results.TournamentList.text(), "Autumn Medal, 09/14/24 (1)");
      CheckScores(results);
    });
  }
}

TEST_F(ResultsTest, ThePageIsSavedOrOpenedInTheBrowser) {
  namespace fs = std::filesystem;
  std::set<fs::path> before;
  const auto temporary = [] {
    std::set<fs::path> files;
    for (const auto& entry : fs::directory_iterator(fs::temp_directory_path())) {
      if (entry.path().filename().string().starts_with("golf-transfer-results-")) {
        files.insert(entry.path());
      }
    }
    return files;
  };
  OpenResults([&](Results& results) {
    install.host->QueueAnswer("Web page", "Medal");
    install.host->Press(results, "WebPageButton");
    results.TabMain.Choose(Results::kLayoutsPage);
    before = temporary();
    install.host->Press(results, "PrintButton");
  });
  EXPECT_EQ(install.LastMessage(), "message [Notice] The page was saved as " +
                                       install.state().ProgramPath + "Medal.html -> OK");
  EXPECT_NE(install.folder.Read("Medal.html").find("Idris, Omar"), std::string::npos);
  for (const fs::path& file : temporary()) {
    if (before.contains(file)) continue;
    EXPECT_TRUE(Told(install, "start " + file.filename().string() + "|"));
    fs::remove(file);
  }
  EXPECT_EQ(temporary(), before);
  EXPECT_TRUE(ToldBeginning(install, "start golf-transfer-results-"));
}

TEST_F(ResultsTest, AnInstallWithoutTournamentsHasNoResults) {
  install.folder.Remove(kControl);
  OpenResults([](Results&) { ADD_FAILURE() << "the screen is shown"; });
  EXPECT_EQ(install.LastMessage(),
            "message [No active tournament] You must have an 'active' tournament to access this "
            "report -> OK");
}

}  // namespace
}  // namespace golf
