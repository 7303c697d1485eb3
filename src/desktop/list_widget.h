#pragma once

#include <wx/dataview.h>

#include "desktop/binding.h"
#include "forms/grid.h"

namespace golf {

// Says how many rows of a list the operator can select. The active row is one of the selected rows.
// Several rows can be copied together, so they are for lists whose buttons do not act on a row.
enum class SelectedRows { kOne, kSeveral };

// Creates a list that shows the rows of a grid control, without its hidden columns. Nothing in it
// can be edited but ticks. Its first size shows `rows_seen` rows and the full width of its columns.
wxDataViewCtrl* MakeList(Binding& binding, wxWindow* parent, Grid& control, SelectedRows selected,
                         int rows_seen);

// Returns the height of a list that shows this number of rows below its headings.
int ListHeight(const wxDataViewCtrl& list, int rows);

}  // namespace golf
