#include "desktop/cell_choices.h"

#include <wx/choice.h>

#include <map>
#include <string>

#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/widgets.h"
#include "desktop/wx_text.h"

namespace golf {
namespace {

// Returns the label of the active row, or an empty text if no row is active.
wxString ActiveRowLabel(const Grid& control) {
  return control.active_row() == 0 ? wxString() : WxText(control.text(0, control.active_row()));
}

// Is the drop-down for a column of the active row.
class CellChoice : public wxChoice {
 public:
  CellChoice(Binding& binding, wxWindow* parent, Grid& control, int column)
      : wxChoice(parent, wxID_ANY), control_(control), column_(column) {
    binding.FollowFocus(control, *this);
    binding.ShowAlso([this] { Follow(); });
    Bind(wxEVT_CHOICE, [this, &binding](wxCommandEvent& event) {
      if (binding.IsReleased()) return;
      const auto chosen = static_cast<std::size_t>(event.GetSelection());
      const int row = control_.active_row();
      binding.OperateSoon(control_, [this, chosen, row] { Enter(chosen, row); });
    });
  }

 private:
  void Follow() {
    const int row = control_.active_row();
    const bool is_open = row > 0 && !control_.IsLocked(column_, row);
    Enable(is_open && control_.IsUsable());
    wxArrayString texts;
    int selected = wxNOT_FOUND;
    for (const DropDownItem& item : control_.items(column_)) {
      if (is_open && item.CellText() == control_.text(column_, row)) {
        selected = static_cast<int>(texts.size());
      }
      texts.Add(WxText(item.text));
    }
    if (GetStrings() != texts) Set(texts);
    SetSelection(selected);
  }

  void Enter(std::size_t chosen, int row) {
    const std::vector<DropDownItem>& items = control_.items(column_);
    if (row == 0 || chosen >= items.size()) return;
    if (items[chosen].CellText() == control_.text(column_, row)) return;
    control_.Enter(column_, row, items[chosen].CellText());
  }

  Grid& control_;
  const int column_;
};

}  // namespace

wxSizer* MakeCellChoices(Binding& binding, wxWindow* parent, Grid& control) {
  auto* row_label = MakeText(parent, "");
  MakeBold(*row_label);
  binding.ShowAlso([row_label, &control] {
    const wxString label = ActiveRowLabel(control);
    row_label->SetLabelText(label.empty() ? "No row is active" : label);
  });
  auto* column_sizer = new wxBoxSizer(wxVERTICAL);
  column_sizer->Add(row_label);
  std::map<std::string, int> seen;  // how many columns have had a heading
  for (int column = 1; column <= control.columns(); ++column) {
    if (control.IsHidden(column) || control.cell_type(column) != CellType::kDropDown) continue;
    const int number = ++seen[control.heading(column)];
    wxString heading = WxText(control.heading(column));
    if (number > 1) heading += " (" + std::to_string(number) + ")";
    column_sizer->Add(MakeText(parent, heading), wxSizerFlags().Border(wxTOP, CloseGap(*parent)));
    auto* choice = new CellChoice(binding, parent, control, column);
    NameBy(binding, choice,
           [heading, &control] { return heading + ", " + ActiveRowLabel(control); });
    column_sizer->Add(choice, wxSizerFlags().Expand());
  }
  return column_sizer;
}

}  // namespace golf
