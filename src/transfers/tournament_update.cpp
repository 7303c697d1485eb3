#include "transfers/tournament_update.h"

#include "core/number_text.h"
#include "stores/course/course_library.h"
#include "stores/quenby/tournament_players.h"

namespace golf {
namespace {

void UpdateEntry(TournamentPlayers& player, std::int32_t entry) {
  for (int round = 1; round <= kRounds; ++round) {
    player.SetTourIndex(round, LeadingNumber(player.IndexValue()));
    player.SetTourGrossHandicap(round, LeadingNumber(player.HandicapValue(true)));
  }
  player.SaveRecord(entry, true);
}

}  // namespace

void Run(SharedState& state, RunHost& host, const TournamentUpdateRequest& request,
         TournamentUpdateReport& report) {
  OpenCourseLibrary(state, kQuenbyCourses);
  TournamentPlayers& player = state.PlayerRecords();
  player.OpenRosterFile();
  player.TourOpenTournamentFile(request.tournament);
  const std::int32_t entries = player.TourFileLength();
  for (std::int32_t entry = 1; entry <= entries; ++entry) {
    const bool read = ReadOrLeaveOut(
        host, report, [&] { player.GetRecord(entry, true); },
        [&] { return "Entry " + std::to_string(entry) + " of the tournament"; });
    if (!read || player.TourRosterRecordPointer() <= 0) continue;
    host.Group(player.NameFL());
    UpdateEntry(player, entry);
  }
  report.end = RunEnd::kDone;
}

}  // namespace golf
