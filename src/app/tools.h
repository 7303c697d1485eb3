#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// An entry of the main window's menu "Tools": what is worked on beside the transfers.
struct Tool {
  std::string caption;
  // Whether there is something to work on in this install.
  std::function<bool(SharedState&)> is_there;
  std::function<void(SharedState&, ScreenHost&)> open;
};

// All that there are, in the order of the menu.
std::vector<Tool> Tools();

// Shows the courses of a sibling's library, "KV", "QB" or "ZD", and closes it afterwards. Error 5
// for any other word.
void ShowCourseTable(SharedState& state, ScreenHost& host, std::string_view program);

}  // namespace golf
