#include "desktop/control_table.h"

#include <wx/settings.h>

#include <algorithm>
#include <utility>

#include "core/number_text.h"
#include "desktop/wx_text.h"

namespace golf {

ControlTable::ControlTable(Binding& binding, Grid& control, bool labelled)
    : binding_(binding), control_(control), labelled_(labelled) {
  ChooseColumns();
  FillDropDowns();
}

wxString ControlTable::GetColLabelValue(int column) {
  return WxText(control_.heading(ControlColumn(column)));
}

wxString ControlTable::GetRowLabelValue(int row) {
  return labelled_ && row < control_.rows() ? WxText(control_.text(0, row + 1)) : wxString();
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

wxString ControlTable::GetTypeName(int, int column) {
  return IsTick(column) ? wxGRID_VALUE_BOOL : wxGRID_VALUE_STRING;
}

bool ControlTable::CanGetValueAs(int row, int column, const wxString& type) {
  return type == GetTypeName(row, column);
}

bool ControlTable::GetValueAsBool(int row, int column) {
  return row < control_.rows() && LeadingNumber(control_.text(ControlColumn(column), row + 1)) != 0;
}

wxGridCellAttr* ControlTable::GetAttr(int row, int column, wxGridCellAttr::wxAttrKind) {
  auto* attributes = new wxGridCellAttr;
  const int control_column = ControlColumn(column);
  const bool locked = control_.IsLocked(control_column, row + 1);
  attributes->SetReadOnly(locked || IsTick(column));  // only TurnTick changes ticks
  if (IsTick(column) || control_.IsCentred(control_column)) {
    attributes->SetAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
  }
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

bool ControlTable::TurnTick(int row, int column) {
  const bool there = row >= 0 && row < control_.rows() && column >= 0 && IsTick(column);
  if (!there || control_.IsLocked(ControlColumn(column), row + 1)) return false;
  Enter(row, column, GetValueAsBool(row, column) ? "0" : "1");
  return true;
}

int ControlTable::OnlyTickColumn() const {
  const auto is_tick = [this](int control_column) {
    return control_.cell_type(control_column) == CellType::kCheckBox;
  };
  if (std::count_if(columns_.begin(), columns_.end(), is_tick) != 1) return -1;
  const auto only = std::find_if(columns_.begin(), columns_.end(), is_tick);
  return static_cast<int>(only - columns_.begin());
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

bool ControlTable::IsTick(int column) const {
  return control_.cell_type(ControlColumn(column)) == CellType::kCheckBox;
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
  for (int column = labelled_ ? 1 : 0; column <= control_.columns(); ++column) {
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
