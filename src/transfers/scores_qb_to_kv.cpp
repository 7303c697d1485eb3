#include "transfers/scores_qb_to_kv.h"

#include "core/number_text.h"
#include "core/resume_next.h"
#include "scoring/player/player_class.h"
#include "scoring/tournament_class.h"
#include "stores/course/course_class.h"
#include "stores/course/course_library.h"
#include "stores/kelvane/kelvane_files.h"

namespace golf {
namespace {

constexpr int kBackNine = -9;
constexpr int kNine = 9;

bool IsBackNine(SharedState& state, std::int32_t number, const ResumeNext& next) {
  CourseClass course(state);
  // The course file is open even if the opening of an index failed.
  next([&] { OpenCourseLibrary(state, course, kKelvaneCourses); });
  bool back_nine = false;
  next([&] {
    course.GetRecord(number);
    back_nine = course.HoleNumFlag() == kBackNine;
  });
  return back_nine;
}

bool OpenRoster(SharedState& state, const std::string& roster, const ResumeNext& next) {
  next([&] { state.InitSharedObjects(); });
  bool opened = false;
  next([&] { opened = OpenKVRoster(state, roster); });
  return opened;
}

// Marks in the header of the roster that scores were posted.
void MarkRoster(SharedState& state) {
  auto& header = state.Kelvane().header;
  state.files.Read(kKelvaneHeaderFile, 1, header);
  header.Set<"Setting153">(1);
  state.files.Write(kKelvaneHeaderFile, 1, header);
}

void OpenTournamentFiles(SharedState& state, const ScoresQbToKvRequest& request,
                         const ResumeNext& next, ScoresQbToKvReport& report) {
  next([&] { state.Tournament().OpenTournamentControlFile(request.tournament); });
  next([&] { state.Tournament().GetRecord(); });
  next([&] { state.Player().OpenRosterFile(); });
  next([&] { state.Player().TourOpenTournamentFile(request.tournament); });
  next([&] { OpenCourseLibrary(state, kQuenbyCourses); });
  next([&] { report.course_played = state.Tournament().CourseNamePlayed(request.choice.round); });
}

// Returns true if the scores can be posted. Nine holes are posted to a roster of 18 holes as halves
// if the operator agrees.
bool HolesFit(SharedState& state, RunHost& host, bool& join_nines) {
  const int holes = state.Kelvane().header.Get<"Holes">();
  const int played = state.Tournament().RoundType();
  if (holes == played) return true;
  if (played == kNine) {
    join_nines = host.Ask(Box{.title = "Continue",
                              .text = "Transfers 9 hole scores to an 18 hole roster?",
                              .buttons = {BoxButton::kYes, BoxButton::kNo}}) == BoxButton::kYes;
    return join_nines;
  }
  host.Beep();
  host.Ask(Box{.title = "Can not contine",
               .text = "You have selected an " + std::to_string(holes) +
                       " hole Handicap Roster for a " + std::to_string(played) +
                       " hole tournament.",
               .icon = BoxIcon::kStop});
  return false;
}

void PostScores(SharedState& state, RunHost& host, const TournamentScoreChoice& choice,
                const ResumeNext& next, TournamentScoreReport& report) {
  PlayerClass& player = state.Player();
  TournamentScorePosting posting(state, host, choice, report);
  std::int32_t records = 0;
  next([&] { records = player.TourFileLength(); });
  for (std::int32_t record = 1; record <= records; ++record) {
    posting.Take(record);
    host.Report({record, records, NumberText(record) + " " + player.NameLF()});
  }
}

std::string CountLine(std::int16_t count, const char* what) {
  return std::to_string(count) + what + std::string(kReportLineEnd);
}

// Inserts the counts before the log, which has a line for each score that was not transferred.
// Omits the counts of scores to transfer and of scores already transferred if they are 0.
void PutCountsFirst(TournamentScoreReport& report) {
  std::string counts;
  if (report.to_transfer > 0) counts += CountLine(report.to_transfer, " Scores TO transfer.");
  if (report.already > 0) counts += CountLine(report.already, " Scores already transferred.");
  report.log.insert(0, counts + CountLine(report.transferred, " Scores transferred."));
}

}  // namespace

void Run(SharedState& state, RunHost& host, const ScoresQbToKvRequest& request,
         ScoresQbToKvReport& report) {
  // A ReadError here ends the run, since no score can be posted without these records.
  const ResumeNext next =
      ResumeNextButReads([&host](const NumberedError& fault) { host.NoteFault(fault); });
  TournamentScoreChoice choice = request.choice;
  choice.back_nine = IsBackNine(state, choice.course, next);
  if (!OpenRoster(state, request.roster, next)) {
    report.end = RunEnd::kNoRoster;
    return;
  }
  next([&] { MarkRoster(state); });
  OpenTournamentFiles(state, request, next, report);
  if (!HolesFit(state, host, choice.join_nines)) return;
  host.Begin();
  PostScores(state, host, choice, next, report);
  PutCountsFirst(report);
  report.end = RunEnd::kDone;
}

}  // namespace golf
