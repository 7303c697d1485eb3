#pragma once

#include <map>
#include <string>
#include <vector>

#include "forms/cell_order.h"
#include "forms/control.h"

namespace golf {

enum class CellType { kText, kCheckBox, kDropDown };

// An item of a drop-down cell. `text` is shown, and `code` identifies the item. `cell` is the text
// of a cell that shows the item; if it is empty, that is `text`.
struct DropDownItem {
  std::string text;
  std::string code;
  std::string cell = {};

  const std::string& CellText() const { return cell.empty() ? text : cell; }
};

// A table of text cells. Columns count from 0; column 0 carries a key and is often hidden. Rows
// count from 1; the headings are not a row. A check box cell holds "1" or "0".
class Grid : public Control {
 public:
  // Makes the columns 0 to `columns` and no rows.
  Grid(std::string name, int columns);

  int columns() const { return columns_; }
  int rows() const { return static_cast<int>(cells_.size()); }
  // New rows are empty. The active row stays if it still exists, and becomes 0 otherwise.
  void SetRows(int rows);

  // Error 9 for a column or a cell that does not exist.
  const std::string& heading(int column) const { return Column(column).heading; }
  void SetHeading(int column, std::string heading);
  const std::string& text(int column, int row) const;
  void SetText(int column, int row, std::string text);

  // Enters the operator's text: sets it and runs the event.
  void Enter(int column, int row, std::string text);

  CellType cell_type(int column) const { return Column(column).type; }
  void SetCellType(int column, CellType type) { Column(column).type = type; }
  const std::vector<DropDownItem>& items(int column) const { return Column(column).items; }
  void SetItems(int column, std::vector<DropDownItem> items);

  SortKind sort_kind(int column) const { return Column(column).sort_kind; }
  void SetSortKind(int column, SortKind kind) { Column(column).sort_kind = kind; }
  // Sorts rows 1 to `last_row` by the first key, ties by the next key, and so on. Rows that tie in
  // all keys keep their order. The locks and the active row move with their rows; if the active row
  // moves, on_row_change runs. `date_format` is the format of dates in the cells. Error 9 for a row
  // or column that does not exist.
  void SortRows(const std::vector<SortKey>& keys, int last_row, std::string_view date_format);

  bool IsCentred(int column) const { return Column(column).centred; }
  void SetCentred(int column, bool centred) { Column(column).centred = centred; }
  bool IsHidden(int column) const { return Column(column).hidden; }
  void SetHidden(int column, bool hidden);
  bool IsLocked(int column, int row) const;
  void LockColumn(int column, bool locked) { Column(column).locked = locked; }
  void LockRow(int row, bool locked) { locked_rows_[row] = locked; }

  // From 1; 0 if no row is active. Setting it runs on_row_change. Error 9 for any other row.
  int active_row() const { return active_row_; }
  void SetActiveRow(int row);

  // Turning repainting off keeps the view from following each change. Turning it on shows them all.
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
  // Returns the rows 1 to `last_row` in sorted order.
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
