#include "scoring/open_tournament.h"

#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"
#include "scoring/tournament_class.h"
#include "stores/course/course_library.h"
#include "stores/quenby/program_class.h"

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

// Checks that the control file exists, since opening a missing file would create it.
std::int32_t ActiveTournament(SharedState& state) {
  state.StoreDataPath = state.QBDataPath;
  ProgramClass& program = state.Program();
  program.OpenMasterFile();
  program.GetMasterRecord();
  const std::int32_t active = program.ActiveTournament();
  program.CloseMasterFile();
  const bool exists = active > 0 && state.files.FileExists(state.StoreDataPath +
                                                           TournamentFileName(active, ".Q9C"));
  return exists ? active : 0;
}

}  // namespace golf
