#include "outlets/checkup/check_zandel.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "core/text.h"
#include "stores/zandel/zandel_files.h"
#include "stores/zandel/zandel_layouts.h"

namespace golf {
namespace {

// These are the scores that the transfer to Kelvane accepts.
constexpr int kLowestScore = 21;
constexpr int kHighestScore = 199;
constexpr std::size_t kLeagueName = 4;  // characters of a base that name the league

// Maps the files of substitutes that were read to their numbers of records. All divisions of a
// league share a file.
using SubstituteFiles = std::map<std::string, std::optional<std::int64_t>>;

class DivisionCheck {
 public:
  DivisionCheck(FileScan& scan, const KnownCourses& courses, SubstituteFiles& substitutes,
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
      scan_.Add(FindingCode::kFileLength, base_ + ".ZL8", 0, title_,
                "The league has no control record.");
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
    if (event >= 0 && event <= kLeagueEvents) return;
    scan_.Add(FindingCode::kLeagueEvent, base_ + ".ZL8", 1, title_,
              "The current event is " + std::to_string(event) + ", but there are 50 at most.");
  }

  void CheckTeams() {
    const auto teams = scan_.ForEach<LeagueTeamLayout>(
        base_ + ".ZT8", true, [&](std::int64_t record, const auto& team) {
          for (int event = 1; event <= LastEvent(); ++event) {
            const int number = team.template Get<"EventCourse">(event);
            if (!courses_.is_read || number == 0 || courses_.Find(number) != nullptr) continue;
            scan_.Add(FindingCode::kLeagueCourse, base_ + ".ZT8", record, title_,
                      "Team " + std::to_string(record) + " plays event " + std::to_string(event) +
                          " on course " + std::to_string(number) + ", which does not exist.");
          }
        });
    has_teams_ = teams.has_value();
    teams_ = teams.value_or(0);
  }

  void CheckPlayers() {
    const std::int64_t wanted =
        std::int64_t{control_.Get<"PlayerFactor1">()} * control_.Get<"PlayerFactor2">();
    const std::string file = base_ + ".ZP8";
    const auto players = ReadPlayers(file, 1, wanted);
    if (!players || *players == wanted) return;
    scan_.Add(FindingCode::kFileSizes, file, 0, title_,
              "The file has " + std::to_string(*players) + " players, but the league has " +
                  std::to_string(wanted) + ".");
  }

  void CheckSubstitutes() {
    const std::size_t slash = base_.rfind('/') + 1;
    const std::string file = base_.substr(0, slash + kLeagueName) + ".ZS8";
    const int last = control_.Get<"LastSubRecord">();
    const auto [known, is_new] = substitutes_.emplace(file, std::nullopt);
    if (is_new) known->second = ReadPlayers(file, kFirstSubstitute, last);
    const std::optional<std::int64_t>& count = known->second;
    if (!count || last < kFirstSubstitute || last <= *count) return;
    scan_.Add(FindingCode::kLeagueSubstitutes, base_ + ".ZL8", 1, title_,
              "The last substitute is record " + std::to_string(last) + ", but the file has " +
                  std::to_string(*count) + " records.");
  }

  std::optional<std::int64_t> ReadPlayers(const std::string& file, std::int64_t first,
                                          std::int64_t last) {
    KnownGolfers golfers{.file = file, .golfers = {}};
    const auto count =
        scan_.ForEach<LeaguePlayerLayout>(file, true, [&](std::int64_t record, const auto& player) {
          if (record < first || record > last || !HasLastName(player)) return;
          KnownGolfer golfer{.record = record,
                             .id = player.template Get<"GolferID">(),
                             .first = WithoutPadding(player.template Get<"FirstName">()),
                             .last = WithoutPadding(player.template Get<"LastName">())};
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
        scan_.Add(FindingCode::kLeagueEvent, file, golfer.record, golfer.Title(),
                  "The golfer has a score in event " + std::to_string(event) +
                      ", but the current event is " +
                      std::to_string(control_.Get<"CurrentEvent">()) + ".");
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

  void CheckEvents() {
    const auto events =
        scan_.ForEach<LeagueEventLayout>(base_ + ".ZE8", true, [](std::int64_t, const auto&) {});
    const int wanted = control_.Get<"EventCount">();
    if (!events || *events >= wanted) return;
    scan_.Add(FindingCode::kFileSizes, base_ + ".ZE8", 0, title_,
              "The file has " + std::to_string(*events) + " events, but the league has " +
                  std::to_string(wanted) + ".");
  }

  // Returns the last event that can have scores, 0 to 50.
  int LastEvent() const {
    return std::clamp<int>(control_.Get<"CurrentEvent">(), 0, kLeagueEvents);
  }

  FileScan& scan_;
  const KnownCourses& courses_;
  SubstituteFiles& substitutes_;
  std::vector<KnownGolfers>& known_;
  std::string base_;  // of the paths of the division's files
  std::string title_;
  Record<LeagueControlLayout> control_;
  bool has_teams_ = false;
  std::int64_t teams_ = 0;
};

}  // namespace

std::vector<KnownGolfers> CheckZandel(FileScan& scan, const KnownCourses& courses) {
  std::vector<KnownGolfers> known;
  SubstituteFiles substitutes;
  for (const std::string& file : scan.FilesLike(scan.state().ZDDataPath, "?????.ZL8")) {
    DivisionCheck(scan, courses, substitutes, known, file.substr(0, file.rfind('.'))).Run();
  }
  return known;
}

}  // namespace golf
