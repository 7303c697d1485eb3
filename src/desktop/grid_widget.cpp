#include "desktop/grid_widget.h"

#include <wx/dcclient.h>
#include <wx/settings.h>

#include <algorithm>
#include <string>

#include "core/while_set.h"
#include "desktop/colours.h"
#include "desktop/control_table.h"

namespace golf {
namespace {

constexpr int kMostRowsMeasured = 500;  // the first rows, which decide about the column widths
constexpr int kFewRows = 20;  // the texts of so few rows are measured again after each change
constexpr int kMargin = 8;    // around a cell's text, both sides together

// Is the widget of a grid control.
class GridView : public wxGrid {
 public:
  GridView(Binding& binding, wxWindow* parent, Grid& control)
      : wxGrid(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxWANTS_CHARS | wxBORDER_THEME),
        binding_(binding),
        control_(control),
        table_(new ControlTable(binding, control)) {
    SetTable(table_, true, wxGridSelectCells);
    SetRowLabelAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    SetRowLabelSize(wxGRID_AUTOSIZE);
    SetColLabelSize(wxGRID_AUTOSIZE);
    DisableDragRowSize();
    Bind(wxEVT_GRID_SELECT_CELL, &GridView::OnSelect, this);
    Bind(wxEVT_GRID_COL_AUTO_SIZE, [this](wxGridSizeEvent& event) {
      SetColSize(event.GetRowOrCol(), WidthOf(event.GetRowOrCol()));
    });
    Bind(wxEVT_KEY_DOWN, &GridView::OnKey, this);
    Bind(wxEVT_CHAR_HOOK, &GridView::OnCharHook, this);
    Bind(wxEVT_SIZE, &GridView::OnSize, this);
    SetDefaultCellAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    SetSelectionBackground(SelectionColour());
    for (wxWindow* window : {static_cast<wxWindow*>(this), GetGridWindow()}) {
      window->Bind(wxEVT_SET_FOCUS, &GridView::OnFocus, this);
      window->Bind(wxEVT_KILL_FOCUS, &GridView::OnFocus, this);
    }
  }

  void Follow() {
    const WhileSet showing(showing_);
    const bool resized = table_->CatchUp();
    if (resized || !measured_) {
      Measure();
    } else if (GetNumberRows() <= kFewRows) {
      Widen();
    }
    ColourSelection(HasFocus());
    ShowActiveRow();
    ForceRefresh();
  }

  // Returns the size that shows this number of rows and all columns.
  wxSize SizeFor(int rows_seen) const {
    int width = GetRowLabelSize() + wxSystemSettings::GetMetric(wxSYS_VSCROLL_X) + FromDIP(kMargin);
    for (int column = 0; column < GetNumberCols(); ++column) width += GetColSize(column);
    return {width, GetColLabelSize() + rows_seen * GetDefaultRowSize() + FromDIP(kMargin)};
  }

 private:
  void Measure() {
    widest_ = -1;
    measured_ = true;
    SetColLabelSize(wxGRID_AUTOSIZE);
    for (int column = 0; column < GetNumberCols(); ++column) {
      SetColSize(column, WidthOf(column));
    }
    SpendSpareWidth();
  }

  // Widens each column whose contents have become wider than it.
  void Widen() {
    bool is_wider = false;
    for (int column = 0; column < GetNumberCols(); ++column) {
      const int width = WidthOf(column);
      if (width <= GetColSize(column)) continue;
      is_wider = true;
      SetColSize(column, width);
    }
    if (!is_wider) return;
    if (widest_ >= 0) SetColSize(widest_, WidthOf(widest_));  // without the spare width
    widest_ = -1;
    SpendSpareWidth();
  }

  // Returns the width that the heading and the first rows of a column need. The toolkit's own
  // function would read all rows.
  int WidthOf(int column) {
    wxClientDC dc(this);
    dc.SetFont(GetLabelFont());
    int width = dc.GetMultiLineTextExtent(GetColLabelValue(column)).x;
    const int rows = std::min(GetNumberRows(), kMostRowsMeasured);
    for (int row = 0; row < rows; ++row) {
      const wxGridCellAttrPtr attributes = GetCellAttrPtr(row, column);
      const wxGridCellRendererPtr renderer = attributes->GetRendererPtr(this, row, column);
      width = std::max(width, renderer->GetBestSize(*this, *attributes, dc, row, column).x);
    }
    return width + FromDIP(2 * kMargin);
  }

  void ShowActiveRow() {
    const int row = control_.active_row() - 1;
    if (row < 0) return ClearSelection();
    if (GetGridCursorRow() != row) SetGridCursor(row, std::max(GetGridCursorCol(), 0));
    MakeCellVisible(row, std::max(GetGridCursorCol(), 0));
  }

  void OnSize(wxSizeEvent& event) {
    event.Skip();
    SpendSpareWidth();
  }

  // Sets the widest column to the width that the other columns leave, but not below the width of
  // its contents.
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
    if (showing_) return;
    // The row is checked after the current event, since the rows may have changed by then.
    binding_.OperateSoon(control_, [this, row] {
      if (row != control_.active_row() && row <= control_.rows()) control_.SetActiveRow(row);
    });
  }

  void OnFocus(wxFocusEvent& event) {
    event.Skip();
    ColourSelection(event.GetEventType() == wxEVT_SET_FOCUS);
    GetGridWindow()->Refresh();
  }

  // Sets the text colour of the selection. The toolkit paints the selection grey without the focus,
  // and its own text colour is hard to read on grey.
  void ColourSelection(bool focused) {
    SetSelectionForeground(focused
                               ? wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHTTEXT)
                               : TextColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNSHADOW)));
  }

  // Makes Escape cancel the edit of a cell, and not the screen, while a cell is edited. The tab key
  // ends the edit before it moves the focus out of the grid.
  void OnCharHook(wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_TAB) DisableCellEditControl();
    if (event.GetKeyCode() != WXK_ESCAPE || !IsCellEditControlShown()) return event.Skip();
    wxGridCellEditorPtr(GetCellEditor(GetGridCursorRow(), GetGridCursorCol()))->Reset();
    DisableCellEditControl();
  }

  // Handles the keys that the screen uses. All other keys move within the grid.
  void OnKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    const char* name = key == WXK_RETURN || key == WXK_NUMPAD_ENTER ? "Enter"
                       : key == WXK_INSERT                          ? "Insert"
                       : key == WXK_DELETE                          ? "Delete"
                                                                    : nullptr;
    const bool is_used = name != nullptr && !IsCellEditControlShown();
    if (!is_used || !binding_.OperateKeySoon(name)) event.Skip();
  }

  Binding& binding_;
  Grid& control_;
  ControlTable* table_;
  bool showing_ = false;
  bool measured_ = false;
  int widest_ = -1;  // a column, or -1 if it is not known yet
  int widest_needs_ = 0;
};

}  // namespace

wxGrid* MakeGrid(Binding& binding, wxWindow* parent, Grid& control, int rows_seen) {
  auto* grid = new GridView(binding, parent, control);
  binding.Bind(control, *grid, [grid] { grid->Follow(); });
  binding.FollowFocus(control, *grid->GetGridWindow());
  grid->Follow();
  grid->SetMinSize(grid->SizeFor(rows_seen));
  return grid;
}

}  // namespace golf
