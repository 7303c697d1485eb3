#include "forms/grid.h"

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
