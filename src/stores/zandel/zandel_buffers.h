#pragma once

#include "core/record.h"
#include "stores/zandel/zandel_layouts.h"

namespace golf {

// The one buffer of the process for each Zandel record. They outlive InitSharedObjects.
struct ZandelBuffers {
  Record<LeagueControlLayout> control;
  Record<LeaguePlayerLayout> player;  // a player or a substitute
  Record<LeagueTeamLayout> team;
  Record<LeagueEventLayout> event;
};

}  // namespace golf
