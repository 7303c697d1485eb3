#include "desktop/control_table.h"

#include <wx/settings.h>

#include <utility>

#include "desktop/wx_text.h"

namespace golf {

ControlTable::ControlTable(Binding& binding, Grid& control) : binding_(binding), control_(control) {
  ChooseColumns();
  FillDropDowns();
}

wxString ControlTable::GetColLabelValue(int column) {
  return WxText(control_.heading(ControlColumn(column)));
}

wxString ControlTable::GetRowLabelValue(int row) {
  return row < control_.rows() ? WxText(control_.text(0, row + 1)) : wxString();
}

wxString ControlTable::GetValue(int row, int column) {
  const bool there = row < control_.rows();  // false until CatchUp is called
  return there ? WxText(Shown(ControlColumn(column), row + 1)) : wxString();
}

void ControlTable::SetValue(int row, int column, const wxString& value) {
  const std::string text = TextFromWx(value);
  if (row < control_.rows() && text == Shown(ControlColumn(column), row + 1)) return;
  for (const DropDownItem& item : control_.items(ControlColumn(column))) {
    if (item.text == text) return Enter(row, column, item.CellText());
  }
  Enter(row, column, text);
}

wxGridCellAttr* ControlTable::GetAttr(int row, int column, wxGridCellAttr::wxAttrKind) {
  auto* attributes = new wxGridCellAttr;
  const int control_column = ControlColumn(column);
  const bool locked = control_.IsLocked(control_column, row + 1);
  attributes->SetReadOnly(locked);
  if (control_.IsCentred(control_column)) attributes->SetAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
  if (locked && control_.cell_type(control_column) != CellType::kText) {
    attributes->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
  }
  const auto editor = drop_downs_.find(control_column);
  if (editor != drop_downs_.end()) {
    editor->second.editor->IncRef();  // the attributes release it
    attributes->SetEditor(editor->second.editor.get());
  }
  return attributes;
}

bool ControlTable::CatchUp() {
  const int rows_before = rows_;
  const int columns_before = GetNumberCols();
  ChooseColumns();
  FillDropDowns();
  const bool rows = NotifyView(rows_ - rows_before, rows_, wxGRIDTABLE_NOTIFY_ROWS_APPENDED,
                               wxGRIDTABLE_NOTIFY_ROWS_DELETED);
  const bool columns =
      NotifyView(GetNumberCols() - columns_before, GetNumberCols(),
                 wxGRIDTABLE_NOTIFY_COLS_APPENDED, wxGRIDTABLE_NOTIFY_COLS_DELETED);
  return rows || columns;
}

// Returns what a cell shows. This is only the text if the cell contains an item of a drop-down.
const std::string& ControlTable::Shown(int control_column, int row) const {
  const std::string& text = control_.text(control_column, row);
  for (const DropDownItem& item : control_.items(control_column)) {
    if (item.CellText() == text) return item.text;
  }
  return text;
}

// Creates one editor for each column of drop-downs. An editor must exist longer than the attributes
// of a cell that return it, since these are created and destroyed while the editor is open.
void ControlTable::FillDropDowns() {
  for (const int column : columns_) {
    if (control_.cell_type(column) != CellType::kDropDown) continue;
    wxArrayString choices = Choices(column);
    DropDown& drop_down = drop_downs_[column];
    if (drop_down.editor && drop_down.choices == choices) continue;
    drop_down.editor = wxGridCellEditorPtr(new wxGridCellChoiceEditor(choices));
    drop_down.choices = std::move(choices);
  }
}

wxArrayString ControlTable::Choices(int control_column) const {
  wxArrayString choices;
  for (const DropDownItem& item : control_.items(control_column)) choices.Add(WxText(item.text));
  return choices;
}

void ControlTable::Enter(int row, int column, std::string text) {
  binding_.Operate(control_,
                   [&] { control_.Enter(ControlColumn(column), row + 1, std::move(text)); });
}

void ControlTable::ChooseColumns() {
  rows_ = control_.rows();
  columns_.clear();
  for (int column = 1; column <= control_.columns(); ++column) {
    if (!control_.IsHidden(column)) columns_.push_back(column);
  }
}

bool ControlTable::NotifyView(int more, int now, int appended, int deleted) {
  if (more == 0 || GetView() == nullptr) return false;
  GetView()->ClearSelection();  // the selection may include deleted columns
  if (more > 0) {
    wxGridTableMessage message(this, appended, more);
    return GetView()->ProcessTableMessage(message);
  }
  wxGridTableMessage message(this, deleted, now, -more);
  return GetView()->ProcessTableMessage(message);
}

}  // namespace golf
