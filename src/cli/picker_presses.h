#pragma once

#include <string>

#include "forms/headless_host.h"
#include "screens/rosters/league_picker.h"

namespace golf {

// These functions operate the pickers that transfers open. They raise Refusal for a choice that
// does not exist.

// Picks a Kelvane roster by its name, without regard to case.
void PickKelvaneRoster(HeadlessHost& host, Screen& picker, const std::string& name);
// Picks a Quenby roster by its number, or all rosters if it is 0.
void PickQuenbyRoster(HeadlessHost& host, Screen& picker, int number);
// Picks a league by its base. `finder` is the name of the screen's button that opens the picker.
void PickLeague(HeadlessHost& host, Screen& screen, std::string_view finder, LeaguePicker& picker,
                const std::string& base);

// Ticks a check box. Raises Refusal with the text `why` if the box is hidden.
void Tick(HeadlessHost& host, Screen& screen, CheckBox& box, const std::string& why);

}  // namespace golf
