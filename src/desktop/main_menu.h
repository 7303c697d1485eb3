#pragma once

#include <wx/frame.h>

#include "forms/host_base.h"

namespace golf {

// Adds the menus "Tools", "History" and "Help" to the main window. A menu is filled each time it
// opens.
void AddMainMenu(wxFrame& window, SharedState& state, HostBase& host);

}  // namespace golf
