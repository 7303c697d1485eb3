#pragma once

#include <wx/frame.h>

#include "forms/host_base.h"

namespace golf {

// Gives the main window its menu "Tools": the entries for which there is something to work on,
// looked for again each time the menu opens.
void AddToolsMenu(wxFrame& window, SharedState& state, HostBase& host);

}  // namespace golf
