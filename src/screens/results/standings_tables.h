#pragma once

#include <string>
#include <vector>

#include "forms/screen_host.h"

namespace golf {

// Describes a column of standings. The sort kind applies when the operator sorts by the column.
struct StandingsColumn {
  std::string heading;
  bool centred = true;
  SortKind sort_kind = SortKind::kValue;
};

// Contains the two tables of a screen of results with the buttons that sort, copy and save the
// standings. A table below the standings shows the card of the active row.
class StandingsTables {
 public:
  // `saved_name` is the proposed name of the file that SaveButton writes.
  StandingsTables(const ScreenContext& context, std::string saved_name);

  // Shows standings in the columns from 1 on. Hides the other columns and those without a heading.
  // A row contains a text for each of these columns. If it is shorter, its last cells are empty.
  // The keys, which are stored in column 0, may be fewer than the rows. Makes no row active.
  void ShowStandings(const std::vector<StandingsColumn>& columns,
                     const std::vector<std::vector<std::string>>& rows,
                     const std::vector<std::string>& keys = {});
  // Sorts the standings again by the keys of the last sort.
  void SortAgain();
  // Forgets the keys of the last sort.
  void ForgetSort();

  // Sets the heading of the card's first column. Shows its columns for 18 holes with two nines, or
  // for 9 holes.
  void SetCardColumns(std::string first_heading, int holes);
  // Sets a cell of the card. The holes 1 to 18, the two nines and the total have the columns of a
  // block; see ball_tables.h.
  void SetCardText(int in_block, int row, std::string text);

  Grid grid1;
  Label SortedLabel{"SortedLabel"};
  Label CardLabel{"CardLabel"};
  Grid grid2;  // column 1 contains the headings of the rows
  Button SortButton{"SortButton", "&Sort..."};
  Button CopyButton{"CopyButton", "C&opy"};
  Button SaveButton{"SaveButton", "Save as CS&V..."};

 private:
  void Sort();
  void SortBy(int column);
  void NoteSort(std::vector<SortKey> keys, std::string description);
  void SaveAsCsv();

  ScreenContext context_;
  std::string saved_name_;
  std::vector<SortKey> sorted_by_;
};

}  // namespace golf
