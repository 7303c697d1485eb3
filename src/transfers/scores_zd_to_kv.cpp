#include "transfers/scores_zd_to_kv.h"

#include <algorithm>
#include <vector>

#include "stores/course/course_class.h"
#include "stores/course/course_library.h"
#include "stores/kelvane/kelvane_files.h"
#include "stores/kelvane/kelvane_golfer_index.h"
#include "stores/zandel/zandel_files.h"
#include "transfers/league_batch.h"
#include "transfers/league_course_match.h"

namespace golf {
namespace {

constexpr std::uint8_t kTeeIn18Holes = 1;  // the tee of a score without a course
constexpr std::uint8_t kTeeIn9Holes = 2;

bool Has18Holes(SharedState& state) { return state.Kelvane().header.Get<"Holes">() == 18; }

// Returns an error about a golfer's records that contains the golfer's name.
NumberedError WithName(const NumberedError& error, ErrorNumber number,
                       const Record<LeaguePlayerLayout>& player) {
  return {number, "The scores of " + LeagueGolferName(player) +
                      " cannot be transferred: " + error.description()};
}

// Posts the scores of the golfers of the open league in a loop. PostNumber, PostGolfer and
// PostScores return false if the operator has cancelled the transfer, which ends the loop.
class ScorePosting {
 public:
  ScorePosting(SharedState& state, RunHost& host, int batch, ScoresZdToKvReport& report)
      : state_(state),
        host_(host),
        report_(report),
        golfers_(state),
        courses_(state, Has18Holes(state) ? kTeeIn18Holes : kTeeIn9Holes),
        batch_(state, batch, courses_),
        posting_(state, host, report) {}

  void PostAll() {
    FileTable& files = state_.files;
    players_ = files.RecordCount<LeaguePlayerLayout>(kLeaguePlayerFile);
    // No golfers are stored beyond the end of the file.
    last_substitute_ =
        std::min<std::int32_t>(state_.Zandel().control.Get<"LastSubRecord">(),
                               files.RecordCount<LeaguePlayerLayout>(kLeagueSubstituteFile));
    total_ = players_ + std::max(last_substitute_ - kFirstSubstitute + 1, 0);
    TakeInOrder(
        report_, total_, [this](std::int64_t number) { return PostNumber(number); },
        [this](std::int64_t number) {
          Read(number);
          return IsInBatch() ? LeagueGolferNameLF(Player()) : std::string();
        });
  }

 private:
  const Record<LeaguePlayerLayout>& Player() const { return state_.Zandel().player; }

  // Returns the record of a golfer by number. The substitutes follow the players, the last one
  // first.
  std::int64_t RecordOf(std::int64_t number) const {
    return number <= players_ ? number : last_substitute_ - (number - players_ - 1);
  }

  void Read(std::int64_t number) {
    const int file = number <= players_ ? kLeaguePlayerFile : kLeagueSubstituteFile;
    state_.files.Read(file, RecordOf(number), state_.Zandel().player);
  }

  bool PostNumber(std::int64_t number) {
    const bool read = ReadOrLeaveOut(
        host_, report_, [&] { Read(number); },
        [&] {
          return Who("Record " + std::to_string(RecordOf(number)) + " of the league's " +
                     (number <= players_ ? "players" : "substitutes"));
        });
    if (!read) return true;
    host_.Report({number, total_, "SEARCHING for " + Player().Get<"FirstName">()});
    host_.Group(LeagueGolferName(Player()));
    if (Player().Get<"GolferID">() > 0) return PostGolfer(Player());
    if (IsInBatch()) LeaveOutGolfer(left_out::kNoIdNumber);
    return true;
  }

  // Returns true if the record contains a golfer with a score in the batch, or a player of its
  // event.
  bool IsInBatch() const { return HasLastName(Player()) && !batch_.StrokesOfGolfer().empty(); }

  void LeaveOutGolfer(std::string_view reason) {
    report_.left_out.Add(LeagueGolferNameLF(Player()), reason);
  }

  // Posts the player's scores to all golfers of the roster with the player's ID.
  bool PostGolfer(const Record<LeaguePlayerLayout>& player) {
    const auto who = [&] { return Who(LeagueGolferNameLF(player), LeagueGolferName(player)); };
    std::vector<std::int32_t> places;
    const bool searched = ReadOrLeaveOut(
        host_, report_, [&] { places = golfers_.PlacesOf(player.Get<"GolferID">()); }, who);
    if (searched && places.empty()) LeaveOutUnknown();
    bool goes_on = true;
    const auto post = [&](std::int32_t place) {
      state_.files.Read(kKelvaneGolferFile, place, state_.Kelvane().golfer);
      goes_on = PostScores(place);
    };
    auto place = places.begin();
    for (; goes_on && place != places.end(); ++place) {
      ReadOrLeaveOut(
          host_, report_, [&] { post(*place); }, who);
    }
    if (!goes_on && place != places.end()) LeaveOutGolfer(left_out::kNotReached);
    return goes_on;
  }

  // Leaves out a golfer whom the roster does not have. A golfer without a score is left out for
  // that reason.
  void LeaveOutUnknown() {
    if (!IsInBatch()) return;
    const std::vector<int> strokes = batch_.StrokesOfGolfer();
    const bool has_score =
        std::any_of(strokes.begin(), strokes.end(), [](int score) { return score > 0; });
    LeaveOutGolfer(has_score ? left_out::kNotInRoster : left_out::kNoScore);
  }

  bool PostScores(std::int32_t place) {
    try {
      const std::vector<LeagueScore> scores = batch_.ScoresOfGolfer();
      if (scores.empty() && IsInBatch()) LeaveOutGolfer(left_out::kNoTeam);
      const auto last =
          std::find_if_not(scores.begin(), scores.end(),
                           [&](const LeagueScore& score) { return posting_.Post(place, score); });
      if (last == scores.end()) return true;
      if (last + 1 != scores.end()) LeaveOutGolfer(left_out::kNotReached);
      return false;
    } catch (const NumberedError& error) {
      for (const ErrorNumber number : {ErrorNumber::kOverflow, ErrorNumber::kSubscript}) {
        if (error.Is(number)) throw WithName(error, number, state_.Zandel().player);
      }
      throw;
    }
  }

  SharedState& state_;
  RunHost& host_;
  ScoresZdToKvReport& report_;
  KelvaneGolferIndex golfers_;
  LeagueCourseMatch courses_;
  LeagueBatch batch_;
  LeagueScorePosting posting_;
  std::int32_t players_ = 0;
  std::int32_t last_substitute_ = 0;
  std::int64_t total_ = 0;
};

}  // namespace

void Run(SharedState& state, RunHost& host, const ScoresZdToKvRequest& request,
         ScoresZdToKvReport& report) {
  if (!OpenKVRoster(state, request.roster)) {
    report.end = RunEnd::kNoRoster;
    return;
  }
  auto& header = state.Kelvane().header;
  state.files.Read(kKelvaneHeaderFile, 1, header);
  if (!Has18Holes(state) && state.Zandel().control.Get<"LeagueHoles">() == 18) {
    host.Ask(Box{.title = "Notice",
                 .text = "Can not transfer scores from an 18 hole league to a 9 hole handicap "
                         "roster"});
    return;
  }
  header.Set<"Setting153">(1);
  state.files.Write(kKelvaneHeaderFile, 1, header);
  report.log = "===Scores Transfered===";
  report.log.append(kReportLineEnd);
  OpenCourseLibrary(state, state.Course(), kKelvaneCourses);
  OpenCourseLibrary(state, state.SpareCourse(), kZandelCourses);
  host.Begin();
  ScorePosting(state, host, request.batch, report).PostAll();
  report.end = RunEnd::kDone;
}

}  // namespace golf
