#pragma once

#include <array>
#include <string>
#include <vector>

#include "forms/grid_sort.h"
#include "forms/screen_host.h"

namespace golf {

// Names the column of a sort key by its heading, without regard to case. An empty name, or a name
// that is not a heading, means that there is no such key.
struct NamedSortKey {
  std::string name;
  SortOrder order = SortOrder::kAscending;
};
using NamedSortKeys = std::array<NamedSortKey, 3>;

// Is the sort dialog for all grids. A caller sets the grid, then the parameters, and shows the
// dialog modally or sorts at once. SharedGridSort returns the only GridSort of the process, which
// is hidden but never unloaded.
class GridSort : public Screen {
 public:
  static constexpr const char* kName = "GridSort";

  explicit GridSort(const ScreenContext& context);

  // These call the members of the same names of the dialog's GridSorter. A caller must set the grid
  // before each use, since the grid belongs to another screen.
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

  // Fills the dialog from the grid and chooses these keys. It does not sort.
  void GridSetSortParameters(const NamedSortKeys& keys = {});
  // Fills the dialog, chooses these keys and sorts, without showing the dialog.
  void GridAutoSort(const NamedSortKeys& keys = {});

  // Returns "OK" or "Cancel", according to the button that closed the dialog.
  const std::string& Action() const { return action_; }

  // These describe the choices of the dialog in words. The first writes a line for each key into a
  // cell, or into the heading if `row` is 0. The second returns a short form.
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
  // These are always hidden, since a sort is too short for the operator to read them.
  Label WorkingLabel{"WorkingLabel"};
  Label WorkingTime{"WorkingTime"};
  Frame Frame1{"Frame1"};

  // Holds the two options of each key.
  const std::array<Options*, 3> options{&Sort1Option, &Sort2Option, &Sort3Option};

  // Returns the heading in an entry of SortList, without the column number after it.
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

// Returns the sort dialog of this process.
GridSort& SharedGridSort(ScreenHost& host);

}  // namespace golf
