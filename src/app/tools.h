#pragma once

#include <string_view>
#include <vector>

#include "app/menu_entry.h"

namespace golf {

// Returns the entries of the menu "Tools": the screens that are not a transfer and whose data this
// install has.
std::vector<MenuEntry> Tools(SharedState& state);

// Shows the courses of the library "KV", "QB" or "ZD", and closes the library afterwards. Raises
// error 5 for any other word.
void ShowCourseTable(SharedState& state, ScreenHost& host, std::string_view program);

}  // namespace golf
