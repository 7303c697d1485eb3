#pragma once

#include "desktop/screen_panel.h"
#include "screens/rosters/league_picker.h"

namespace golf {

// Fills a window with the screen's main panel and that of its league picker, which comes up in its
// place.
void FillWithLeagues(ScreenPanel& panel, wxPanel* main, LeaguePicker& picker);

}  // namespace golf
