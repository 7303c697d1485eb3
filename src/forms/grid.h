#pragma once

#include <map>
#include <string>
#include <vector>

#include "forms/cell_order.h"
#include "forms/control.h"

namespace golf {

enum class CellType { kText, kCheckBox, kDropDown };

// An item of a drop-down cell: what is shown, and the code that stands for it.
struct DropDownItem {
  std::string text;
  std::string code;
};

// A table of text cells addressed by column and row. Columns count from 0, where column 0 is the
// one that carries a key and is often hidden; rows count from 1, row 0 holds the headings. A check
// box cell holds "1" or "0".
class Grid : public Control {
 public:
  // Columns 0 to `columns`.
  Grid(std::string name, int columns);

  int columns() const { return columns_; }
  int rows() const { return static_cast<int>(cells_.size()); }
  // New rows are empty; the active row stays if it is still there.
  void SetRows(int rows);

  // Error 9 for a cell that is not there, in all of these.
  const std::string& heading(int column) const { return Column(column).heading; }
  void SetHeading(int column, std::string heading);
  const std::string& text(int column, int row) const;
  void SetText(int column, int row, std::string text);

  // What the operator enters: sets the text and runs the event.
  void Enter(int column, int row, std::string text);

  CellType cell_type(int column) const { return Column(column).type; }
  void SetCellType(int column, CellType type) { Column(column).type = type; }
  const std::vector<DropDownItem>& items(int column) const { return Column(column).items; }
  void SetItems(int column, std::vector<DropDownItem> items);

  SortKind sort_kind(int column) const { return Column(column).sort_kind; }
  void SetSortKind(int column, SortKind kind) { Column(column).sort_kind = kind; }
  // Sorts rows 1 to `last_row` by the first key, where that ties by the next one, and so on; rows
  // that tie in all keys stay in their order. A row keeps its lock, and stays the active one: where
  // it has moved, the event of a row change runs. `date_format` is that of dates in the cells.
  // Error 9 for a row or column that is not there.
  void SortRows(const std::vector<SortKey>& keys, int last_row, std::string_view date_format);

  bool IsCentred(int column) const { return Column(column).centred; }
  void SetCentred(int column, bool centred) { Column(column).centred = centred; }
  bool IsHidden(int column) const { return Column(column).hidden; }
  void SetHidden(int column, bool hidden);
  bool IsLocked(int column, int row) const;
  void LockColumn(int column, bool locked) { Column(column).locked = locked; }
  void LockRow(int row, bool locked) { locked_rows_[row] = locked; }

  // From 1; 0 for none.
  int active_row() const { return active_row_; }
  void SetActiveRow(int row);

  // While a screen fills many cells its view need not follow; it catches up at the end.
  void SetRepainting(bool on);

  std::function<void()> on_row_change;
  std::function<void()> on_double_click;
  std::function<void(int column, int row)> on_change;

 private:
  struct ColumnInfo {
    std::string heading;
    CellType type = CellType::kText;
    std::vector<DropDownItem> items;
    SortKind sort_kind = SortKind::kText;
    bool centred = false;
    bool hidden = false;
    bool locked = false;
  };

  const ColumnInfo& Column(int column) const;
  ColumnInfo& Column(int column);
  std::string& Cell(int column, int row);
  // The rows 1 to `last_row` in the order of a sort.
  std::vector<int> SortedRows(const std::vector<SortKey>& keys, int last_row,
                              std::string_view date_format) const;
  void Repaint() const;

  int columns_;
  std::vector<ColumnInfo> infos_;
  std::vector<std::vector<std::string>> cells_;
  std::map<int, bool> locked_rows_;
  int active_row_ = 0;
  bool repainting_ = true;
};

}  // namespace golf
