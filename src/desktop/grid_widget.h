#pragma once

#include <wx/grid.h>

#include "desktop/binding.h"
#include "forms/grid.h"

namespace golf {

// What the operator marks in a grid. Beside labelled cells the column 0 stays in sight.
enum class GridMarks { kRows, kCells, kLabelledCells };

// The widget of a grid, with its hidden columns left out. It is as high as `rows_seen` rows and as
// wide as its columns need to be at first.
wxGrid* MakeGrid(Binding& binding, wxWindow* parent, Grid& control, GridMarks marks, int rows_seen);

}  // namespace golf
