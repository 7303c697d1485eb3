#pragma once

#include <vector>

#include "app/menu_entry.h"

namespace golf {

// Returns the entries of the menu "Help": the help in the browser, at the heading of the menu, the
// first steps in the menu, and the window "About".
std::vector<MenuEntry> HelpEntries(SharedState& state);

}  // namespace golf
