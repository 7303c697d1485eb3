#pragma once

#include <wx/grid.h>

#include "desktop/binding.h"
#include "forms/grid.h"

namespace golf {

// What the operator marks in a grid: rows or cells. kLabelledCells keeps column 0 in sight as
// labels.
enum class GridMarks { kRows, kCells, kLabelledCells };

// Makes the widget of a grid without its hidden columns. Its first size shows `rows_seen` rows and
// the full width of its columns.
wxGrid* MakeGrid(Binding& binding, wxWindow* parent, Grid& control, GridMarks marks, int rows_seen);

}  // namespace golf
