#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Describes a menu item of the main window.
struct MenuEntry {
  std::string caption;
  std::function<void(SharedState&, ScreenHost&)> open;
  bool enabled = true;
};

// Returns the entries that a menu has at present.
using MenuEntries = std::function<std::vector<MenuEntry>(SharedState&)>;

}  // namespace golf
