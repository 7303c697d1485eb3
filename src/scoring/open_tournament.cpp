#include "scoring/open_tournament.h"

#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"
#include "scoring/tournament_class.h"
#include "stores/course/course_class.h"

namespace golf {

void OpenTournament(SharedState& state, std::int32_t tournament) {
  state.CourseDataPath = state.StoreDataPath = state.QBDataPath;
  state.Course().SetActiveProgram("QB");
  state.Course().OpenCourseFile();
  state.Player().OpenRosterFile();
  state.Player().TourOpenTournamentFile(tournament);
  state.Team1().OpenTeamFile(tournament);
  state.Tournament().OpenTournamentControlFile(tournament);
  state.Tournament().GetRecord();
}

}  // namespace golf
