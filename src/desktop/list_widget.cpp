#include "desktop/list_widget.h"

#include <wx/headerctrl.h>
#include <wx/menu.h>
#include <wx/settings.h>
#include <wx/stopwatch.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "core/text.h"
#include "core/while_set.h"
#include "desktop/accessible.h"
#include "desktop/list_model.h"
#include "desktop/wx_text.h"
#include "forms/type_ahead.h"
#include "screens/table_export.h"

namespace golf {
namespace {

constexpr int kMostRowsMeasured = 500;  // the first rows, which decide about the column widths
constexpr int kFewRows = 20;        // the texts of so few rows are measured again after each change
constexpr int kCellMargin = 16;     // on both sides of a cell's text, in DIPs
constexpr int kRowMargin = 6;       // above and below a cell's text
constexpr int kHeadingMargin = 14;  // above and below a heading

int RowHeight(const wxWindow& list) { return list.GetCharHeight() + list.FromDIP(kRowMargin); }

// Returns a heading with the lines of the control's heading in one line.
wxString HeadingOf(const Grid& control, int column) {
  wxString heading = WxText(control.heading(column));
  heading.Replace("\n", " ");
  return heading.Trim().Trim(false);
}

class ListView : public wxDataViewCtrl {
 public:
  ListView(Binding& binding, wxWindow* parent, Grid& control, SelectedRows selected)
      : wxDataViewCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                       (selected == SelectedRows::kOne ? wxDV_SINGLE : wxDV_MULTIPLE) |
                           wxDV_ROW_LINES | wxDV_VERT_RULES),
        binding_(binding),
        control_(control),
        several_(selected == SelectedRows::kSeveral),
        model_(new ListModel(binding, control)) {
    SetRowHeight(RowHeight(*this));
    AssociateModel(model_.get());
    Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, &ListView::OnSelection, this);
    Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, &ListView::OnActivated, this);
    Bind(wxEVT_DATAVIEW_COLUMN_HEADER_CLICK, &ListView::OnHeadingClick, this);
#ifdef __WXMSW__
    // Each click counts, also the second one of a double click.
    GenericGetHeader()->Bind(wxEVT_HEADER_DCLICK, [this](wxHeaderCtrlEvent& event) {
      ClickHeading(*GetColumn(static_cast<unsigned>(event.GetColumn())));
    });
#endif
    Bind(wxEVT_DATAVIEW_ITEM_CONTEXT_MENU, [this](wxDataViewEvent&) { ShowMenu(); });
    Bind(wxEVT_CHAR_HOOK, &ListView::OnCharHook, this);
    GetMainWindow()->Bind(wxEVT_CHAR, &ListView::OnChar, this);
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
      event.Skip();
      SpendSpareWidth();
    });
  }

  // Shows the control after a change.
  void Follow() {
    const WhileSet showing(showing_);
    const bool rebuilt = FollowColumns();
    const bool resized = model_->CatchUp();
    if (rebuilt || resized) {
      Measure();
    } else if (control_.rows() <= kFewRows) {
      Widen();
    }
    ShowActiveRow();
    NameTicks();
  }

  // Returns the width that shows all columns.
  int FullWidth() const {
    int width = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X) + FromDIP(kCellMargin);
    for (const int column_width : widths_) width += column_width;
    return width;
  }

 private:
  // Creates the columns again if the visible columns of the control or their headings have changed.
  bool FollowColumns() {
    std::vector<std::pair<int, wxString>> now;
    for (int column = 0; column <= control_.columns(); ++column) {
      if (!control_.IsHidden(column)) now.emplace_back(column, HeadingOf(control_, column));
    }
    if (now == columns_) return false;
    columns_ = std::move(now);
    ClearColumns();
    for (const auto& [column, heading] : columns_) AppendColumn(NewColumn(column, heading));
    return true;
  }

  wxDataViewColumn* NewColumn(int column, const wxString& heading) const {
    const bool is_tick = control_.cell_type(column) == CellType::kCheckBox;
    const wxAlignment align = is_tick || control_.IsCentred(column) ? wxALIGN_CENTRE : wxALIGN_LEFT;
    wxDataViewRenderer* renderer = nullptr;
    if (is_tick) {
      renderer = new wxDataViewToggleRenderer("bool", wxDATAVIEW_CELL_ACTIVATABLE, align);
    } else {
      renderer = new wxDataViewTextRenderer("string", wxDATAVIEW_CELL_INERT, align);
    }
    return new wxDataViewColumn(heading, renderer, static_cast<unsigned>(column),
                                wxCOL_WIDTH_DEFAULT, align, wxDATAVIEW_COL_RESIZABLE);
  }

  void Measure() {
    widths_.clear();
    for (const auto& column : columns_) widths_.push_back(WidthOf(column.first));
    SetWidths();
  }

  // Widens each column whose contents have become wider than it.
  void Widen() {
    const std::vector<int> before = widths_;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      widths_[i] = std::max(widths_[i], WidthOf(columns_[i].first));
    }
    if (widths_ != before) SetWidths();
  }

  // Returns the width that the heading and the first rows of a column need. The toolkit's own
  // function would read all rows.
  int WidthOf(int column) const {
    const wxFont bold = GetFont().Bold();  // of headings on some desktops
    int width = 0;
    int height = 0;
    GetTextExtent(HeadingOf(control_, column), &width, &height, nullptr, nullptr, &bold);
    if (control_.cell_type(column) == CellType::kCheckBox) return width + FromDIP(kCellMargin);
    const int rows = std::min(control_.rows(), kMostRowsMeasured);
    for (int row = 1; row <= rows; ++row) {
      width = std::max(width, GetTextExtent(WxText(control_.text(column, row))).x);
    }
    return width + FromDIP(kCellMargin);
  }

  void SetWidths() {
    for (std::size_t i = 0; i < widths_.size(); ++i) {
      GetColumn(static_cast<unsigned>(i))->SetWidth(widths_[i]);
    }
    SpendSpareWidth();
  }

  // Sets the widest column to the width that the other columns leave, but not below the width of
  // its contents.
  void SpendSpareWidth() {
    if (widths_.empty()) return;
    const auto widest = std::max_element(widths_.begin(), widths_.end());
    const int spare = std::max(0, GetClientSize().x - FullWidth());
    GetColumn(static_cast<unsigned>(widest - widths_.begin()))->SetWidth(*widest + spare);
  }

  // A tick is named after its column and the first text of its row.
  void NameTicks() {
    const int tick = TickColumn();
    if (tick < 0) return;
    const auto place = std::find_if(columns_.begin(), columns_.end(),
                                    [tick](const auto& column) { return column.first == tick; });
    for (int row = 1; row <= control_.rows(); ++row) {
      SetAccessibleCellName(*this, row - 1, static_cast<int>(place - columns_.begin()),
                            place->second + ": " + FirstText(row));
    }
  }

  wxString FirstText(int row) const {
    for (const auto& column : columns_) {
      const std::string& text = control_.text(column.first, row);
      if (column.first != TickColumn() && !IsBlankText(text)) return WxText(text);
    }
    return "row " + std::to_string(row);
  }

  wxDataViewItem ItemOf(int row) const { return model_->GetItem(static_cast<unsigned>(row) - 1); }
  // Returns 0 if there is no such item.
  int RowOf(const wxDataViewItem& item) const {
    return item.IsOk() ? static_cast<int>(model_->GetRow(item)) + 1 : 0;
  }

  void ShowActiveRow() {
    const int row = control_.active_row();
    if (row == 0) return UnselectAll();
    const wxDataViewItem item = ItemOf(row);
    if (!IsSelected(item)) {
      UnselectAll();
      SetCurrentItem(item);
      Select(item);
    } else if (GetCurrentItem() != item) {
      SetCurrentItem(item);
    }
    EnsureVisible(item);
  }

  // The operator cannot leave the list without a selected row, so a row that is deselected is
  // selected again.
  void OnSelection(wxDataViewEvent& event) {
    event.Skip();
    if (showing_ || binding_.IsReleased()) return;
    const int row = RowOf(several_ ? GetCurrentItem() : GetSelection());
    if (row > 0 && IsSelected(ItemOf(row))) return Activate(row);
    if (!several_ && control_.active_row() > 0) {
      CallAfter([this] {
        if (!binding_.IsReleased()) Follow();
      });
    }
  }

  // Activates a row after the current event. The row is checked then, since the rows may have
  // changed.
  void Activate(int row) {
    binding_.OperateSoon(control_, [this, row] {
      if (row != control_.active_row() && row <= control_.rows()) control_.SetActiveRow(row);
    });
  }

  void OnActivated(wxDataViewEvent&) {
    if (binding_.IsReleased() || !control_.on_double_click) return;
    binding_.OperateSoon(control_, control_.on_double_click);
  }

  void OnHeadingClick(wxDataViewEvent& event) {
    event.Skip();
    if (event.GetDataViewColumn() != nullptr) ClickHeading(*event.GetDataViewColumn());
  }

  void ClickHeading(const wxDataViewColumn& clicked) {
    if (binding_.IsReleased() || !control_.on_heading_click) return;
    const int column = static_cast<int>(clicked.GetModelColumn());
    binding_.OperateSoon(control_, [this, column] { control_.on_heading_click(column); });
  }

  // Returns the column of ticks, or -1 if there is none.
  int TickColumn() const {
    for (const auto& column : columns_) {
      if (control_.cell_type(column.first) == CellType::kCheckBox) return column.first;
    }
    return -1;
  }

  // Handles the keys that the screen uses. All other keys move within the list.
  void OnCharHook(wxKeyEvent& event) {
    if (binding_.IsReleased()) return event.Skip();
    const int key = event.GetKeyCode();
    if (event.GetModifiers() == wxMOD_CONTROL) {
      if (key == 'C' || key == WXK_INSERT) return Copy();
      if (key == 'A' && several_) return SelectAll();
    }
    const bool is_menu_key = key == WXK_MENU || key == WXK_WINDOWS_MENU;  // on GTK, on Windows
    if (is_menu_key || (key == WXK_F10 && event.ShiftDown())) return ShowMenu();
    if (event.HasModifiers()) return event.Skip();
    if (key == WXK_SPACE && !type_ahead_.Continues(Now())) return ToggleTick();
    // The toolkit's cursor may already be in the first row, so Down would skip it.
    const bool is_down = key == WXK_DOWN || key == WXK_NUMPAD_DOWN;
    if (is_down && control_.active_row() == 0 && control_.rows() > 0) return Activate(1);
    const char* name = key == WXK_RETURN || key == WXK_NUMPAD_ENTER ? "Enter"
                       : key == WXK_INSERT                          ? "Insert"
                       : key == WXK_DELETE                          ? "Delete"
                                                                    : nullptr;
    if (name == nullptr || !OperateKey(name)) event.Skip();
  }

  // Returns false if nothing of the screen handles the key.
  bool OperateKey(const std::string& name) {
    if (control_.on_key) {
      binding_.OperateSoon(control_, [this, name] {
        if (!control_.on_key(name)) binding_.OperateKeySoon(name);
      });
      return true;
    }
    if (name == "Enter" && control_.active_row() > 0 && control_.on_double_click) {
      binding_.OperateSoon(control_, control_.on_double_click);
      return true;
    }
    return binding_.OperateKeySoon(name);
  }

  // Toggles the tick of the active row.
  void ToggleTick() {
    const int row = RowOf(GetCurrentItem());
    if (TickColumn() >= 0 && row > 0) model_->ToggleTick(TickColumn(), row);
  }

  // Goes to the row that begins with the typed letters.
  void OnChar(wxKeyEvent& event) {
    const wxChar typed = event.GetUnicodeKey();
    const bool is_text = typed >= WXK_SPACE && typed != WXK_DELETE && !event.HasModifiers();
    if (!is_text || binding_.IsReleased()) return event.Skip();
    const int row = type_ahead_.Type(control_, TextFromWx(wxString(typed)).front(), Now());
    if (row > 0) Activate(row);
  }

  std::chrono::milliseconds Now() const { return std::chrono::milliseconds(clock_.Time()); }

  // Copies the selected rows with the headings.
  void Copy() {
    std::vector<int> rows;
    for (int row = 1; row <= control_.rows(); ++row) {
      if (IsSelected(ItemOf(row))) rows.push_back(row);
    }
    if (rows.empty()) return;
    binding_.Operate(control_, [&] { CopyLines(binding_.host(), GridLines(control_, rows)); });
  }

  void ShowMenu() {
    if (binding_.IsReleased()) return;
    wxMenu menu;
    const auto add = [&](wxWindowID id, const char* caption, bool enabled, auto work) {
      menu.Append(id, caption)->Enable(enabled);
      menu.Bind(
          wxEVT_MENU, [work](wxCommandEvent&) { work(); }, id);
    };
    add(wxID_COPY, "&Copy\tCtrl+C", GetSelectedItemsCount() > 0, [this] { Copy(); });
    if (several_) {
      add(wxID_SELECTALL, "Select &All\tCtrl+A", control_.rows() > 0, [this] { SelectAll(); });
    }
    PopupMenu(&menu);
  }

  Binding& binding_;
  Grid& control_;
  const bool several_;
  wxObjectDataPtr<ListModel> model_;
  std::vector<std::pair<int, wxString>> columns_;  // the control's visible columns and headings
  std::vector<int> widths_;                        // what their contents need
  bool showing_ = false;
  TypeAhead type_ahead_;
  wxStopWatch clock_;
};

}  // namespace

wxDataViewCtrl* MakeList(Binding& binding, wxWindow* parent, Grid& control, SelectedRows selected,
                         int rows_seen) {
  auto* list = new ListView(binding, parent, control, selected);
  binding.Bind(control, *list, [list] { list->Follow(); });
  if (list->GetMainWindow() != list) binding.FollowFocus(control, *list->GetMainWindow());
  list->Follow();
  list->SetMinSize({list->FullWidth(), ListHeight(*list, rows_seen)});
  return list;
}

int ListHeight(const wxDataViewCtrl& list, int rows) {
  return list.GetCharHeight() + list.FromDIP(kHeadingMargin) + rows * RowHeight(list) +
         list.FromDIP(kCellMargin);
}

}  // namespace golf
