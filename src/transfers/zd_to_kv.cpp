#include "transfers/zd_to_kv.h"

#include <algorithm>
#include <vector>

#include "core/text.h"
#include "screens/remembered_settings.h"
#include "screens/rosters/load_roster.h"
#include "stores/course/course_class.h"
#include "stores/kelvane/kelvane_files.h"
#include "stores/kelvane/kelvane_golfer_index.h"
#include "stores/zandel/zandel_batches.h"
#include "stores/zandel/zandel_files.h"
#include "transfers/league_batch.h"
#include "transfers/league_course_match.h"
#include "transfers/league_score_posting.h"
#include "transfers/transfer_run.h"

namespace golf {
namespace {

constexpr std::uint8_t kTeeIn18Holes = 1;  // of a score without a course
constexpr std::uint8_t kTeeIn9Holes = 2;

bool Has18Holes(SharedState& state) { return state.Kelvane().header.Get<"Holes">() == 18; }

// An error that a golfer's records bring, with his name.
NumberedError WithName(const NumberedError& error, ErrorNumber number,
                       const Record<LeaguePlayerLayout>& player) {
  return {number, "The scores of " + LeagueGolferName(player) +
                      " cannot be transferred: " + error.description()};
}

}  // namespace

struct ZDtoKV::Run {
  Run(ZDtoKV& screen, int code)
      : golfers(screen.state()),
        courses(screen.state(), Has18Holes(screen.state()) ? kTeeIn18Holes : kTeeIn9Holes),
        batch(screen.state(), code, courses),
        posting(screen.state(), screen.host(), screen.Message) {}

  KelvaneGolferIndex golfers;
  LeagueCourseMatch courses;
  LeagueBatch batch;
  LeagueScorePosting posting;
  std::int32_t done = 0;
  std::int32_t total = 0;
};

ZDtoKV::ZDtoKV(const ScreenContext& context)
    : Screen("ZDtoKV", context),
      picker(context.state, *this,
             {.panel = "Frame1",
              .tag = "SOURCE",
              .label = "Select the SOURCE League",
              .main = Frame2,
              .finder = SourceButton,
              .leave = ExitButton,
              .take = [this](std::string league) { TakeLeague(std::move(league)); },
              .pick_gives_escape_back = false}) {
  SetCaption("Transfer Zandel Scores to Kelvane");
  Add({&Frame2, &picker.Panel});
  AddInto(Frame2,
          {&SourceButton, &LeagueRoster, &EventList, &DestButton, &HandicapRoster, &TransferButton,
           &ExitButton, &Message, &Working, &Label1[0], &Label1[1], &Label1[2]});
  AddInto(picker.Panel, picker.Controls());
  Message.SetReadOnly(true);
  EventList.on_click = [this] { TransferButton.SetVisible(true); };
  DestButton.on_click = [this] { FindDestination(); };
  TransferButton.on_click = [this] { RunTransfer(*this, state(), host(), [this] { Transfer(); }); };
  ExitButton.on_click = [this] { host().Unload(*this); };
}

std::array<Control*, 5> ZDtoKV::Remembered() {
  return {&LeagueRoster, &EventList, &HandicapRoster, &Message, &picker.LeagueList};
}

void ZDtoKV::OnLoad() {
  state().StoreDataPath = state().ZDDataPath;
  picker.Fill();
  ReadSettings(state(), *this, Remembered());
  LoadEventList();
  Message.SetText("");
  MoveFocus(&SourceButton);
}

void ZDtoKV::OnUnload() { WriteSettings(state(), *this, Remembered()); }

// The list on the screen stays, and with it the batch chosen.
void ZDtoKV::OpenAgain() { LoadScoreBatches(state(), listed_league_); }

void ZDtoKV::TakeLeague(std::string league) {
  LeagueRoster.SetText(std::move(league));
  LoadEventList();
  MoveFocus(&TransferButton);
}

void ZDtoKV::LoadEventList() {
  listed_league_.clear();
  const auto batches = LoadScoreBatches(state(), LeagueRoster.text());
  if (!batches) return;
  listed_league_ = LeagueRoster.text();
  EventList.Clear();
  for (const ScoreBatch& batch : batches->list) EventList.AddItem(batch.Item());
  EventList.Select(batches->selected);
}

void ZDtoKV::FindDestination() {
  auto& rosters = dynamic_cast<LoadRoster&>(host().Load("LoadRoster"));
  rosters.SetTag("OPENONLY");
  host().ShowModal(rosters);
  HandicapRoster.SetText(state().KVRosterName);
  TransferButton.SetVisible(true);
}

void ZDtoKV::Transfer() {
  if (IsBlankText(HandicapRoster.text()) || IsBlankText(LeagueRoster.text())) {
    host().Ask(Box{.title = "Info",
                   .text = "You must select both source league and destination roster before you "
                           "can transfer scores."});
    return;
  }
  if (!OpenKVRoster(state(), HandicapRoster.text())) return Report(0);
  auto& header = state().Kelvane().header;
  state().files.Read(kKelvaneHeaderFile, 1, header);
  if (!Has18Holes(state()) && state().Zandel().control.Get<"LeagueHoles">() == 18) {
    host().Ask(Box{.title = "Notice",
                   .text = "Can not transfer scores from an 18 hole league to a 9 hole handicap "
                           "roster"});
    return;
  }
  header.Set<"Setting153">(1);
  state().files.Write(kKelvaneHeaderFile, 1, header);
  Message.SetText("===Scores Transfered===\r\n");
  Report(PostScores());
}

void ZDtoKV::OpenCourseLibraries() {
  const auto open = [this](CourseClass& course, const std::string& folder, const char* program) {
    state().CourseDataPath = folder;
    course.SetActiveProgram(program);
    course.OpenCourseFile();
  };
  open(state().Course(), state().KVDataPath, "KV");
  open(state().SpareCourse(), state().ZDDataPath, "ZD");
}

std::int32_t ZDtoKV::PostScores() {
  const int code = BatchCode(EventList.text());
  OpenCourseLibraries();
  const CopyingLook look(host(), {&Working});
  Run run(*this, code);
  PostAll(run);
  return run.posting.count();
}

bool ZDtoKV::PostAll(Run& run) {
  FileTable& files = state().files;
  const auto players = files.RecordCount<LeaguePlayerLayout>(kLeaguePlayerFile);
  // Behind the end of the file stands nobody.
  const auto last_substitute =
      std::min<std::int32_t>(state().Zandel().control.Get<"LastSubRecord">(),
                             files.RecordCount<LeaguePlayerLayout>(kLeagueSubstituteFile));
  run.total = players + std::max(last_substitute - kFirstSubstitute + 1, 0);
  for (std::int32_t record = 1; record <= players; ++record) {
    if (!PostGolfer(run, kLeaguePlayerFile, record)) return false;
  }
  for (std::int32_t record = last_substitute; record >= kFirstSubstitute; --record) {
    if (!PostGolfer(run, kLeagueSubstituteFile, record)) return false;
  }
  return true;
}

bool ZDtoKV::PostGolfer(Run& run, int file, std::int32_t record) {
  auto& player = state().Zandel().player;
  FileTable& files = state().files;
  const bool read = ReadOrLeaveOut(
      host(), [&] { files.Read(file, record, player); },
      [&] { return "Record " + std::to_string(record) + " of the league"; });
  ++run.done;
  if (!read) return true;
  Working.SetCaption("SEARCHING for " + player.Get<"FirstName">());
  host().RepaintNow(Working);
  host().Tell({run.done, run.total, Working.caption()});
  const std::int32_t id = player.Get<"GolferID">();
  if (id <= 0) return true;
  const auto name = [&] { return LeagueGolferName(player); };
  std::vector<std::int32_t> places;
  ReadOrLeaveOut(
      host(), [&] { places = run.golfers.PlacesOf(id); }, name);
  bool goes_on = true;
  const auto post = [&](std::int32_t place) {
    files.Read(kKelvaneGolferFile, place, state().Kelvane().golfer);
    goes_on = PostScoresOf(run, place);
  };
  for (auto place = places.begin(); goes_on && place != places.end(); ++place) {
    ReadOrLeaveOut(
        host(), [&] { post(*place); }, name);
  }
  return goes_on;
}

bool ZDtoKV::PostScoresOf(Run& run, std::int32_t place) {
  try {
    const std::vector<LeagueScore> scores = run.batch.ScoresOfGolfer();
    return std::all_of(scores.begin(), scores.end(),
                       [&](const LeagueScore& score) { return run.posting.Post(place, score); });
  } catch (const NumberedError& error) {
    for (const ErrorNumber number : {ErrorNumber::kOverflow, ErrorNumber::kSubscript}) {
      if (error.Is(number)) throw WithName(error, number, state().Zandel().player);
    }
    throw;
  }
}

void ZDtoKV::Report(std::int32_t count) {
  host().TellCount("transferred", count);
  host().Ask(Box{.title = "Notice",
                 .text = "Transfer Complete..." + std::to_string(count) + " scores transfered."});
  TransferButton.SetVisible(false);
}

}  // namespace golf
