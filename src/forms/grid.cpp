#include "forms/grid.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/numbered_error.h"

namespace golf {
namespace {

[[noreturn]] void FailCell(const std::string& name) {
  throw NumberedError(ErrorNumber::kSubscript, "The grid " + name + " has no such cell.");
}

}  // namespace

Grid::Grid(std::string name, int columns)
    : Control(ControlKind::kGrid, std::move(name)),
      columns_(columns),
      infos_(static_cast<std::size_t>(columns) + 1) {}

const Grid::ColumnInfo& Grid::Column(int column) const {
  if (column < 0 || column > columns_) FailCell(name());
  return infos_[static_cast<std::size_t>(column)];
}

Grid::ColumnInfo& Grid::Column(int column) {
  return const_cast<ColumnInfo&>(std::as_const(*this).Column(column));
}

const std::string& Grid::text(int column, int row) const {
  if (column < 0 || column > columns_ || row < 1 || row > rows()) FailCell(name());
  return cells_[static_cast<std::size_t>(row) - 1][static_cast<std::size_t>(column)];
}

std::string& Grid::Cell(int column, int row) {
  return const_cast<std::string&>(std::as_const(*this).text(column, row));
}

void Grid::SetRows(int rows) {
  cells_.resize(static_cast<std::size_t>(rows),
                std::vector<std::string>(static_cast<std::size_t>(columns_) + 1));
  if (active_row_ > rows) active_row_ = 0;
  Repaint();
}

void Grid::MakeList(std::initializer_list<std::string> headings) {
  SetHidden(0, true);
  int column = 0;
  for (const std::string& heading : headings) SetHeading(++column, heading);
  LockAllColumns();
}

void Grid::SetHeading(int column, std::string heading) {
  Column(column).heading = std::move(heading);
  Repaint();
}

void Grid::SetText(int column, int row, std::string text) {
  Cell(column, row) = std::move(text);
  Repaint();
}

void Grid::Enter(int column, int row, std::string text) {
  SetText(column, row, std::move(text));
  if (on_change) on_change(column, row);
}

void Grid::SetItems(int column, std::vector<DropDownItem> items) {
  Column(column).items = std::move(items);
  Repaint();
}

void Grid::SetHidden(int column, bool hidden) {
  Column(column).hidden = hidden;
  Repaint();
}

std::vector<int> Grid::SortedRows(const std::vector<SortKey>& keys, int last_row,
                                  std::string_view date_format) const {
  // Each cell is ranked once, not again at every comparison.
  std::vector<std::vector<CellRank>> ranks;
  for (const SortKey& key : keys) {
    std::vector<CellRank>& column = ranks.emplace_back();
    for (int row = 1; row <= last_row; ++row) {
      column.push_back(RankOf(text(key.column, row), sort_kind(key.column), date_format));
    }
  }
  std::vector<int> rows(static_cast<std::size_t>(last_row));
  std::iota(rows.begin(), rows.end(), 1);
  std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
      const int order = Compare(ranks[i][static_cast<std::size_t>(a) - 1],
                                ranks[i][static_cast<std::size_t>(b) - 1], keys[i].order);
      if (order != 0) return order < 0;
    }
    return false;
  });
  return rows;
}

void Grid::SortRows(const std::vector<SortKey>& keys, int last_row, std::string_view date_format) {
  if (last_row < 0 || last_row > rows()) FailCell(name());
  const std::vector<int> sorted = SortedRows(keys, last_row, date_format);
  std::vector<std::vector<std::string>> cells;
  std::vector<int> places(sorted.size());  // the new row of each row
  for (const int row : sorted) {
    cells.push_back(std::move(cells_[static_cast<std::size_t>(row) - 1]));
    places[static_cast<std::size_t>(row) - 1] = static_cast<int>(cells.size());
  }
  std::move(cells.begin(), cells.end(), cells_.begin());
  const auto place_of = [&](int row) {
    return row < 1 || row > last_row ? row : places[static_cast<std::size_t>(row) - 1];
  };
  std::map<int, bool> locks;
  for (const auto& [row, locked] : locked_rows_) locks[place_of(row)] = locked;
  locked_rows_ = std::move(locks);
  const int was_active = std::exchange(active_row_, place_of(active_row_));
  Repaint();
  if (active_row_ != was_active && on_row_change) on_row_change();
}

bool Grid::IsLocked(int column, int row) const {
  const auto locked = locked_rows_.find(row);
  return Column(column).locked || (locked != locked_rows_.end() && locked->second);
}

void Grid::SetActiveRow(int row) {
  if (row < 0 || row > rows()) FailCell(name());
  active_row_ = row;
  Repaint();
  if (on_row_change) on_row_change();
}

void Grid::SetRepainting(bool on) {
  repainting_ = on;
  Repaint();
}

void Grid::Repaint() const {
  if (repainting_) Changed();
}

}  // namespace golf
