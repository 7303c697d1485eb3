#pragma once

#include <string>
#include <string_view>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Opens Quenby's master file and roster list and reads the master record. Raises error 70 if
// another program has locked the master file or if it is read-only.
void OpenQuenbyRosters(SharedState& state);

// Lets the operator pick a roster, and delete rosters if `may_delete` is true. Returns a text that
// consists of the roster's name, blanks, and its number in three digits. The number is 000 for all
// rosters.
std::string AskForQuenbyRoster(SharedState& state, ScreenHost& host, bool may_delete,
                               const std::string& before);

// Returns the number at the end of a text that AskForQuenbyRoster has returned.
double QuenbyRosterNumber(std::string_view roster);
// Formats a text that AskForQuenbyRoster has returned as "Members (1)".
std::string QuenbyRosterTitle(std::string_view roster);

}  // namespace golf
