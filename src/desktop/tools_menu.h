#pragma once

#include <wx/frame.h>

#include "forms/host_base.h"

namespace golf {

// Adds the menu "Tools" to the main window. Each time it opens, it lists the tools that have
// something to work on.
void AddToolsMenu(wxFrame& window, SharedState& state, HostBase& host);

}  // namespace golf
