#pragma once

#include <wx/frame.h>

#include "forms/host_base.h"

namespace golf {

// Adds the menu "Tools" to the main window. Each time the menu opens, it lists the tools whose data
// exists.
void AddToolsMenu(wxFrame& window, SharedState& state, HostBase& host);

}  // namespace golf
