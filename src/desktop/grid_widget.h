#pragma once

#include <wx/grid.h>

#include "desktop/binding.h"
#include "forms/grid.h"

namespace golf {

// Creates the widget of a grid control whose cells can be edited, without its hidden columns.
// Column 0 is shown as row labels, which do not scroll sideways. The first size of the widget shows
// `rows_seen` rows and the full width of its columns. MakeList creates the widget of a grid control
// that only shows its cells.
wxGrid* MakeGrid(Binding& binding, wxWindow* parent, Grid& control, int rows_seen);

}  // namespace golf
