#pragma once

#include <cstdint>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/rosters/roster_use.h"

namespace golf {

// These show the rosters of a program and return when the operator has closed the list. The row of
// the suggested roster becomes active. They close all files and make the shared objects again. They
// raise the errors of the files.
void ShowKelvaneRosters(SharedState& state, ScreenHost& host, RosterUse use,
                        const std::string& suggested = {});
void ShowQuenbyRosters(SharedState& state, ScreenHost& host, RosterUse use,
                       std::int32_t suggested = 0);

}  // namespace golf
