#pragma once

#include "core/record.h"
#include "stores/zandel/zandel_layouts.h"

namespace golf {

// Contains one buffer for each Zandel record. There is one such object in the process. It remains
// when InitSharedObjects replaces the other objects.
struct ZandelBuffers {
  Record<LeagueControlLayout> control;
  Record<LeaguePlayerLayout> player;  // a player or a substitute
  Record<LeagueTeamLayout> team;
  Record<LeagueEventLayout> event;
};

}  // namespace golf
