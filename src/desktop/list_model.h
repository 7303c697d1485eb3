#pragma once

#include <wx/dataview.h>

#include <string>
#include <vector>

#include "desktop/binding.h"
#include "forms/grid.h"

namespace golf {

// Provides the rows of a grid control to the toolkit's list. Rows count from 0. The columns are
// those of the control. Cells of check boxes are bool values, all others are texts. The toolkit may
// ask for values after the binding has been released, when the control no longer exists.
class ListModel : public wxDataViewVirtualListModel {
 public:
  ListModel(Binding& binding, Grid& control);

  // Notifies the lists of what has changed since the last call. Returns true if the number of rows
  // has changed.
  bool CatchUp();

  // Toggles the tick of a cell. `row` counts from 1. Returns false if the cell is locked or the row
  // no longer exists.
  bool ToggleTick(int column, int row);

  void GetValueByRow(wxVariant& value, unsigned row, unsigned column) const override;
  bool SetValueByRow(const wxVariant& value, unsigned row, unsigned column) override;
  bool IsEnabledByRow(unsigned row, unsigned column) const override;

 private:
  using Row = std::vector<std::string>;
  bool CopyRow(std::size_t row);

  Binding& binding_;
  Grid& control_;
  std::vector<bool> ticks_;  // by the column
  std::vector<Row> shown_;
};

}  // namespace golf
