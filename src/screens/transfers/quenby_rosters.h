#pragma once

#include <string>
#include <string_view>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// The common part of the screens that transfer golfers to a Quenby roster.

// Opens Quenby's master and roster list and reads the master record. Error 70 if another program
// holds the master or it may not be written to.
void OpenQuenbyRosters(SharedState& state);

// Lets the operator pick a roster, and delete rosters if `may_delete`. Returns the roster's name,
// blanks, and its number in three digits, 000 for all rosters.
std::string AskForQuenbyRoster(SharedState& state, ScreenHost& host, bool may_delete);

// Returns the number at the end of such a text.
double QuenbyRosterNumber(std::string_view roster);
// Returns such a text as "Members (1)".
std::string QuenbyRosterTitle(std::string_view roster);

}  // namespace golf
