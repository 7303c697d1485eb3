#include <algorithm>
#include <string>
#include <vector>

#include "core/text.h"
#include "outlets/export/exporters.h"
#include "outlets/free_records.h"
#include "stores/zandel/zandel_files.h"

namespace golf {
namespace {

constexpr std::size_t kLeagueName = 4;  // characters of a base that name the league

// Exports the files of a division, and those of the whole league with its first division.
class DivisionExport {
 public:
  DivisionExport(ExportRun& run, const ExportedCourses& courses, const std::string& base)
      : run_(run),
        courses_(courses),
        name_(base),
        base_(run.files().NameOf(run.state().ZDDataPath, base)),
        id_(run.NextId(TableId::kLeagues)) {}

  // `is_only` is true if the league has no other division.
  void Run(bool with_substitutes, bool is_only) {
    is_only_ = is_only;
    const auto control = run_.ReadSingle<LeagueControlLayout>(base_ + ".ZL8");
    control_ = control.value_or(Record<LeagueControlLayout>());
    ExportEvents();
    AddLeague(control.has_value());
    ExportTeams();
    const std::int64_t last_player =
        std::int64_t{control_.Get<"PlayerFactor1">()} * control_.Get<"PlayerFactor2">();
    ExportPlayers(base_ + ".ZP8", false, 1, last_player);
    if (!with_substitutes) return;
    const std::string league = run_.files().NameOf(run_.state().ZDDataPath, LeagueName());
    ExportPlayers(league + ".ZS8", true, kFirstSubstitute, control_.Get<"LastSubRecord">());
  }

 private:
  std::string LeagueName() const { return name_.substr(0, kLeagueName); }

  void AddLeague(bool has_control) {
    const std::int64_t division = name_.back() - '0';
    const std::string league = LeagueName();
    if (!has_control) {
      return run_.AddWithoutFields(TableId::kLeagues, {id_, name_, league, division});
    }
    run_.Add(TableId::kLeagues, {id_, name_, league, division},
             {events_.Find(control_.Get<"CurrentEvent">())}, control_.Bytes());
  }

  void ExportEvents() {
    run_.ForEach<LeagueEventLayout>(base_ + ".ZE8", [&](std::int64_t number, const auto& event) {
      const std::int64_t id = run_.NextId(TableId::kLeagueEvents);
      events_.Add(number, id);
      run_.Add(TableId::kLeagueEvents, {id, id_, number}, {}, event.Bytes());
    });
  }

  void ExportTeams() {
    run_.ForEach<LeagueTeamLayout>(base_ + ".ZT8", [&](std::int64_t number, const auto& team) {
      const std::int64_t id = run_.NextId(TableId::kLeagueTeams);
      teams_.Add(number, id);
      run_.Add(TableId::kLeagueTeams, {id, id_, number}, {}, team.Bytes());
      run_.AddElements(
          TableId::kLeagueTeamEvents, id, team.Bytes(), [&](std::span<const int> indexes) {
            const int event = indexes[0];
            const int course = team.template Get<"EventCourse">(event);
            const auto tee = [&](int sex) {
              return courses_.TeeId(course, team.template Get<"EventTee">(event, sex));
            };
            return std::vector{events_.Find(event), courses_.CourseId(course), tee(1), tee(2)};
          });
    });
  }

  // Records outside `first` to `last` are not in use.
  void ExportPlayers(const std::string& file, bool are_substitutes, std::int64_t first,
                     std::int64_t last) {
    run_.ForEach<LeaguePlayerLayout>(file, [&](std::int64_t record, const auto& player) {
      const bool is_deleted = IsFree(player) || record < first || record > last;
      if (!run_.IsWanted(is_deleted, player.Bytes())) return;
      const std::int64_t id = run_.NextId(TableId::kLeaguePlayers);
      run_.Add(TableId::kLeaguePlayers, {id, id_, record, are_substitutes, is_deleted}, {},
               player.Bytes());
      // A substitute can play in any division, so his teams and events may not be known.
      const auto find = [&](const ExportedIds& ids, int number) {
        return are_substitutes && !is_only_ ? 0 : ids.Find(number);
      };
      run_.AddElements(TableId::kLeaguePlayerEvents, id, player.Bytes(),
                       [&](std::span<const int> indexes) {
                         const int team = player.template Get<"EventTeam">(indexes[0]);
                         return std::vector{find(events_, indexes[0]), find(teams_, team)};
                       });
      run_.AddElements(
          TableId::kLeaguePlayerScores, id, player.Bytes(), [&](std::span<const int> indexes) {
            return std::vector{find(events_, player.template Get<"NonEventBefore">(indexes[0]))};
          });
    });
  }

  ExportRun& run_;
  const ExportedCourses& courses_;
  std::string name_;
  std::string base_;  // of the paths of the division's files
  std::int64_t id_;
  bool is_only_ = false;
  Record<LeagueControlLayout> control_;
  ExportedIds events_;
  ExportedIds teams_;
};

}  // namespace

void ExportZandel(ExportRun& run, const ExportedCourses& courses) {
  std::vector<std::string> bases = run.files().BasesLike(run.state().ZDDataPath, "0????", {".ZL8"});
  std::erase_if(bases, [](const std::string& base) { return base[4] < '0' || base[4] > '9'; });
  const auto are_of_one_league = [&](std::size_t first, std::size_t second) {
    return second < bases.size() && EqualIgnoringCase(bases[first].substr(0, kLeagueName),
                                                      bases[second].substr(0, kLeagueName));
  };
  for (std::size_t i = 0; i < bases.size(); ++i) {
    const bool is_first = i == 0 || !are_of_one_league(i - 1, i);
    const bool is_only = is_first && !are_of_one_league(i, i + 1);
    DivisionExport(run, courses, bases[i]).Run(is_first, is_only);
  }
}

}  // namespace golf
