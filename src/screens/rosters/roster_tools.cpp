#include "screens/rosters/roster_tools.h"

#include "scoring/player/player_class.h"
#include "screens/file_changes.h"
#include "screens/rosters/load_roster.h"
#include "screens/rosters/load_rosters.h"
#include "stores/quenby/program_class.h"

namespace golf {
namespace {

template <class Rosters, class Suggested>
void ShowRosters(ScreenHost& host, RosterUse use, const Suggested& suggested) {
  const auto screen = Load<Rosters>(host).shared_from_this();
  auto& rosters = dynamic_cast<Rosters&>(*screen);
  rosters.SuggestRoster(suggested);
  rosters.SetUse(use);
  host.ShowModal(rosters);
  host.Unload(rosters);
}

}  // namespace

void ShowKelvaneRosters(SharedState& state, ScreenHost& host, RosterUse use,
                        const std::string& suggested) {
  ThenCloseFiles(state, [&] { ShowRosters<LoadRoster>(host, use, suggested); });
}

void ShowQuenbyRosters(SharedState& state, ScreenHost& host, RosterUse use,
                       std::int32_t suggested) {
  ThenCloseFiles(state, [&] {
    state.StoreDataPath = state.QBDataPath;
    state.Program().OpenRosterListFile();
    if (use == RosterUse::kManage) state.Player().OpenRosterFile();  // to delete rosters
    ShowRosters<LoadRosters>(host, use, suggested);
  });
}

}  // namespace golf
