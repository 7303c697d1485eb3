#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "outlets/export/exporters.h"
#include "outlets/free_records.h"
#include "stores/quenby/roster_players.h"
#include "stores/quenby/tournament_control.h"

namespace golf {
namespace {

struct ExportedGolfers {
  ExportedIds ids;
  std::int64_t records = 0;  // in the file
};

// Exports the records of a tournament.
class TournamentExport {
 public:
  TournamentExport(ExportRun& run, const ExportedCourses& courses, const ExportedGolfers& golfers,
                   std::int32_t number)
      : run_(run), courses_(courses), golfers_(golfers) {
    exported_.number = number;
    exported_.id = run.NextId(TableId::kTournaments);
  }

  // Returns the ids of the tournament, or nothing if the control file has no record.
  std::optional<ExportedTournament> Run() {
    const auto control = run_.ReadSingle<TournamentLayout>(FileWith(".Q9C"));
    const bool has_control = control.has_value();
    if (!has_control) {
      run_.AddWithoutFields(TableId::kTournaments, {exported_.id, std::int64_t{exported_.number}});
    } else {
      control_ = *control;
      AddControl();
    }
    std::int64_t last = 0;
    run_.ForEach<TeamLayout>(FileWith(".Q9T"), [&](std::int64_t number, const auto& team) {
      AddTeam(number, team);
      last = number;
    });
    // The program also uses teams that have no record yet.
    while (has_control && last < Teams()) AddTeamWithoutRecord(++last);
    run_.ForEach<TournamentPlayerLayout>(FileWith(".Q9G"),
                                         [&](std::int64_t record, const auto& entry) {
                                           if (run_.IsWanted(IsDeleted(entry), entry.Bytes()))
                                             AddEntry(record, entry);
                                         });
    if (!has_control) return std::nullopt;
    return std::move(exported_);
  }

  std::int64_t id() const { return exported_.id; }

 private:
  std::string FileWith(std::string_view extension) const {
    return run_.files().NameOf(run_.state().QBDataPath,
                               TournamentFileName(exported_.number, extension));
  }

  void AddControl() {
    const std::int64_t id = exported_.id;
    const std::string_view bytes = control_.Bytes();
    run_.Add(TableId::kTournaments, {id, std::int64_t{exported_.number}}, {}, bytes);
    const auto course_of = [&](int round) { return control_.Get<"CourseNumberPlayed">(round); };
    run_.AddElements(
        TableId::kTournamentRounds, id, bytes,
        [&](std::span<const int> indexes) {
          return std::vector{courses_.CourseId(course_of(indexes[0]))};
        },
        [&](std::span<const int> indexes) { return IsPlayed(indexes[0]); });
    run_.AddElements(TableId::kTournamentTees, id, bytes, [&](std::span<const int> indexes) {
      const int tee = control_.Get<"TeeNumberPlayed">(indexes[0], indexes[1], indexes[2]);
      return std::vector{courses_.TeeId(course_of(indexes[2]), tee)};
    });
    run_.AddElements(TableId::kTournamentFlights, id, bytes);
    run_.AddElements(TableId::kTournamentPoints, id, bytes);
    run_.AddElements(TableId::kTournamentPeoriaHoles, id, bytes);
  }

  bool IsPlayed(int round) const { return round <= control_.Get<"NumRounds">(); }

  void AddTeam(std::int64_t number, const Record<TeamLayout>& team) {
    // The file contains more teams than the tournament uses.
    const bool is_deleted = number > Teams();
    if (!run_.IsWanted(is_deleted, team.Bytes())) return;
    const std::int64_t id = run_.NextId(TableId::kTeams);
    exported_.teams.Add(number, id);
    run_.Add(TableId::kTeams, {id, exported_.id, number, is_deleted}, {}, team.Bytes());
    run_.AddElements(TableId::kTeamRounds, id, team.Bytes(), [&](std::span<const int> indexes) {
      return std::vector{courses_.CourseId(team.Get<"CourseNumberPlayed">(indexes[0]))};
    });
  }

  void AddTeamWithoutRecord(std::int64_t number) {
    const std::int64_t id = run_.NextId(TableId::kTeams);
    exported_.teams.Add(number, id);
    run_.AddWithoutFields(TableId::kTeams, {id, exported_.id, number, false});
  }

  int Teams() const { return std::clamp<int>(control_.Get<"NumTeams">(), 1, kMostTeams); }

  // An entry is also free if the file of golfers does not have the record.
  bool IsDeleted(const Record<TournamentPlayerLayout>& entry) const {
    return IsFree(entry) || entry.Get<"TourRosterRecordPointer">() > golfers_.records;
  }

  void AddEntry(std::int64_t record, const Record<TournamentPlayerLayout>& entry) {
    const std::int64_t id = run_.NextId(TableId::kEntries);
    exported_.entries.Add(record, id);
    const std::string_view bytes = entry.Bytes();
    run_.Add(TableId::kEntries, {id, exported_.id, record, IsDeleted(entry)},
             {golfers_.ids.Find(entry.Get<"TourRosterRecordPointer">())}, bytes);
    run_.AddElements(
        TableId::kEntryRounds, id, bytes,
        [&](std::span<const int> indexes) {
          return std::vector{exported_.teams.Find(entry.Get<"TourTeamOn">(indexes[0]))};
        },
        [&](std::span<const int> indexes) { return IsPlayed(indexes[0]); });
    run_.AddElements(TableId::kEntryScores, id, bytes);
    run_.AddElements(TableId::kEntryTrials, id, bytes, [&](std::span<const int> indexes) {
      return std::vector{exported_.teams.Find(entry.Get<"TourTeamOnInTrial">(indexes[0]))};
    });
  }

  ExportRun& run_;
  const ExportedCourses& courses_;
  const ExportedGolfers& golfers_;
  ExportedTournament exported_;
  Record<TournamentLayout> control_;
};

ExportedIds ExportRosters(ExportRun& run, const std::string& file) {
  ExportedIds rosters;
  run.ForEach<RosterLayout>(file, [&](std::int64_t number, const auto& roster) {
    if (!run.IsWanted(IsFree(roster), roster.Bytes())) return;
    const std::int64_t id = run.NextId(TableId::kQuenbyRosters);
    rosters.Add(number, id);
    run.Add(TableId::kQuenbyRosters, {id, number, IsFree(roster)}, {}, roster.Bytes());
  });
  return rosters;
}

ExportedGolfers ExportGolfers(ExportRun& run, const std::string& file, const ExportedIds& rosters) {
  ExportedGolfers golfers;
  run.ForEach<PlayerLayout>(file, [&](std::int64_t record, const auto& golfer) {
    golfers.records = record;
    if (!run.IsWanted(IsFree(golfer), golfer.Bytes())) return;
    const std::int64_t id = run.NextId(TableId::kQuenbyGolfers);
    golfers.ids.Add(record, id);
    run.Add(TableId::kQuenbyGolfers, {id, record, IsFree(golfer)}, {}, golfer.Bytes());
    run.AddElements(TableId::kQuenbyGolferRosters, id, golfer.Bytes(),
                    [&](std::span<const int> indexes) {
                      return std::vector{rosters.Find(golfer.template Get<"Rosters">(indexes[0]))};
                    });
  });
  return golfers;
}

}  // namespace

void ExportQuenby(ExportRun& run, const ExportedCourses& courses,
                  const std::function<void(const ExportedTournament&)>& each) {
  const std::string& folder = run.state().QBDataPath;
  const auto file = [&](const char* name) { return run.files().NameOf(folder, name); };
  const ExportedIds rosters = ExportRosters(run, file("QBROSTER.Q9D"));
  const ExportedGolfers golfers = ExportGolfers(run, file("QBGOLFER.Q9D"), rosters);
  std::map<std::int64_t, std::int64_t> tournaments;  // ids by number
  for (const std::string& control : run.files().FilesLike(folder, "X*.Q9C")) {
    const std::int32_t number = TournamentOfFile(control).value_or(0);
    if (number < 1) continue;
    TournamentExport tournament(run, courses, golfers, number);
    tournaments[number] = tournament.id();
    if (const auto exported = tournament.Run()) each(*exported);
  }
  if (const auto master = run.ReadSingle<MasterLayout>(file("QBMASTER.Q9D"))) {
    const auto active = tournaments.find(master->Get<"ActiveTournament">());
    run.Add(TableId::kQuenbyMaster, {},
            {rosters.Find(master->Get<"ActiveRoster">()),
             active == tournaments.end() ? 0 : active->second},
            master->Bytes());
  }
}

}  // namespace golf
