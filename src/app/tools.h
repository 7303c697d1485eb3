#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Describes an entry of the menu "Tools" of the main window. It opens a screen that is not a
// transfer.
struct Tool {
  std::string caption;
  // True if this install has the data that the screen needs.
  std::function<bool(SharedState&)> is_there;
  std::function<void(SharedState&, ScreenHost&)> open;
};

// Returns all tools in the order of the menu.
std::vector<Tool> Tools();

// Shows the courses of the library "KV", "QB" or "ZD", and closes the library afterwards. Raises
// error 5 for any other word.
void ShowCourseTable(SharedState& state, ScreenHost& host, std::string_view program);

}  // namespace golf
