#include "desktop/grid_widget.h"

#include <wx/settings.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/number_text.h"
#include "desktop/wx_text.h"

namespace golf {
namespace {

constexpr int kMostRowsMeasured = 500;  // for the widths of columns
constexpr int kMargin = 8;              // of a cell's text, both sides together

// The cells of a control as the toolkit asks for them: nothing is kept twice.
class ControlTable : public wxGridTableBase {
 public:
  ControlTable(Binding& binding, Grid& control, bool labelled)
      : binding_(binding), control_(control), labelled_(labelled) {
    ChooseColumns();
    FillDropDowns();
  }

  int GetNumberRows() override { return rows_; }
  int GetNumberCols() override { return static_cast<int>(columns_.size()); }
  wxString GetColLabelValue(int column) override {
    return WxText(control_.heading(ControlColumn(column)));
  }
  wxString GetRowLabelValue(int row) override {
    return labelled_ && row < control_.rows() ? WxText(control_.text(0, row + 1)) : wxString();
  }
  wxString GetValue(int row, int column) override {
    const bool there = row < control_.rows();  // until the view has caught up
    return there ? WxText(Shown(ControlColumn(column), row + 1)) : wxString();
  }
  void SetValue(int row, int column, const wxString& value) override {
    const std::string text = TextFromWx(value);
    if (row < control_.rows() && text == Shown(ControlColumn(column), row + 1)) return;
    for (const DropDownItem& item : control_.items(ControlColumn(column))) {
      if (item.text == text) return Enter(row, column, item.CellText());
    }
    Enter(row, column, text);
  }
  wxString GetTypeName(int, int column) override {
    return IsTick(column) ? wxGRID_VALUE_BOOL : wxGRID_VALUE_STRING;
  }
  bool CanGetValueAs(int row, int column, const wxString& type) override {
    return type == GetTypeName(row, column);
  }
  bool GetValueAsBool(int row, int column) override {
    return row < control_.rows() &&
           LeadingNumber(control_.text(ControlColumn(column), row + 1)) != 0;
  }
  void SetValueAsBool(int row, int column, bool value) override {
    Enter(row, column, value ? "1" : "0");
  }
  wxGridCellAttr* GetAttr(int row, int column, wxGridCellAttr::wxAttrKind) override {
    auto* attributes = new wxGridCellAttr;
    const int control_column = ControlColumn(column);
    const bool locked = control_.IsLocked(control_column, row + 1);
    attributes->SetReadOnly(locked);
    if (IsTick(column) || control_.IsCentred(control_column)) {
      attributes->SetAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    }
    if (locked && control_.cell_type(control_column) != CellType::kText) {
      attributes->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    }
    const auto editor = drop_downs_.find(control_column);
    if (editor != drop_downs_.end()) {
      editor->second.editor->IncRef();  // for the attributes, which let it go again
      attributes->SetEditor(editor->second.editor.get());
    }
    return attributes;
  }

  // Tells the view of rows and columns that have come or gone since.
  bool CatchUp() {
    const int rows_before = rows_;
    const int columns_before = GetNumberCols();
    ChooseColumns();
    FillDropDowns();
    const bool rows = TellChange(rows_ - rows_before, rows_, wxGRIDTABLE_NOTIFY_ROWS_APPENDED,
                                 wxGRIDTABLE_NOTIFY_ROWS_DELETED);
    const bool columns =
        TellChange(GetNumberCols() - columns_before, GetNumberCols(),
                   wxGRIDTABLE_NOTIFY_COLS_APPENDED, wxGRIDTABLE_NOTIFY_COLS_DELETED);
    return rows || columns;
  }

 private:
  int ControlColumn(int column) const { return columns_[static_cast<std::size_t>(column)]; }
  // Of an item of a drop-down cell its text alone.
  const std::string& Shown(int control_column, int row) const {
    const std::string& text = control_.text(control_column, row);
    for (const DropDownItem& item : control_.items(control_column)) {
      if (item.CellText() == text) return item.text;
    }
    return text;
  }
  bool IsTick(int column) const {
    return control_.cell_type(ControlColumn(column)) == CellType::kCheckBox;
  }
  // One for each column: an editor must outlive the attributes that it was asked for through, which
  // come and go while it is open.
  void FillDropDowns() {
    for (const int column : columns_) {
      if (control_.cell_type(column) != CellType::kDropDown) continue;
      wxArrayString choices = Choices(column);
      DropDown& drop_down = drop_downs_[column];
      if (drop_down.editor && drop_down.choices == choices) continue;
      drop_down.editor = wxGridCellEditorPtr(new wxGridCellChoiceEditor(choices));
      drop_down.choices = std::move(choices);
    }
  }
  wxArrayString Choices(int control_column) const {
    wxArrayString choices;
    for (const DropDownItem& item : control_.items(control_column)) choices.Add(WxText(item.text));
    return choices;
  }
  void Enter(int row, int column, std::string text) {
    binding_.Operate([&] { control_.Enter(ControlColumn(column), row + 1, std::move(text)); });
  }
  void ChooseColumns() {
    rows_ = control_.rows();
    columns_.clear();
    for (int column = labelled_ ? 1 : 0; column <= control_.columns(); ++column) {
      if (!control_.IsHidden(column)) columns_.push_back(column);
    }
  }
  bool TellChange(int more, int now, int appended, int deleted) {
    if (more == 0 || GetView() == nullptr) return false;
    GetView()->ClearSelection();  // it would still name columns that are gone
    if (more > 0) {
      wxGridTableMessage message(this, appended, more);
      return GetView()->ProcessTableMessage(message);
    }
    wxGridTableMessage message(this, deleted, now, -more);
    return GetView()->ProcessTableMessage(message);
  }

  struct DropDown {
    wxGridCellEditorPtr editor;
    wxArrayString choices;
  };

  Binding& binding_;
  Grid& control_;
  bool labelled_;                       // column 0 holds the labels of the rows
  std::map<int, DropDown> drop_downs_;  // by column of the control
  std::vector<int> columns_;            // those of the control that are seen
  int rows_ = 0;
};

// The widget and how it follows its control.
class GridView : public wxGrid {
 public:
  GridView(Binding& binding, wxWindow* parent, Grid& control, GridMarks marks)
      : wxGrid(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxWANTS_CHARS | wxBORDER_THEME),
        binding_(binding),
        control_(control),
        marks_(marks),
        table_(new ControlTable(binding, control, marks == GridMarks::kLabelledCells)) {
    SetTable(table_, true, marks == GridMarks::kRows ? wxGridSelectRows : wxGridSelectCells);
    SetRowLabelAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    SetRowLabelSize(marks == GridMarks::kLabelledCells ? wxGRID_AUTOSIZE : 0);
    SetColLabelSize(wxGRID_AUTOSIZE);
    DisableDragRowSize();
    SetTabBehaviour(Tab_Leave);
    if (marks == GridMarks::kRows) SetCellHighlightPenWidth(0);
    if (marks == GridMarks::kRows) SetCellHighlightROPenWidth(0);
    Bind(wxEVT_GRID_SELECT_CELL, &GridView::OnSelect, this);
    Bind(wxEVT_GRID_CELL_LEFT_DCLICK, &GridView::OnDoubleClick, this);
    Bind(wxEVT_KEY_DOWN, &GridView::OnKey, this);
    Bind(wxEVT_CHAR_HOOK, &GridView::OnCharHook, this);
    Bind(wxEVT_SIZE, &GridView::OnSize, this);
    SetDefaultCellAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    for (wxWindow* window : {static_cast<wxWindow*>(this), GetGridWindow()}) {
      window->Bind(wxEVT_SET_FOCUS, &GridView::OnFocus, this);
      window->Bind(wxEVT_KILL_FOCUS, &GridView::OnFocus, this);
    }
  }

  void Follow() {
    showing_ = true;
    const bool resized = table_->CatchUp();
    if (resized || !measured_) Measure();
    ColourSelection(HasFocus());
    ShowActiveRow();
    ForceRefresh();
    showing_ = false;
  }

  // The size at which so many rows and all columns are seen.
  wxSize SizeFor(int rows_seen) const {
    int width = GetRowLabelSize() + wxSystemSettings::GetMetric(wxSYS_VSCROLL_X) + FromDIP(kMargin);
    for (int column = 0; column < GetNumberCols(); ++column) width += GetColSize(column);
    return {width, GetColLabelSize() + rows_seen * GetDefaultRowSize() + FromDIP(kMargin)};
  }

 private:
  void Measure() {
    widest_ = -1;
    if (GetNumberRows() > kMostRowsMeasured) return;
    measured_ = true;
    SetColLabelSize(wxGRID_AUTOSIZE);
    AutoSizeColumns(false);
    for (int column = 0; column < GetNumberCols(); ++column) {
      SetColSize(column, GetColSize(column) + FromDIP(kMargin));
    }
    SpendSpareWidth();
  }

  void ShowActiveRow() {
    const int row = control_.active_row() - 1;
    if (row < 0) return ClearSelection();
    if (GetGridCursorRow() != row) SetGridCursor(row, std::max(GetGridCursorCol(), 0));
    if (marks_ == GridMarks::kRows && !IsInSelection(row, 0)) SelectRow(row);
    MakeCellVisible(row, std::max(GetGridCursorCol(), 0));
  }

  void OnSize(wxSizeEvent& event) {
    event.Skip();
    SpendSpareWidth();
  }

  // The widest column takes the room that is left, and gives it back.
  void SpendSpareWidth() {
    if (GetNumberCols() == 0) return;
    if (widest_ < 0) NoteWidest();
    const int others = GetRowLabelSize() + GetColRight(GetNumberCols() - 1) - GetColSize(widest_);
    SetColSize(widest_, std::max(widest_needs_, GetClientSize().x - others));
  }

  void NoteWidest() {
    widest_ = 0;
    for (int column = 1; column < GetNumberCols(); ++column) {
      if (GetColSize(column) > GetColSize(widest_)) widest_ = column;
    }
    widest_needs_ = GetColSize(widest_);
  }

  void OnSelect(wxGridEvent& event) {
    event.Skip();
    const int row = event.GetRow() + 1;
    // A move along the row has unmarked it.
    const bool marks_row = marks_ == GridMarks::kRows && !showing_;
    if (marks_row && !IsInSelection(row - 1, 0)) SelectRow(row - 1);
    if (showing_ || row == control_.active_row() || row > control_.rows()) return;
    binding_.Operate([this, row] { control_.SetActiveRow(row); });
  }

  void OnFocus(wxFocusEvent& event) {
    event.Skip();
    ColourSelection(event.GetEventType() == wxEVT_SET_FOCUS);
    GetGridWindow()->Refresh();
  }

  // Without the focus the toolkit paints the selection grey, on which its own text is hard to read.
  void ColourSelection(bool focused) {
    SetSelectionForeground(wxSystemSettings::GetColour(focused ? wxSYS_COLOUR_HIGHLIGHTTEXT
                                                               : wxSYS_COLOUR_WINDOWTEXT));
  }

  void OnDoubleClick(wxGridEvent& event) {
    if (!control_.on_double_click) return event.Skip();
    binding_.Operate([this] { control_.on_double_click(); });
  }

  // A row is marked as a whole: there are no cells to go along.
  void LeaveByTab(bool backward) {
    Navigate(backward ? wxNavigationKeyEvent::IsBackward : wxNavigationKeyEvent::IsForward);
  }

  // While a cell is edited, Escape gives up the edit and not the screen.
  void OnCharHook(wxKeyEvent& event) {
    if (event.GetKeyCode() != WXK_ESCAPE || !IsCellEditControlShown()) return event.Skip();
    wxGridCellEditorPtr(GetCellEditor(GetGridCursorRow(), GetGridCursorCol()))->Reset();
    DisableCellEditControl();
  }

  // The toolkit's cursor stands in the first row before any row is marked.
  bool MarksFirstRow(int key) const {
    return (key == WXK_DOWN || key == WXK_NUMPAD_DOWN) && marks_ == GridMarks::kRows &&
           control_.active_row() == 0 && control_.rows() > 0;
  }

  // The keys that the screen knows; all others move about in the grid.
  void OnKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    if (MarksFirstRow(key)) return binding_.Operate([this] { control_.SetActiveRow(1); });
    if (key == WXK_SPACE && marks_ == GridMarks::kRows) return;  // would unmark the active row
    if (key == WXK_TAB && marks_ == GridMarks::kRows) return LeaveByTab(event.ShiftDown());
    const char* name = key == WXK_RETURN || key == WXK_NUMPAD_ENTER ? "Enter"
                       : key == WXK_INSERT                          ? "Insert"
                       : key == WXK_DELETE                          ? "Delete"
                                                                    : nullptr;
    if (name == nullptr || IsCellEditControlShown()) return event.Skip();
    bool taken = false;
    if (control_.on_key) binding_.Operate([&] { taken = control_.on_key(name); });
    if (!taken && !binding_.OperateKey(name)) event.Skip();
  }

  Binding& binding_;
  Grid& control_;
  GridMarks marks_;
  ControlTable* table_;
  bool showing_ = false;
  bool measured_ = false;
  int widest_ = -1;  // column; -1 before it is known
  int widest_needs_ = 0;
};

}  // namespace

wxGrid* MakeGrid(Binding& binding, wxWindow* parent, Grid& control, GridMarks marks,
                 int rows_seen) {
  auto* grid = new GridView(binding, parent, control, marks);
  binding.Tie(control, *grid, [grid] { grid->Follow(); });
  binding.FollowFocus(control, *grid->GetGridWindow());
  grid->Follow();
  grid->SetMinSize(grid->SizeFor(rows_seen));
  return grid;
}

}  // namespace golf
