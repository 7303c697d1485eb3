#include "transfers/tournament_update.h"

#include "core/number_text.h"
#include "stores/course/course_library.h"
#include "stores/quenby/tournament_players.h"

namespace golf {
namespace {

// Copies the golfer's values to the entry. Returns false if the entry had the same values before.
bool UpdateEntry(TournamentPlayers& player, std::int32_t entry) {
  const std::string before(player.StoredEntry().Bytes());
  for (int round = 1; round <= kRounds; ++round) {
    player.SetTourIndex(round, LeadingNumber(player.IndexValue()));
    player.SetTourGrossHandicap(round, LeadingNumber(player.HandicapValue(true)));
  }
  const bool changed = player.StoredEntry().Bytes() != before;
  player.SaveRecord(entry, true);
  return changed;
}

std::string EntryTitle(const TournamentPlayers& player, std::int64_t entry) {
  const std::string name = player.NameLF();
  return name.empty() ? "Entry " + std::to_string(entry) + " of the tournament" : name;
}

}  // namespace

void Run(SharedState& state, RunHost& host, const TournamentUpdateRequest& request,
         TournamentUpdateReport& report) {
  OpenCourseLibrary(state, kQuenbyCourses);
  TournamentPlayers& player = state.PlayerRecords();
  player.OpenRosterFile();
  player.TourOpenTournamentFile(request.tournament);
  const auto update = [&](std::int64_t number) {
    const auto entry = static_cast<std::int32_t>(number);
    const bool read = ReadOrLeaveOut(
        host, report, [&] { player.GetRecord(entry, true); },
        [&] { return Who("Entry " + std::to_string(entry) + " of the tournament"); });
    if (!read || player.TourRosterRecordPointer() <= 0) return true;
    host.Group(player.NameFL());
    if (!UpdateEntry(player, entry)) {
      report.left_out.Add(EntryTitle(player, entry), left_out::kUnchanged);
    }
    return true;
  };
  TakeInOrder(report, player.TourFileLength(), update, [&](std::int64_t entry) {
    player.GetRecord(static_cast<std::int32_t>(entry), true);
    return player.TourRosterRecordPointer() > 0 ? EntryTitle(player, entry) : std::string();
  });
  report.end = RunEnd::kDone;
}

}  // namespace golf
