#pragma once

#include <wx/sizer.h>
#include <wx/textctrl.h>

namespace golf {

// Creates the buttons that copy a run's log and save it to a file, at the right of a row.
wxSizer* LogButtons(wxWindow* parent, wxTextCtrl& log);

}  // namespace golf
