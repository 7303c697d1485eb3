#pragma once

#include <wx/grid.h>

#include <map>
#include <string>
#include <vector>

#include "desktop/binding.h"
#include "forms/grid.h"

namespace golf {

// The cells of a control as the toolkit asks for them, from row and column 0, without the columns
// that are hidden: nothing is kept twice. What the operator enters goes to the control.
class ControlTable : public wxGridTableBase {
 public:
  // `labelled`: column 0 of the control holds the labels of the rows.
  ControlTable(Binding& binding, Grid& control, bool labelled);

  int GetNumberRows() override { return rows_; }
  int GetNumberCols() override { return static_cast<int>(columns_.size()); }
  wxString GetColLabelValue(int column) override;
  wxString GetRowLabelValue(int row) override;
  wxString GetValue(int row, int column) override;
  void SetValue(int row, int column, const wxString& value) override;
  wxString GetTypeName(int row, int column) override;
  bool CanGetValueAs(int row, int column, const wxString& type) override;
  bool GetValueAsBool(int row, int column) override;
  wxGridCellAttr* GetAttr(int row, int column, wxGridCellAttr::wxAttrKind kind) override;

  // Turns the tick of a cell over. False where there is none that the operator may change.
  bool TurnTick(int row, int column);
  // The column of ticks, if there is just one; otherwise -1.
  int OnlyTickColumn() const;

  // Tells the view of rows and columns that have come or gone since.
  bool CatchUp();

 private:
  struct DropDown {
    wxGridCellEditorPtr editor;
    wxArrayString choices;
  };

  int ControlColumn(int column) const { return columns_[static_cast<std::size_t>(column)]; }
  const std::string& Shown(int control_column, int row) const;
  bool IsTick(int column) const;
  void FillDropDowns();
  wxArrayString Choices(int control_column) const;
  void Enter(int row, int column, std::string text);
  void ChooseColumns();
  bool NotifyView(int more, int now, int appended, int deleted);

  Binding& binding_;
  Grid& control_;
  bool labelled_;
  std::map<int, DropDown> drop_downs_;  // by column of the control
  std::vector<int> columns_;            // those of the control that are seen
  int rows_ = 0;
};

}  // namespace golf
