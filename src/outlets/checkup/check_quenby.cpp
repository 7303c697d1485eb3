#include "outlets/checkup/check_quenby.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <unordered_map>
#include <utility>

#include "core/date_value.h"
#include "core/text.h"
#include "outlets/checkup/possible_days.h"
#include "stores/quenby/quenby_layouts.h"
#include "stores/quenby/tournament_control.h"

namespace golf {
namespace {

constexpr std::int64_t kFirstGolfer = 10;
constexpr int kRosterSlots = 4;
constexpr int kHoles = 18;
constexpr int kTransferredFlag = 2;
constexpr int kTeeGroups = 5;
constexpr int kHighestHoleScore = 20;
constexpr int kTeams = 200;
constexpr int kMostRounds = 5;
constexpr int kFlights = 26;

class GolferCheck {
 public:
  explicit GolferCheck(FileScan& scan)
      : scan_(scan),
        file_(scan.NameOf(scan.state().QBDataPath, "QBGOLFER.Q9D")),
        twins_(scan, file_) {}

  KnownGolfers Run() {
    ReadMaster();
    ReadRosters();
    known_.file = file_;
    const auto count =
        scan_.ForEach<PlayerLayout>(file_, true, [&](std::int64_t record, const auto& golfer) {
          if (record >= kFirstGolfer && golfer.template Get<"IDNum">() > 0) Add(record, golfer);
        });
    known_.is_read = count && !scan_.IsDamaged(file_);
    return std::move(known_);
  }

 private:
  void ReadMaster() {
    const std::string file = scan_.NameOf(scan_.state().QBDataPath, "QBMASTER.Q9D");
    scan_.ForEach<MasterLayout>(file, true, [&](std::int64_t record, const auto& master) {
      if (record != 1) return;
      birthday_ = BirthdayIndex(
          2, [&](int index) { return master.template Get<"MiscDateFieldName">(index); });
    });
  }

  void ReadRosters() {
    const std::string file = scan_.NameOf(scan_.state().QBDataPath, "QBROSTER.Q9D");
    const bool is_read =
        scan_
            .ForEach<RosterLayout>(file, true,
                                   [&](std::int64_t record, const auto& roster) {
                                     if (roster.template Get<"IsRosterActive">() != 0) {
                                       rosters_.insert(record);
                                     }
                                   })
            .has_value();
    has_rosters_ = is_read && !scan_.IsDamaged(file);
  }

  void Add(std::int64_t record, const Record<PlayerLayout>& golfer) {
    KnownGolfer known{.record = record,
                      .id = golfer.Get<"IDNum">(),
                      .first = WithoutPadding(golfer.Get<"NameFirst">()),
                      .last = WithoutPadding(golfer.Get<"NameLast">()),
                      .sex = golfer.Get<"Sex">() == 1 ? 1 : 0};
    twins_.Add(known, {BirthdayOf(golfer, birthday_), DateAndAddressOf(golfer), CopyOf(golfer)});
    int named = 0;
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      const std::int64_t roster = golfer.Get<"Rosters">(slot);
      if (roster == 0) continue;
      ++named;
      if (!has_rosters_ || rosters_.contains(roster)) continue;
      scan_.Add(FindingCode::kRosterMissing, file_, record, known.Title(),
                "The golfer is on roster " + std::to_string(roster) + ", which does not exist.");
    }
    if (named == 0) {
      scan_.Add(FindingCode::kGolferOnNoRoster, file_, record, known.Title(),
                "The golfer is on no roster.");
    }
    known_.golfers.push_back(std::move(known));
  }

  FileScan& scan_;
  std::string file_;
  TwinCheck twins_;
  int birthday_ = 0;  // the index of the date that is a birthday, or 0
  bool has_rosters_ = false;
  std::set<std::int64_t> rosters_;
  KnownGolfers known_;
};

class TournamentCheck {
 public:
  TournamentCheck(FileScan& scan, const KnownCourses& courses, KnownQuenby& known,
                  const std::map<std::int64_t, const KnownGolfer*>& golfers,
                  const std::string& name)
      : scan_(scan),
        courses_(courses),
        known_(known),
        golfers_(golfers),
        base_(scan.NameOf(scan.state().QBDataPath, name)) {}

  void Run() {
    const auto controls = scan_.ForEach<TournamentLayout>(
        base_ + ".Q9C", true, [&](std::int64_t record, const auto& control) {
          if (record == 1) control_ = control;
        });
    if (!controls) return;
    title_ = WithoutPadding(control_.Get<"Name">());
    if (*controls == 0) {
      if (!scan_.IsDamaged(base_ + ".Q9C")) {
        scan_.Add(FindingCode::kFileLength, base_ + ".Q9C", 0, title_,
                  "The tournament has no control record.");
      }
      return;
    }
    CheckCounts();
    rounds_ = std::clamp<int>(control_.Get<"NumRounds">(), 1, kMostRounds);
    for (int round = 1; round <= rounds_; ++round) {
      CheckDate(round);
      CheckCourse(round);
    }
    CheckTeams();
    scan_.ForEach<TournamentPlayerLayout>(
        base_ + ".Q9G", true,
        [&](std::int64_t record, const auto& entry) { CheckEntry(record, entry); });
    ReportFullTeams();
  }

 private:
  void CheckCounts() {
    const struct {
      std::string_view what;
      int count;
      int most;
    } kCounts[] = {{"rounds", control_.Get<"NumRounds">(), kMostRounds},
                   {"teams", control_.Get<"NumTeams">(), kTeams},
                   {"flights", control_.Get<"NumFlights">(), kFlights}};
    for (const auto& count : kCounts) {
      if (count.count >= 1 && count.count <= count.most) continue;
      scan_.Add(FindingCode::kTournamentCount, base_ + ".Q9C", 1, title_,
                "The tournament has " + std::to_string(count.count) + " " +
                    std::string(count.what) + ", but 1 to " + std::to_string(count.most) +
                    " are possible.");
    }
  }

  void CheckTeams() {
    const std::string file = base_ + ".Q9T";
    const auto teams = scan_.ForEach<TeamLayout>(file, true, [](std::int64_t, const auto&) {});
    const int wanted = Teams();
    if (!teams || *teams >= wanted || scan_.IsDamaged(file)) return;
    scan_.Add(FindingCode::kFileSizes, file, 0, title_,
              "The file has " + std::to_string(*teams) + " teams, but the tournament has " +
                  std::to_string(wanted) + ".");
  }

  int Teams() const { return std::clamp<int>(control_.Get<"NumTeams">(), 1, kTeams); }

  void CheckDate(int round) {
    const DateValue date = control_.Get<"DateofRound">(round);
    if (IsPossibleDay(date)) return;
    scan_.Add(FindingCode::kTournamentDate, base_ + ".Q9C", 1, title_,
              "Round " + std::to_string(round) + " has no possible date.");
  }

  // Returns the number of tee groups of a sex: 0 men, 1 ladies.
  int TeeGroups(int sex) const {
    return std::clamp<int>(
        sex == 0 ? control_.Get<"NumTeesMenPlay">() : control_.Get<"NumTeesLadiesPlay">(), 0,
        kTeeGroups);
  }

  void CheckCourse(int round) {
    const int number = control_.Get<"CourseNumberPlayed">(round);
    if (!courses_.is_read || number == 0) return;
    const KnownCourse* const course = courses_.Find(number);
    const std::string where =
        "Round " + std::to_string(round) + " is played on course " + std::to_string(number);
    if (course == nullptr) {
      scan_.Add(FindingCode::kTournamentCourse, base_ + ".Q9C", 1, title_,
                where + ", which does not exist.");
      return;
    }
    for (const int group : {0, 1}) {
      for (int tees = 1; tees <= TeeGroups(group); ++tees) {
        const int tee = control_.Get<"TeeNumberPlayed">(group, tees, round);
        if (course->HasTee(tee)) continue;
        scan_.Add(FindingCode::kTournamentTee, base_ + ".Q9C", 1, title_,
                  where + " (" + course->name + "), but tee group " + std::to_string(tees) +
                      (group == 0 ? " of the men" : " of the ladies") + " plays tee " +
                      std::to_string(tee) + ", which is not active.");
      }
    }
  }

  void CheckEntry(std::int64_t record, const Record<TournamentPlayerLayout>& entry) {
    const std::int64_t pointer = entry.Get<"TourRosterRecordPointer">();
    if (pointer < 1) return;
    const auto found = golfers_.find(pointer);
    if (found == golfers_.end()) {
      if (!known_.golfers.is_read) return;
      scan_.Add(FindingCode::kEntryNoGolfer, base_ + ".Q9G", record, title_,
                "The entry is that of golfer record " + std::to_string(pointer) +
                    ", which contains no golfer.");
      return;
    }
    const KnownGolfer& golfer = *found->second;
    const auto [other, is_new] = entries_.emplace(pointer, record);
    if (!is_new) {
      scan_.Add(FindingCode::kEntryTwice, base_ + ".Q9G", record, golfer.Title(),
                "Entry " + std::to_string(other->second) + " is that of the same golfer.");
    }
    for (int round = 1; round <= rounds_; ++round) {
      CheckTeam(record, golfer, round, entry.Get<"TourTeamOn">(round));
      CheckTee(record, golfer, round, entry.Get<"TourGroupTee">(round));
      CheckScores(record, golfer, round, entry);
      AddRound(record, golfer, round, entry);
    }
  }

  void CheckTeam(std::int64_t record, const KnownGolfer& golfer, int round, int team) {
    const int teams = Teams();
    if (team == 0) return;
    if (team < 0 || team > teams) {
      scan_.Add(FindingCode::kEntryTeam, base_ + ".Q9G", record, golfer.Title(),
                "In round " + std::to_string(round) + " the golfer is on team " +
                    std::to_string(team) + ", but the tournament has " + std::to_string(teams) +
                    " teams.");
      return;
    }
    ++members_[{round, team}];
  }

  void CheckTee(std::int64_t record, const KnownGolfer& golfer, int round, int tee) {
    const int groups = TeeGroups(golfer.sex);
    if (groups == 0 || (tee >= 1 && tee <= groups)) return;
    scan_.Add(FindingCode::kEntryTee, base_ + ".Q9G", record, golfer.Title(),
              "In round " + std::to_string(round) + " the golfer plays tee group " +
                  std::to_string(tee) + ", but there are " + std::to_string(groups) + ".");
  }

  // Reports the first impossible score of a round.
  void CheckScores(std::int64_t record, const KnownGolfer& golfer, int round,
                   const Record<TournamentPlayerLayout>& entry) {
    for (int hole = 1; hole <= kHoles; ++hole) {
      const int score = entry.Get<"TourScoreGross">(hole, round);
      if (score >= 0 && score <= kHighestHoleScore) continue;
      scan_.Add(FindingCode::kEntryScore, base_ + ".Q9G", record, golfer.Title(),
                "In round " + std::to_string(round) + " the score of hole " + std::to_string(hole) +
                    " is " + std::to_string(score) + ".");
      return;
    }
  }

  void ReportFullTeams() {
    const int most = control_.Get<"NumPlayersPerTeam">();
    if (most < 1) return;
    for (const auto& [place, members] : members_) {
      if (members <= most) continue;
      scan_.Add(FindingCode::kTeamFull, base_ + ".Q9G", 0, title_,
                "In round " + std::to_string(place.first) + " team " +
                    std::to_string(place.second) + " has " + std::to_string(members) +
                    " golfers, but a team has " + std::to_string(most) + ".");
    }
  }

  void AddRound(std::int64_t record, const KnownGolfer& golfer, int round,
                const Record<TournamentPlayerLayout>& entry) {
    const DateValue date = control_.Get<"DateofRound">(round);
    if (!IsDate(date) || date < 1) return;
    int gross = 0;
    if (control_.Get<"ScoreEntryTotal">() != 0) {
      gross = entry.Get<"TourScoreGrossTotal">(round);
    } else {
      for (int hole = 1; hole <= kHoles; ++hole) {
        const int score = entry.Get<"TourScoreGross">(hole, round);
        gross = score > 0 && (hole == 1 || gross > 0) ? gross + score : 0;
      }
    }
    const bool is_posted = (entry.Get<"TourFlags">(round) & kTransferredFlag) != 0;
    if (!is_posted && gross == 0) return;
    known_.rounds.push_back({base_ + ".Q9G", record, golfer.Title(), golfer.id, round,
                             static_cast<std::int64_t>(date), gross, is_posted});
  }

  FileScan& scan_;
  const KnownCourses& courses_;
  KnownQuenby& known_;
  const std::map<std::int64_t, const KnownGolfer*>& golfers_;  // by record
  std::string base_;  // of the paths of the tournament's files
  std::string title_;
  Record<TournamentLayout> control_;
  int rounds_ = 1;
  std::map<std::int64_t, std::int64_t> entries_;  // by golfer record
  std::map<std::pair<int, int>, int> members_;    // by round and team
};

void CheckPostedRound(FileScan& scan, const PlayedRound& round, const KnownKelvane& kelvane,
                      bool is_member) {
  const auto scores = kelvane.scores.find(round.id);
  bool has_any = false;
  bool has_same = false;
  if (scores != kelvane.scores.end()) {
    const auto [first, last] = scores->second.equal_range(round.day);
    has_any = first != last;
    has_same =
        std::any_of(first, last, [&](const auto& score) { return score.second == round.gross; });
  }
  const std::string day = FormatDay(static_cast<DateValue>(round.day), scan.state().DateFormat);
  const std::string which = "The score of round " + std::to_string(round.round) + " ";
  const auto add = [&](FindingCode code, const std::string& text) {
    scan.Add(code, round.file, round.entry, round.title, which + text);
  };
  if (round.is_posted && !is_member) {
    add(FindingCode::kPostedNotFound,
        "is marked as transferred, but no roster of Kelvane has the "
        "ID number " +
            std::to_string(round.id) + ".");
  } else if (round.is_posted && !has_any) {
    add(FindingCode::kPostedNotFound,
        "is marked as transferred, but Kelvane has no score of the golfer on " + day + ".");
  } else if (round.is_posted && round.gross > 0 && !has_same) {
    add(FindingCode::kPostedNotFound,
        "is marked as transferred, but Kelvane has another score of "
        "the golfer on " +
            day + ".");
  } else if (!round.is_posted && round.gross > 0 && has_same) {
    add(FindingCode::kFoundNotPosted, "is not marked as transferred, but Kelvane has the score " +
                                          std::to_string(round.gross) + " of the golfer on " + day +
                                          ".");
  }
}

}  // namespace

KnownQuenby CheckQuenby(FileScan& scan, const KnownCourses& courses) {
  KnownQuenby known;
  if (!scan.HasFolder(scan.state().QBDataPath)) return known;
  known.golfers = GolferCheck(scan).Run();
  std::map<std::int64_t, const KnownGolfer*> golfers;
  for (const KnownGolfer& golfer : known.golfers.golfers) golfers.emplace(golfer.record, &golfer);
  const std::string& folder = scan.state().QBDataPath;
  for (const std::string& tournament : scan.BasesLike(folder, "X*", {".Q9C", ".Q9G", ".Q9T"})) {
    if (!TournamentOfFile(tournament + ".Q9C")) continue;
    TournamentCheck(scan, courses, known, golfers, tournament).Run();
  }
  return known;
}

void CheckPostedRounds(FileScan& scan, const KnownQuenby& quenby, const KnownKelvane& kelvane) {
  std::set<std::int64_t> members;
  for (const KnownGolfers& roster : kelvane.rosters) {
    for (const KnownGolfer& golfer : roster.golfers) members.insert(golfer.id);
  }
  if (members.empty()) return;
  for (const PlayedRound& round : quenby.rounds) {
    CheckPostedRound(scan, round, kelvane, members.contains(round.id));
  }
}

}  // namespace golf
