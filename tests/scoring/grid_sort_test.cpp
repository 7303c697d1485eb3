#include "forms/grid_sort.h"

#include "screens/results/grid_sort_screen.h"
#include "support/test_host.h"

namespace golf {
namespace {

using Rows = std::vector<std::vector<std::string>>;
constexpr SortOrder kDown = SortOrder::kDescending;

// Fills the columns, starting with column 1.
void Fill(Grid& grid, const Rows& rows) {
  grid.SetRows(static_cast<int>(rows.size()));
  for (std::size_t r = 0; r < rows.size(); ++r) {
    for (std::size_t c = 0; c < rows[r].size(); ++c) {
      grid.SetText(static_cast<int>(c) + 1, static_cast<int>(r) + 1, rows[r][c]);
    }
  }
}

std::string Texts(const Grid& grid, int column) {
  std::string texts;
  for (int row = 1; row <= grid.rows(); ++row) texts += grid.text(column, row) + "|";
  return texts;
}

class GridSortTest : public testing::Test {
 protected:
  TestInstall install;
  Grid grid{"grid", 3};
  GridSorter sorter{install.state()};
};

TEST_F(GridSortTest, ColumnsSortByTheirKind) {
  const struct {
    SortKind kind;
    SortOrder order;
    std::vector<std::string> cells;
    std::string sorted;
  } rows[] = {
      {SortKind::kText, {}, {"b", "A", "\xE9", "10", "a", "9", "("}, "(|10|9|A|a|b|\xE9|"},
      {SortKind::kText, kDown, {"b", "A", "B", "a"}, "b|B|A|a|"},
      {SortKind::kValue, {}, {"10", "", "9 ", "-1", "WD", "9.0", "+5"}, "-1|+5|9 |9.0|10||WD|"},
      {SortKind::kValue, kDown, {"10", "", "9", "-1", "WD", "0"}, "10|9|0|-1|WD||"},
      {SortKind::kPlusBelowZero, {}, {"3", "+1.5", "0", "+12", "+", "x"}, "+12|+1.5|0|3|+|x|"},
      {SortKind::kValue, {}, {"1.2.24", "31.1.24", "x", "5.3.30"}, "5.3.30|31.1.24|1.2.24|x|"},
  };
  install.state().DateFormat = "dd.mm.yy";
  for (const auto& row : rows) {
    Fill(grid, Rows(row.cells.size()));
    for (int r = 0; const std::string& cell : row.cells) grid.SetText(1, ++r, cell);
    grid.SetSortKind(1, row.kind);
    sorter.SetGridToSort(grid);
    sorter.Sort({SortKey{1, row.order}});
    EXPECT_EQ(Texts(grid, 1), row.sorted);
  }
}

TEST_F(GridSortTest, ThreeKeysKeepTheOrderOfTiesAndOfTheRestOfTheGrid) {
  EXPECT_EQ(ErrorOf([&] { sorter.Sort({SortKey{1}}); }), 5);
  Grid wide("wide", 4);
  Fill(wide, {{"b", "1", "x", "0"},
              {"a", "2", "y", "1"},
              {"a", "1", "y", "2"},
              {"A", "2", "z", "3"},
              {"a", "2", "y", "4"},
              {"a", "0", "x", "5"}});
  wide.LockRow(2, true);
  wide.SetActiveRow(2);
  int moved = 0;
  wide.on_row_change = [&] { ++moved; };
  sorter.SetGridToSort(wide);
  sorter.SetLastRowToSort(5);
  sorter.Sort({SortKey{1}, SortKey{2, kDown}, SortKey{3, kDown}});
  EXPECT_EQ(Texts(wide, 4), "3|1|4|2|0|5|");
  EXPECT_TRUE(wide.IsLocked(1, 2) && wide.active_row() == 2 && moved == 0);
  EXPECT_EQ(sorter.LastRowToSort(), 0);
  sorter.SetLastRowToSort(99);
  sorter.Sort({SortKey{0}, SortKey{4}});
  EXPECT_EQ(Texts(wide, 4), "0|1|2|3|4|5|");
  sorter.Sort({SortKey{4, kDown}});
  EXPECT_TRUE(wide.IsLocked(1, 5) && !wide.IsLocked(1, 2) && wide.active_row() == 5 && moved == 1);
  EXPECT_TRUE(sorter.ColumnSorted(0) == 4 && sorter.ColumnSortedHow(0) == -1);
  EXPECT_EQ(ErrorOf([&] { sorter.ColumnSorted(3); }), 9);
}

TEST_F(GridSortTest, Positions) {
  EXPECT_EQ(sorter.PositionNumber122334(1), 0);
  Fill(grid, {{"A", "70"}, {"A", "72"}, {"a", "72"}, {"B", "73"}, {"B", "73"}, {"B", "75"}});
  sorter.SetGridToSort(grid);
  const struct {
    SortKeys keys;
    PositionMode mode;
    int first, last;
    std::string dense, competition;
  } rows[] = {
      {{SortKey{2}}, PositionMode::kOneKey, 1, 6, "01223340", "01224460"},
      {{SortKey{1}}, PositionMode::kOneKey, 1, 6, "01112220", "01114440"},
      {{SortKey{1}, SortKey{2}}, PositionMode::kTwoKeys, 1, 6, "01223340", "01224460"},
      {{SortKey{1}, SortKey{2}}, PositionMode::kGroups, 1, 6, "01223340", "01221130"},
      {{SortKey{1}, SortKey{2}}, PositionMode::kGroups, 5, 4, "01223340", "01221130"},
      {{SortKey{2}}, PositionMode::kOneKey, 2, 4, "01120000", "01130000"},
  };
  for (const auto& row : rows) {
    sorter.Sort(row.keys);
    sorter.CalculatePositions(row.first, row.last, row.mode);
    std::string dense, competition;
    for (int n = 0; n <= 7; ++n) {
      dense += std::to_string(sorter.PositionNumber122334(n));
      competition += std::to_string(sorter.PositionNumber122446(n));
    }
    EXPECT_EQ(dense + " " + competition, row.dense + " " + row.competition);
  }
}

TEST_F(GridSortTest, TheDialogSortsOrLeavesTheGridAlone) {
  GridSort& dialog = SharedGridSort(*install.host);
  grid.SetHeading(1, " Last\r\nName ");
  grid.SetHeading(3, "Score");
  Fill(grid, {{"b", "", "1"}, {"a", "", "2"}, {"c", "", "2"}});
  dialog.SetGridToSort(grid);
  dialog.GridSetSortParameters({{{"SCORE", kDown}, {"Nobody"}, {"last name"}}});
  EXPECT_EQ(dialog.SortList[0].items()[1], "Last Name" + std::string(60, ' ') + "001");
  EXPECT_EQ(dialog.SortList[0].items().size(), 3u);
  EXPECT_EQ(dialog.HowSortedDescription(), "Sorted by Score then by Last Name");
  install.host->ShowModal(dialog);  // its cancel button closes it
  EXPECT_EQ(dialog.Action() + Texts(grid, 1), "Cancelb|a|c|");
  install.host->drive = [&](Screen& screen) {
    dialog.Sort3Option[1].Choose(true);
    EXPECT_FALSE(dialog.Sort3Option[0].value());
    install.host->Press(screen, "SortOK");
  };
  install.host->ShowModal(dialog);
  EXPECT_EQ(dialog.Action() + Texts(grid, 1), "OKc|a|b|");
  dialog.HowPlayersAreSorted(grid, 2, 1);
  EXPECT_EQ(grid.text(2, 1),
            "Sort by Score in order Z-A, 9-1\r\nNext sort by Last Name in order Z-A, 9-1");
  EXPECT_EQ(&SharedGridSort(*install.host), &dialog);
  dialog.GridAutoSort({{{"Last Name"}}});
  EXPECT_EQ(Texts(grid, 1), "a|b|c|");
  dialog.GridAutoSort();
  dialog.HowPlayersAreSorted(grid, 2, 0);
  EXPECT_EQ(dialog.HowSortedDescription() + grid.heading(2), "No sortHow to Sort...");
}

}  // namespace
}  // namespace golf
