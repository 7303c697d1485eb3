#include "screens/results/standings_tables.h"

#include <algorithm>
#include <utility>

#include "core/text.h"
#include "scoring/layouts/ball_tables.h"
#include "screens/results/grid_sort_screen.h"
#include "screens/table_export.h"

namespace golf {
namespace {

constexpr int kStandingsColumns = 21;  // three for each of five rounds, and six more
constexpr int kCardColumns = kBlockWidth;

// Returns the column of the card that shows a column of a block.
constexpr int CardColumn(int in_block) { return in_block + 1; }

}  // namespace

StandingsTables::StandingsTables(const ScreenContext& context, std::string saved_name)
    : grid1("grid1", kStandingsColumns),
      grid2("grid2", kCardColumns),
      context_(context),
      saved_name_(std::move(saved_name)) {
  for (Grid* grid : {&grid1, &grid2}) {
    grid->SetHidden(0, true);
    grid->LockAllColumns();
  }
  for (int column = 2; column <= grid2.columns(); ++column) grid2.SetCentred(column, true);
  for (int hole = 1; hole <= kHoles; ++hole) {
    grid2.SetHeading(CardColumn(HoleColumn(hole)), std::to_string(hole));
  }
  constexpr const char* kSums[] = {"Out", "In", "Total"};
  for (int sum = 1; sum <= 3; ++sum) {
    grid2.SetHeading(CardColumn(SumColumn(1, sum)), kSums[sum - 1]);
  }
  grid1.on_heading_click = [this](int column) { SortBy(column); };
  SortButton.on_click = [this] { Sort(); };
  CopyButton.on_click = [this] { CopyLines(context_.host, GridLines(grid1)); };
  SaveButton.on_click = [this] { SaveAsCsv(); };
}

void StandingsTables::ShowStandings(const std::vector<StandingsColumn>& columns,
                                    const std::vector<std::vector<std::string>>& rows,
                                    const std::vector<std::string>& keys) {
  const StandingsColumn unused;
  grid1.SetRepainting(false);
  grid1.SetRows(0);
  grid1.SetRows(static_cast<int>(rows.size()));
  for (int column = 0; column <= grid1.columns(); ++column) {
    const auto i = static_cast<std::size_t>(column) - 1;
    const bool is_used = column > 0 && i < columns.size();
    if (column > 0) {
      const StandingsColumn& shown = is_used ? columns[i] : unused;
      grid1.SetHeading(column, shown.heading);
      grid1.SetHidden(column, shown.heading.empty());
      grid1.SetCentred(column, shown.centred);
      grid1.SetSortKind(column, shown.sort_kind);
    }
    for (int row = 1; row <= grid1.rows(); ++row) {
      const auto line = static_cast<std::size_t>(row) - 1;
      if (column == 0 && line < keys.size()) grid1.SetText(0, row, keys[line]);
      if (is_used && i < rows[line].size()) grid1.SetText(column, row, rows[line][i]);
    }
  }
  grid1.SetRepainting(true);
}

void StandingsTables::SortAgain() {
  if (!sorted_by_.empty()) grid1.SortRows(sorted_by_, grid1.rows(), context_.state.DateFormat);
}

void StandingsTables::ForgetSort() { NoteSort({}, ""); }

void StandingsTables::NoteSort(std::vector<SortKey> keys, std::string description) {
  sorted_by_ = std::move(keys);
  SortedLabel.SetCaption(std::move(description));
}

void StandingsTables::SetCardColumns(std::string first_heading, int holes) {
  grid2.SetHeading(1, std::move(first_heading));
  for (int column = CardColumn(SumColumn(1, 1)); column <= CardColumn(SumColumn(1, 2)); ++column) {
    grid2.SetHidden(column, holes < kHoles);
  }
}

void StandingsTables::SetCardText(int in_block, int row, std::string text) {
  grid2.SetText(CardColumn(in_block), row, std::move(text));
}

void StandingsTables::Sort() {
  GridSort& dialog = SharedGridSort(context_.host);
  dialog.SetGridToSort(grid1);
  dialog.GridSetSortParameters();
  context_.host.ShowModal(dialog);
  if (dialog.Action() != "OK") return;
  std::vector<SortKey> keys;
  for (int i = 0; i < 3; ++i) {
    if (dialog.ColumnSorted(i) < 1) continue;
    keys.push_back({dialog.ColumnSorted(i), dialog.ColumnSortedHow(i) == 0
                                                ? SortOrder::kAscending
                                                : SortOrder::kDescending});
  }
  NoteSort(std::move(keys), dialog.HowSortedDescription());
}

// Sorts by a column, or in the other direction if the table is sorted by this column already.
void StandingsTables::SortBy(int column) {
  if (column < 1) return;
  const bool descends = sorted_by_.size() == 1 && sorted_by_[0].column == column &&
                        sorted_by_[0].order == SortOrder::kAscending;
  const std::string heading = ReplaceText(grid1.heading(column), "\n", " ", ReplaceMode::kExact);
  NoteSort({{column, descends ? SortOrder::kDescending : SortOrder::kAscending}},
           "Sorted by " + heading + (descends ? ", descending" : ""));
  SortAgain();
}

void StandingsTables::SaveAsCsv() {
  SaveText(context_.state, context_.host,
           {"Save as CSV", saved_name_, ".csv", "The standings were"}, CsvText(GridLines(grid1)));
}

}  // namespace golf
