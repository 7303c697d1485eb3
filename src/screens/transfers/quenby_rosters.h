#pragma once

#include <string>
#include <string_view>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// What the screens share that bring golfers into one of Quenby's rosters.

// Opens Quenby's master and roster list and reads the master record. Error 70 where Quenby holds
// its master.
void OpenQuenbyRosters(SharedState& state);

// Lets the operator pick a roster, and delete one if he may. Gives its name and, behind blanks, its
// number in three digits, 000 for all rosters.
std::string AskForQuenbyRoster(SharedState& state, ScreenHost& host, bool may_delete);

// The number at the end of such a text.
double QuenbyRosterNumber(std::string_view roster);

}  // namespace golf
