#include "outlets/checkup/check_zandel.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "core/text.h"
#include "outlets/checkup/possible_days.h"
#include "stores/zandel/zandel_files.h"
#include "stores/zandel/zandel_layouts.h"

namespace golf {
namespace {

// These are the scores that the transfer to Kelvane accepts.
constexpr int kLowestScore = 21;
constexpr int kHighestScore = 199;
constexpr std::size_t kLeagueName = 4;  // characters of a base that name the league

class DivisionCheck {
 public:
  DivisionCheck(FileScan& scan, const KnownCourses& courses, std::set<std::string>& substitutes,
                std::vector<KnownGolfers>& known, const std::string& base)
      : scan_(scan),
        courses_(courses),
        substitutes_(substitutes),
        known_(known),
        base_(scan.NameOf(scan.state().ZDDataPath, base)) {}

  void Run() {
    const auto controls = scan_.ForEach<LeagueControlLayout>(
        base_ + ".ZL8", true, [&](std::int64_t record, const auto& control) {
          if (record == 1) control_ = control;
        });
    if (!controls) return;
    title_ = WithoutPadding(control_.Get<"LeagueName">());
    if (*controls == 0) {
      if (!scan_.IsDamaged(base_ + ".ZL8")) {
        scan_.Add(FindingCode::kFileLength, base_ + ".ZL8", 0, title_,
                  "The league has no control record.");
      }
      return;
    }
    CheckCurrentEvent();
    CheckTeams();
    CheckPlayers();
    CheckSubstitutes();
    CheckEvents();
  }

 private:
  void CheckCurrentEvent() {
    const int event = control_.Get<"CurrentEvent">();
    // The current event is the one to be played next, so it can follow the last one.
    const int last = std::clamp<int>(control_.Get<"EventCount">(), 0, kLeagueEvents);
    if (event >= 0 && event <= last + 1) return;
    scan_.Add(FindingCode::kLeagueEvent, base_ + ".ZL8", 1, title_,
              "The current event is " + std::to_string(event) + ", but the league has " +
                  std::to_string(last) + " events.");
  }

  void CheckTeams() {
    const std::string file = base_ + ".ZT8";
    const int events = std::clamp<int>(control_.Get<"EventCount">(), 0, kLeagueEvents);
    const auto teams =
        scan_.ForEach<LeagueTeamLayout>(file, true, [&](std::int64_t record, const auto& team) {
          for (int event = 1; event <= events; ++event) {
            const int number = team.template Get<"EventCourse">(event);
            if (!courses_.is_read || number == 0 || courses_.Find(number) != nullptr) continue;
            scan_.Add(FindingCode::kLeagueCourse, file, record, title_,
                      "Team " + std::to_string(record) + " plays event " + std::to_string(event) +
                          " on course " + std::to_string(number) + ", which does not exist.");
            break;
          }
        });
    has_teams_ = teams.has_value() && !scan_.IsDamaged(file);
    teams_ = teams.value_or(0);
    if (has_teams_) CompareSizes(file, teams_, control_.Get<"PlayerFactor1">(), "teams");
  }

  void CheckPlayers() {
    const std::int64_t wanted =
        std::int64_t{control_.Get<"PlayerFactor1">()} * control_.Get<"PlayerFactor2">();
    const std::string file = base_ + ".ZP8";
    const auto players = ReadPlayers(file, 1, wanted);
    ReportLaterScores(file);
    if (players && !scan_.IsDamaged(file)) CompareSizes(file, *players, wanted, "players");
  }

  void CompareSizes(const std::string& file, std::int64_t count, std::int64_t wanted,
                    std::string_view what) {
    if (count == wanted) return;
    scan_.Add(FindingCode::kFileSizes, file, 0, title_,
              "The file has " + std::to_string(count) + " " + std::string(what) +
                  ", but the league has " + std::to_string(wanted) + ".");
  }

  void CheckSubstitutes() {
    const std::size_t slash = base_.rfind('/') + 1;
    const std::string file = base_.substr(0, slash + kLeagueName) + ".ZS8";
    const int last = control_.Get<"LastSubRecord">();
    if (!substitutes_.insert(file).second) return;  // the other divisions have the same file
    const auto count = ReadPlayers(file, kFirstSubstitute, last);
    ReportLaterScores(file);
    if (!count || scan_.IsDamaged(file)) return;
    if (last_player_ > std::max(last, kFirstSubstitute - 1)) {
      scan_.Add(FindingCode::kLeagueSubstitutes, base_ + ".ZL8", 1, title_,
                "The last substitute is record " + std::to_string(last) + ", but record " +
                    std::to_string(last_player_) + " of the file contains one, too.");
    }
    if (last < kFirstSubstitute || last <= *count) return;
    scan_.Add(FindingCode::kLeagueSubstitutes, base_ + ".ZL8", 1, title_,
              "The last substitute is record " + std::to_string(last) + ", but the file has " +
                  std::to_string(*count) + " records.");
  }

  std::optional<std::int64_t> ReadPlayers(const std::string& file, std::int64_t first,
                                          std::int64_t last) {
    KnownGolfers golfers{.file = file, .golfers = {}};
    TwinCheck twins(scan_, file);
    last_player_ = 0;
    later_.clear();
    const auto count =
        scan_.ForEach<LeaguePlayerLayout>(file, true, [&](std::int64_t record, const auto& player) {
          if (record < first || !HasLastName(player)) return;
          last_player_ = record;
          if (record > last) return;
          KnownGolfer golfer{.record = record,
                             .id = player.template Get<"GolferID">(),
                             .first = WithoutPadding(player.template Get<"FirstName">()),
                             .last = WithoutPadding(player.template Get<"LastName">())};
          twins.Add(golfer, {});
          CheckPlayer(file, golfer, player);
          golfers.golfers.push_back(std::move(golfer));
        });
    known_.push_back(std::move(golfers));
    return count;
  }

  void CheckPlayer(const std::string& file, const KnownGolfer& golfer,
                   const Record<LeaguePlayerLayout>& player) {
    for (int event = 1; event <= kLeagueEvents; ++event) {
      if (player.Get<"EventScore">(event) == 0) continue;
      if (event > LastEvent()) {
        later_.emplace_back(golfer, event);
        return;
      }
      const int score = player.Get<"EventScore">(event);
      if (score < kLowestScore || score > kHighestScore) {
        scan_.Add(
            FindingCode::kLeagueScore, file, golfer.record, golfer.Title(),
            "The score of event " + std::to_string(event) + " is " + std::to_string(score) + ".");
        return;
      }
      const int team = player.Get<"EventTeam">(event);
      if (!has_teams_ || (team >= 0 && team <= teams_)) continue;
      scan_.Add(FindingCode::kLeagueTeam, file, golfer.record, golfer.Title(),
                "In event " + std::to_string(event) + " the golfer plays for team " +
                    std::to_string(team) + ", but the league has " + std::to_string(teams_) +
                    " teams.");
      return;
    }
  }

  // Reports scores of events after the current one. If several golfers have one, the current event
  // is most likely wrong.
  void ReportLaterScores(const std::string& file) {
    const std::string current =
        ", but the current event is " + std::to_string(control_.Get<"CurrentEvent">()) + ".";
    if (is_event_wrong_) return;
    if (later_.size() > 2) {
      is_event_wrong_ = true;
      scan_.Add(FindingCode::kLeagueEvent, base_ + ".ZL8", 1, title_,
                std::to_string(later_.size()) + " golfers have scores in later events" + current);
      return;
    }
    for (const auto& [golfer, event] : later_) {
      scan_.Add(FindingCode::kLeagueEvent, file, golfer.record, golfer.Title(),
                "The golfer has a score in event " + std::to_string(event) + current);
    }
  }

  void CheckEvents() {
    const std::string file = base_ + ".ZE8";
    const int wanted = control_.Get<"EventCount">();
    const auto events =
        scan_.ForEach<LeagueEventLayout>(file, true, [&](std::int64_t record, const auto& event) {
          if (record > wanted || IsPossibleDay(event.template Get<"EventDate">())) return;
          scan_.Add(FindingCode::kLeagueDate, file, record, title_,
                    "Event " + std::to_string(record) + " has no possible date.");
        });
    if (events && !scan_.IsDamaged(file)) CompareSizes(file, *events, wanted, "events");
  }

  // Returns the last event that can have scores, 0 to 50.
  int LastEvent() const {
    return std::clamp<int>(control_.Get<"CurrentEvent">(), 0, kLeagueEvents);
  }

  FileScan& scan_;
  const KnownCourses& courses_;
  std::set<std::string>& substitutes_;  // the files that were read
  std::vector<KnownGolfers>& known_;
  std::string base_;  // of the paths of the division's files
  std::string title_;
  Record<LeagueControlLayout> control_;
  bool has_teams_ = false;
  std::int64_t teams_ = 0;
  bool is_event_wrong_ = false;  // true if the current event is reported
  // These members are those of the last file of players.
  std::int64_t last_player_ = 0;
  std::vector<std::pair<KnownGolfer, int>> later_;  // golfers with the event of their later score
};

}  // namespace

std::vector<KnownGolfers> CheckZandel(FileScan& scan, const KnownCourses& courses) {
  std::vector<KnownGolfers> known;
  std::set<std::string> substitutes;
  const std::string& folder = scan.state().ZDDataPath;
  for (const std::string& base :
       scan.BasesLike(folder, "?????", {".ZL8", ".ZP8", ".ZT8", ".ZE8"})) {
    DivisionCheck(scan, courses, substitutes, known, base).Run();
  }
  return known;
}

}  // namespace golf
