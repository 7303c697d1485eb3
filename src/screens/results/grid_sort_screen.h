#pragma once

#include <array>
#include <string>
#include <vector>

#include "forms/grid_sort.h"
#include "forms/screen_host.h"

namespace golf {

// A sort key as a caller names it: by the heading of a column, in any case. A name that no heading
// has, such as an empty one, is no key.
struct NamedSortKey {
  std::string name;
  SortOrder order = SortOrder::kAscending;
};
using NamedSortKeys = std::array<NamedSortKey, 3>;

// The sort dialog for any grid. A caller sets the grid, then the parameters, and shows it modally
// or sorts at once. There is one for the whole process, which hides and is never unloaded:
// SharedGridSort.
class GridSort : public Screen {
 public:
  static constexpr const char* kName = "GridSort";

  explicit GridSort(const ScreenContext& context);

  // Grid, last row and places, as with any sort by code. Set the grid before each use: it is one of
  // another screen.
  void SetGridToSort(Grid& grid) { sorter_.SetGridToSort(grid); }
  Grid& GridToSort() const { return sorter_.GridToSort(); }
  int LastRowToSort() const { return sorter_.LastRowToSort(); }
  void SetLastRowToSort(int row) { sorter_.SetLastRowToSort(row); }
  std::int16_t ColumnSorted(int i) const { return sorter_.ColumnSorted(i); }
  std::int16_t ColumnSortedHow(int i) const { return sorter_.ColumnSortedHow(i); }
  void CalculatePositions(int first_row, int last_row, PositionMode mode) {
    sorter_.CalculatePositions(first_row, last_row, mode);
  }
  int PositionNumber122334(int n) const { return sorter_.PositionNumber122334(n); }
  int PositionNumber122446(int n) const { return sorter_.PositionNumber122446(n); }

  // Fills the dialog from the grid and chooses these keys; sorts nothing.
  void GridSetSortParameters(const NamedSortKeys& keys = {});
  // The same, and then sorts without showing the dialog.
  void GridAutoSort(const NamedSortKeys& keys = {});

  // "OK" or "Cancel": how the dialog was left.
  const std::string& Action() const { return action_; }

  // What is chosen in the dialog, in words: a line for each key into a cell, where row 0 is the
  // heading, and in a short form.
  void HowPlayersAreSorted(Grid& grid, int column, int row) const;
  std::string HowSortedDescription() const;

  Button* LeaveButton() override { return &SortCancel; }
  void OnActivate() override { MoveFocus(&SortList[0]); }

  using Options = std::array<OptionButton, 2>;  // ascending, descending
  static Options MakeOptions(const char* name);

  std::array<ComboBox, 3> SortList{ComboBox("SortList"), ComboBox("SortList"),
                                   ComboBox("SortList")};
  std::array<Label, 4> SortLabel{
      Label("SortLabel", "Sort by..."), Label("SortLabel", "Next Sort by..."),
      Label("SortLabel", "Next Sort by..."), Label("SortLabel", "Sort Style")};
  Options Sort1Option = MakeOptions("Sort1Option");
  Options Sort2Option = MakeOptions("Sort2Option");
  Options Sort3Option = MakeOptions("Sort3Option");
  Button SortOK{"SortOK", "&OK"};
  Button SortCancel{"SortCancel", "&Cancel"};
  Button Help{"Help", "&Help"};
  // Never seen: a sort is over before they could be read.
  Label WorkingLabel{"WorkingLabel"};
  Label WorkingTime{"WorkingTime"};
  Frame Frame1{"Frame1"};

  // The pair of options of each key.
  const std::array<Options*, 3> options{&Sort1Option, &Sort2Option, &Sort3Option};

  // What an entry of SortList shows: without the column number that it carries far behind.
  static std::string HeadingOf(const std::string& entry);

 private:
  void Choose(std::size_t i, const NamedSortKey& key);
  SortOrder OrderOf(std::size_t i) const;
  void RunSort();
  void Leave(std::string action);
  void ShowHelp();

  GridSorter sorter_;
  std::string action_;
};

// The one of this process.
GridSort& SharedGridSort(ScreenHost& host);

}  // namespace golf
