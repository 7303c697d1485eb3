#pragma once

#include <string>

#include "forms/headless_host.h"
#include "screens/rosters/league_picker.h"

namespace golf {

// What the operator does on the pickers that transfers open. A choice that is not there is a
// Refusal.

// A Kelvane roster by its name, in any case.
void PickKelvaneRoster(HeadlessHost& host, Screen& picker, const std::string& name);
// A Quenby roster by its number; 0 stands for all rosters.
void PickQuenbyRoster(HeadlessHost& host, Screen& picker, int number);
// A league by its base, on a screen whose button `finder` opens its picker.
void PickLeague(HeadlessHost& host, Screen& screen, std::string_view finder, LeaguePicker& picker,
                const std::string& base);

// Ticks a box; where it is hidden that is a Refusal with `why`.
void Tick(HeadlessHost& host, Screen& screen, CheckBox& box, const std::string& why);

}  // namespace golf
