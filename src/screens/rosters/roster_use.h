#pragma once

namespace golf {

// Says what the operator can do with a list of rosters: pick one or change the list, only look at
// the list, or only change the list.
enum class RosterUse { kPick, kView, kManage };

}  // namespace golf
