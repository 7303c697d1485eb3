#pragma once

#include <wx/sizer.h>
#include <wx/textctrl.h>

namespace golf {

// Creates a row of buttons that copy a run's log and save it to a file.
wxSizer* LogButtons(wxWindow* parent, wxTextCtrl& log);

}  // namespace golf
