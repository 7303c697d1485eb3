#pragma once

#include <string>

#include "forms/headless_host.h"
#include "screens/rosters/league_picker.h"

namespace golf {

// Act as the operator on the pickers that transfers open. A choice that does not exist raises
// Refusal.

// Picks a Kelvane roster by its name, in any case.
void PickKelvaneRoster(HeadlessHost& host, Screen& picker, const std::string& name);
// Picks a Quenby roster by its number. 0 stands for all rosters.
void PickQuenbyRoster(HeadlessHost& host, Screen& picker, int number);
// Picks a league by its base on a screen whose button `finder` opens the picker.
void PickLeague(HeadlessHost& host, Screen& screen, std::string_view finder, LeaguePicker& picker,
                const std::string& base);

// Ticks a box. Raises Refusal with the text `why` if the box is hidden.
void Tick(HeadlessHost& host, Screen& screen, CheckBox& box, const std::string& why);

}  // namespace golf
