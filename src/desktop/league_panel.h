#pragma once

#include "desktop/screen_panel.h"
#include "stores/zandel/screens/league_picker.h"

namespace golf {

// The panel of a league picker, which comes up in the place of the screen's main panel.
wxPanel* MakeLeaguePanel(ScreenPanel& panel, LeaguePicker& picker);

}  // namespace golf
