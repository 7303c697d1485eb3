#pragma once

#include <wx/grid.h>

#include <map>
#include <string>
#include <vector>

#include "desktop/binding.h"
#include "forms/grid.h"

namespace golf {

// Provides the cells of a grid control to the toolkit's grid. Rows and columns count from 0, and
// hidden columns are left out. It stores no copy of the cells and passes the operator's entries to
// the control.
class ControlTable : public wxGridTableBase {
 public:
  // Column 0 of the control contains the row labels.
  ControlTable(Binding& binding, Grid& control);

  int GetNumberRows() override { return rows_; }
  int GetNumberCols() override { return static_cast<int>(columns_.size()); }
  wxString GetColLabelValue(int column) override;
  wxString GetRowLabelValue(int row) override;
  wxString GetValue(int row, int column) override;
  void SetValue(int row, int column, const wxString& value) override;
  wxGridCellAttr* GetAttr(int row, int column, wxGridCellAttr::wxAttrKind kind) override;

  // Notifies the view of rows and columns that have been added or removed. Returns true if there
  // were any.
  bool CatchUp();

 private:
  struct DropDown {
    wxGridCellEditorPtr editor;
    wxArrayString choices;
  };

  // Returns the column of the control that a column of the toolkit's grid shows.
  int ControlColumn(int column) const { return columns_[static_cast<std::size_t>(column)]; }
  const std::string& Shown(int control_column, int row) const;
  void FillDropDowns();
  wxArrayString Choices(int control_column) const;
  void Enter(int row, int column, std::string text);
  void ChooseColumns();
  bool NotifyView(int more, int now, int appended, int deleted);

  Binding& binding_;
  Grid& control_;
  std::map<int, DropDown> drop_downs_;  // by the control's column
  std::vector<int> columns_;            // the control's visible columns
  int rows_ = 0;
};

}  // namespace golf
