#pragma once

#include <wx/grid.h>

#include "desktop/binding.h"
#include "forms/grid.h"

namespace golf {

// Says what the operator selects in a grid: rows or cells. With kLabelledCells, column 0 is shown
// as row labels, which do not scroll sideways.
enum class GridMarks { kRows, kCells, kLabelledCells };

// Creates the widget of a grid without its hidden columns. Its first size shows `rows_seen` rows
// and the full width of its columns.
wxGrid* MakeGrid(Binding& binding, wxWindow* parent, Grid& control, GridMarks marks, int rows_seen);

}  // namespace golf
