#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include "forms/cell_order.h"
#include "forms/control.h"

namespace golf {

enum class CellType { kText, kCheckBox, kDropDown };

// Describes an item of a drop-down cell. The list shows `text`, and `code` identifies the item. A
// cell with this item shows `cell`, or `text` if `cell` is empty.
struct DropDownItem {
  std::string text;
  std::string code;
  std::string cell = {};

  const std::string& CellText() const { return cell.empty() ? text : cell; }
};

// Represents a table of text cells. Columns count from 0; column 0 contains a key and is often
// hidden. Rows count from 1; the headings are not a row. A check box cell contains "1" or "0".
class Grid : public Control {
 public:
  // Creates the columns 0 to `columns` and no rows.
  Grid(std::string name, int columns);

  int columns() const { return columns_; }
  int rows() const { return static_cast<int>(cells_.size()); }
  // Sets the number of rows. New rows are empty. The active row becomes 0 if it no longer exists.
  void SetRows(int rows);

  // These raise error 9 for a column or a cell that does not exist.
  const std::string& heading(int column) const { return Column(column).heading; }
  void SetHeading(int column, std::string heading);
  const std::string& text(int column, int row) const;
  void SetText(int column, int row, std::string text);

  // Enters the operator's text: sets it and calls on_change.
  void Enter(int column, int row, std::string text);

  CellType cell_type(int column) const { return Column(column).type; }
  void SetCellType(int column, CellType type) { Column(column).type = type; }
  const std::vector<DropDownItem>& items(int column) const { return Column(column).items; }
  void SetItems(int column, std::vector<DropDownItem> items);

  SortKind sort_kind(int column) const { return Column(column).sort_kind; }
  void SetSortKind(int column, SortKind kind) { Column(column).sort_kind = kind; }
  // Sorts rows 1 to `last_row` by the first key, rows that tie by the next key, and so on. Rows
  // that tie in all keys keep their order. The locks and the active row move with their rows. Calls
  // on_row_change if the active row moves. `date_format` is the format of dates in the cells.
  // Raises error 9 for a row or column that does not exist.
  void SortRows(const std::vector<SortKey>& keys, int last_row, std::string_view date_format);

  bool IsCentred(int column) const { return Column(column).centred; }
  void SetCentred(int column, bool centred) { Column(column).centred = centred; }
  bool IsHidden(int column) const { return Column(column).hidden; }
  void SetHidden(int column, bool hidden);
  bool IsLocked(int column, int row) const;
  void LockColumn(int column, bool locked) { Column(column).locked = locked; }
  // Makes the whole grid read-only.
  void LockAllColumns() {
    for (int column = 0; column <= columns_; ++column) LockColumn(column, true);
  }
  // Makes the grid a read-only list. Sets the headings of the columns, from column 1 on, and hides
  // column 0.
  void MakeList(std::initializer_list<std::string> headings);
  void LockRow(int row, bool locked) { locked_rows_[row] = locked; }

  // Returns the active row, from 1, or 0 if no row is active. SetActiveRow calls on_row_change. It
  // raises error 9 for a row that does not exist.
  int active_row() const { return active_row_; }
  void SetActiveRow(int row);

  // Switches the notification of the observer on or off. Switching it on notifies the observer of
  // all changes that were made meanwhile.
  void SetRepainting(bool on);

  std::function<void()> on_row_change;
  std::function<void()> on_double_click;
  std::function<void(int column, int row)> on_change;
  // Runs when the operator clicks the heading of a column.
  std::function<void(int column)> on_heading_click;

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
