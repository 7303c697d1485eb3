#include "scoring/open_tournament.h"

#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"
#include "scoring/tournament_class.h"
#include "stores/course/course_library.h"

namespace golf {

void OpenTournament(SharedState& state, std::int32_t tournament) {
  state.StoreDataPath = state.QBDataPath;
  OpenCourseLibrary(state, kQuenbyCourses);
  state.Player().OpenRosterFile();
  state.Player().TourOpenTournamentFile(tournament);
  state.Team1().OpenTeamFile(tournament);
  state.Tournament().OpenTournamentControlFile(tournament);
  state.Tournament().GetRecord();
}

}  // namespace golf
