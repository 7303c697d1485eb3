#pragma once

#include <wx/sizer.h>

#include "desktop/binding.h"
#include "forms/grid.h"

namespace golf {

// Creates a labelled drop-down for each column of drop-down cells. They show and change the cells
// of the active row, whose label in column 0 is shown above them. The toolkit's grid cannot tell a
// screen reader what its cells contain.
wxSizer* MakeCellChoices(Binding& binding, wxWindow* parent, Grid& control);

}  // namespace golf
