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

// Posts the scores of the golfers of the open league in a loop. A function that returns false ends
// the loop, because the operator has cancelled the transfer.
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

  bool PostAll() {
    FileTable& files = state_.files;
    const auto players = files.RecordCount<LeaguePlayerLayout>(kLeaguePlayerFile);
    // No golfers are stored beyond the end of the file.
    const auto last_substitute =
        std::min<std::int32_t>(state_.Zandel().control.Get<"LastSubRecord">(),
                               files.RecordCount<LeaguePlayerLayout>(kLeagueSubstituteFile));
    total_ = players + std::max(last_substitute - kFirstSubstitute + 1, 0);
    for (std::int32_t record = 1; record <= players; ++record) {
      if (!PostRecord(kLeaguePlayerFile, "players", record)) return false;
    }
    for (std::int32_t record = last_substitute; record >= kFirstSubstitute; --record) {
      if (!PostRecord(kLeagueSubstituteFile, "substitutes", record)) return false;
    }
    return true;
  }

 private:
  bool PostRecord(int file, const char* whose, std::int32_t record) {
    auto& player = state_.Zandel().player;
    ++done_;
    const bool read = ReadOrLeaveOut(
        host_, report_, [&] { state_.files.Read(file, record, player); },
        [&] { return "Record " + std::to_string(record) + " of the league's " + whose; });
    if (!read) return true;
    host_.Report({done_, total_, "SEARCHING for " + player.Get<"FirstName">()});
    host_.Group(LeagueGolferName(player));
    return player.Get<"GolferID">() <= 0 || PostGolfer(player);
  }

  // Posts the player's scores to all golfers of the roster with the player's ID.
  bool PostGolfer(const Record<LeaguePlayerLayout>& player) {
    const auto name = [&] { return LeagueGolferName(player); };
    std::vector<std::int32_t> places;
    ReadOrLeaveOut(
        host_, report_, [&] { places = golfers_.PlacesOf(player.Get<"GolferID">()); }, name);
    bool goes_on = true;
    const auto post = [&](std::int32_t place) {
      state_.files.Read(kKelvaneGolferFile, place, state_.Kelvane().golfer);
      goes_on = PostScores(place);
    };
    for (auto place = places.begin(); goes_on && place != places.end(); ++place) {
      ReadOrLeaveOut(
          host_, report_, [&] { post(*place); }, name);
    }
    return goes_on;
  }

  bool PostScores(std::int32_t place) {
    try {
      const std::vector<LeagueScore> scores = batch_.ScoresOfGolfer();
      return std::all_of(scores.begin(), scores.end(),
                         [&](const LeagueScore& score) { return posting_.Post(place, score); });
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
  std::int64_t done_ = 0;
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
