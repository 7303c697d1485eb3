#pragma once

#include "desktop/screen_panel.h"
#include "screens/rosters/league_picker.h"

namespace golf {

// Fills a window with the screen's main panel and its league picker. The picker is shown in place
// of the main panel while it is open.
void FillWithLeagues(ScreenPanel& panel, wxPanel* main, LeaguePicker& picker);

}  // namespace golf
