#include "screens/transfers/qb_to_kv.h"

#include <algorithm>
#include <utility>

#include "core/number_text.h"
#include "scoring/player/player_class.h"
#include "scoring/tournament_class.h"
#include "screens/remembered_settings.h"
#include "screens/rosters/load_roster.h"
#include "stores/course/course_class.h"
#include "stores/course/course_library.h"
#include "stores/kelvane/kelvane_files.h"
#include "transfers/common_beginning.h"

namespace golf {
namespace {

constexpr std::size_t kCourseKey = 5;
constexpr std::size_t kTeeKey = 2;  // the tee's number and abbreviation
constexpr int kEighteen = 18;

std::string WithoutKey(const std::string& item, std::size_t key) {
  return std::string(
      Trim(std::string_view(item).substr(0, item.size() - std::min(item.size(), key))));
}

// Selects the item that matches the tee best. Raises error 5 if the list is empty.
void SelectTee(ComboBox& list, const std::string& tee) {
  if (!list.Select(ItemWithLongestCommonBeginning(list.items(), tee))) {
    throw NumberedError(ErrorNumber::kBadCall, "The course has no tees.");
  }
}

std::uint8_t TeeOf(const ComboBox& list) {
  if (!list.visible()) return 0;
  const std::string item = list.text();
  return static_cast<std::uint8_t>(LeadingNumber(LastCharacters(item, 1)));
}

}  // namespace

QBtoKV::QBtoKV(const ScreenContext& context) : Screen(kName, context) {
  SetCaption("Transfer Quenby to Kelvane");
  Add({&Label1[0], &TournamentList, &RoundList, &DestButton, &HandicapRoster, &QBCourse, &Label1[1],
       &CourseCombo});
  for (const Sex& sex : Sexes()) {
    for (std::size_t i = 0; i < kTees; ++i) {
      Add({&sex.headings[i], &sex.tees[i], &sex.partners[i]});
    }
  }
  Add({&TCheck, &TCheck2, &FirstTimeLoaded, &Message, &Working, &TransferButton, &ExitButton,
       &PreviewButton});
  FirstTimeLoaded.SetVisible(false);
  RoundList.SetVisible(false);
  HideTees();
  for (const Sex& sex : Sexes()) {
    for (ComboBox& list : sex.partners) list.SetVisible(false);
  }
  Message.SetReadOnly(true);
  TransferButton.SetDefault(true);
  ExitButton.SetCancel(true);
  DestButton.on_click = [this] { FindRoster(); };
  TCheck2.on_click = [this] { AskForPoints(); };
  TransferButton.on_click = [this] { Start(RunEnding::kCommit); };
  PreviewButton.on_click = [this] { Start(RunEnding::kPreview); };
  ExitButton.on_click = [this] { host().Unload(*this); };
}

std::array<QBtoKV::Sex, 2> QBtoKV::Sexes() {
  return {Sex{0, QBMTee, QBMTeeLabel, MTeeCombo, &CourseClass::TeeMensTees},
          Sex{1, QBLTee, QBLTeeLabel, LTeeCombo, &CourseClass::TeeLadiesTees}};
}

std::size_t QBtoKV::TeesPlayed(const Sex& sex) {
  return static_cast<std::size_t>(state().Tournament().TeeCount(sex.group));
}

// Returns the controls whose values are saved. The log is the last one: if a golfer's name in it
// contains a quote, reading ends there.
std::vector<Control*> QBtoKV::Remembered() {
  std::vector<Control*> controls = {&FirstTimeLoaded, &HandicapRoster, &TCheck,     &TCheck2,
                                    &TournamentList,  &RoundList,      &CourseCombo};
  for (const Sex& sex : Sexes()) {
    for (ComboBox& list : sex.partners) controls.push_back(&list);
  }
  controls.push_back(&Message);
  return controls;
}

void QBtoKV::OnLoad() {
  const ResumeNext silently = ResumeNextButReads(nullptr);
  state().StoreDataPath = state().QBDataPath;
  ReadSettings(state(), *this, Remembered());
  ConnectEvents();  // the handlers must not run while the settings are read
  if (FirstTimeLoaded.text() != "NO") TCheck2.SetValue(false);
  FirstTimeLoaded.SetText("NO");
  Message.SetText("");
  silently([&] { FillCourseCombo(); });
  FillTournamentList();
  TournamentList.Select(0);
  ShowCaption();
}

void QBtoKV::OnUnload() { WriteSettings(state(), *this, Remembered()); }

void QBtoKV::OpenAgain() {
  if (TournamentList.index() >= 0) ReadTournament();
}

// Connects the lists to their event handlers. Each new choice shows the transfer button again,
// which a run has hidden.
void QBtoKV::ConnectEvents() {
  const auto offering = [this](void (QBtoKV::*choose)()) {
    return [this, choose] {
      TransferButton.SetVisible(true);
      Match([this, choose] { (this->*choose)(); });
    };
  };
  TournamentList.on_click = offering(&QBtoKV::ChooseTournament);
  RoundList.on_click = offering(&QBtoKV::ChooseRound);
  CourseCombo.on_click = offering(&QBtoKV::ChooseCourse);
}

// Calls `choose`, which matches the course and the tees. Clears the list of courses if a record
// that matching needs cannot be read, since the selected course does not belong to the round then.
void QBtoKV::Match(const std::function<void()>& choose) {
  try {
    choose();
  } catch (const ReadError&) {
    CourseCombo.Clear();
    throw;
  }
}

std::int32_t QBtoKV::TournamentOf(const std::string& item) {
  return TournamentOfFile(item.substr(item.rfind(' ') + 1)).value_or(0);
}

std::int32_t QBtoKV::CourseOf(const std::string& item) {
  return RoundToInt32(LeadingNumber(LastCharacters(item, kCourseKey)));
}

std::string QBtoKV::TournamentHeading(const std::string& item) {
  return std::string(Trim(item.substr(0, item.rfind(' ') + 1)));
}

std::string QBtoKV::CourseHeading(const std::string& item) { return WithoutKey(item, kCourseKey); }

std::string QBtoKV::TeeHeading(const std::string& item) { return WithoutKey(item, kTeeKey); }

void QBtoKV::FillCourseCombo() {
  state().InitSharedObjects();
  bool opened = false;
  HandicapRoster.SetNote("");
  const ResumeNext silently([this](const NumberedError& error) {
    HandicapRoster.SetNote(HeldRosterText(HandicapRoster.text(), error));
  });
  silently([&] { opened = OpenKVRoster(state(), HandicapRoster.text()); });
  auto& header = state().Kelvane().header;
  if (opened) state().files.Read(kKelvaneHeaderFile, 1, header);
  OpenCourseLibrary(state(), kKelvaneCourses);
  CourseCombo.Clear();
  const CourseClass& course = state().Course();
  const auto fill = [&](std::int32_t count, auto entry) {
    for (std::int32_t i = 0; i <= count; ++i) CourseCombo.AddItem((course.*entry)(i));
  };
  if (!opened) {
    fill(course.CourseALLNumberofCourses(), &CourseClass::CourseALLName);
  } else if (header.Get<"Holes">() == kEighteen) {
    fill(course.Course18NumberofCourses(), &CourseClass::Course18Name);
  } else {
    fill(course.Course9NumberofCourses(), &CourseClass::Course9Name);
  }
}

void QBtoKV::FillTournamentList() {
  TournamentClass& tournament = state().Tournament();
  for (const std::string& file : state().files.FilesLike(state().QBDataPath, "X*.Q9C")) {
    const auto number = TournamentOfFile(file);
    if (!number) continue;
    tournament.OpenTournamentControlFile(*number);
    tournament.GetRecord();
    TournamentList.AddItem(tournament.Name() + std::string(3, ' ') + tournament.DateofRound(1) +
                           std::string(20, ' ') + file);
  }
}

void QBtoKV::ReadTournament() {
  state().Tournament().OpenTournamentControlFile(TournamentOf(TournamentList.text()));
  state().Tournament().GetRecord();
  OpenCourseLibrary(state(), kQuenbyCourses);
}

void QBtoKV::ChooseTournament() {
  selected_round_ = 1;
  TransferButton.SetCaption("Transfer scores");
  const ResumeNext silently = ResumeNextButReads(nullptr);
  silently(
      [&] { state().Tournament().OpenTournamentControlFile(TournamentOf(TournamentList.text())); });
  silently([&] { state().Tournament().GetRecord(); });
  silently([&] { OpenCourseLibrary(state(), kQuenbyCourses); });
  FillRoundList();
  silently([&] { ShowTees(); });
  silently([&] { MatchCourse(); });
}

void QBtoKV::FillRoundList() {
  const int rounds = state().Tournament().RoundCount();
  round_list_ready_ = false;
  RoundList.SetVisible(rounds > 1);
  if (rounds > 1) {
    RoundList.Clear();
    for (int round = 1; round <= rounds; ++round) {
      RoundList.AddItem("Round #" + std::to_string(round));
    }
    RoundList.Select(0);
  }
  round_list_ready_ = true;
}

void QBtoKV::ChooseRound() {
  if (round_list_ready_) {
    OpenCourseLibrary(state(), kQuenbyCourses);
    selected_round_ = RoundList.index() + 1;
    ShowTees();
    MatchCourse();
  }
  TransferButton.SetCaption("Transfer round #" + std::to_string(selected_round_) + " scores");
}

void QBtoKV::ShowTees() {
  TournamentClass& tournament = state().Tournament();
  QBCourse.SetCaption(tournament.CourseNamePlayed(selected_round_));
  HideTees();
  for (const Sex& sex : Sexes()) {
    const std::size_t played = TeesPlayed(sex);
    for (std::size_t i = 0; i < played; ++i) {
      const int group = static_cast<int>(i) + 1;
      sex.tees[i].SetVisible(true);
      sex.headings[i].SetVisible(true);
      sex.tees[i].SetCaption(tournament.TeeNamePlayed(sex.group, group, selected_round_));
    }
  }
}

void QBtoKV::HideTees() {
  for (const Sex& sex : Sexes()) {
    for (Label& tee : sex.tees) tee.SetVisible(false);
    for (Label& heading : sex.headings) heading.SetVisible(false);
  }
}

void QBtoKV::MatchCourse() {
  const std::string name = state().Tournament().CourseNamePlayed(selected_round_);
  CourseCombo.Select(ItemWithLongestCommonBeginning(CourseCombo.items(), name));
}

// Matches the tees of the chosen course. Item 0 is the away course, which has no tees.
void QBtoKV::ChooseCourse() {
  MatchTees();
  for (const Sex& sex : Sexes()) {
    const std::size_t played = TeesPlayed(sex);
    for (std::size_t i = 0; i < kTees; ++i) {
      sex.partners[i].SetVisible(CourseCombo.index() > 0 && i < played);
    }
  }
}

void QBtoKV::MatchTees() {
  const ResumeNext next = ResumeNextButReads(
      [this](const NumberedError&) { ShowBox("Problem", "Selected Course has NO TEES!"); });
  next([&] { OpenCourseLibrary(state(), kKelvaneCourses); });
  next([&] { state().Course().GetRecord(CourseOf(CourseCombo.text())); });
  next([&] { GetTees(); });
  for (const Sex& sex : Sexes()) {
    const std::size_t played = TeesPlayed(sex);
    for (std::size_t i = 0; i < played; ++i) {
      next([&] { SelectTee(sex.partners[i], sex.tees[i].caption()); });
    }
  }
}

void QBtoKV::GetTees() {
  const CourseClass& course = state().Course();
  for (const Sex& sex : Sexes()) {
    for (ComboBox& list : sex.partners) {
      list.Clear();
      for (std::int32_t tee = 1; tee <= course.TeeNumberofTees(); ++tee) {
        list.AddItem((course.*sex.tee_list)(tee));
      }
      list.Select(0);
    }
  }
}

void QBtoKV::FindRoster() {
  const std::string roster = AskForKelvaneRoster(state(), host(), HandicapRoster.text());
  TransferButton.SetVisible(true);
  HandicapRoster.SetText(roster);
  Match([this] {
    FillCourseCombo();
    if (TournamentList.index() >= 0) ChooseTournament();
  });
}

void QBtoKV::AskForPoints() {
  const std::string answer = host().Ask(
      InputBox{.title = "Transfer QB points to KV Score?",
               .text = "Type in  YES  if you want Points won in the Quenby to be posted into the "
                       "score recorded in the Kelvane.  This option is used by groups that want "
                       "the Kelvane to calculate a Point Quota.",
               .default_answer = "NO"});
  TCheck2.SetValue(UpperCase(answer) == "YES");
  ShowCaption();
}

void QBtoKV::ShowCaption() {
  TransferButton.SetCaption(TCheck2.value() ? "Transfer Points" : "Transfer Scores");
}

void QBtoKV::Start(RunEnding ending) {
  RunTransfer(*this, state(), host(), ending, [this] { Transfer(); });
}

void QBtoKV::Transfer() {
  if (IsBlankText(HandicapRoster.text()) || IsBlankText(TournamentList.text())) {
    return ShowBox("Info",
                   "You must select both source and destination rosters before you can transfer "
                   "golfers.");
  }
  if (CourseCombo.index() < 0) {
    return ShowBox("Info", "You must select a course to transfer to.");
  }
  ScoresQbToKvReport report;
  const ScoresQbToKvRequest request{.roster = HandicapRoster.text(),
                                    .tournament = TournamentOf(TournamentList.text()),
                                    .choice = Choice()};
  RunWhole(state(), host(),
           {.working = &Working,
            .button = &TransferButton,
            .message = &Message,
            .begin =
                [this] {
                  TransferButton.SetVisible(false);
                  Message.SetText("");
                }},
           {.command = "scores-qb-to-kv",
            .about = TournamentHeading(TournamentList.text()) + ", round " +
                     std::to_string(selected_round_) + ", to " + request.roster},
           request, report);
  if (report.end == RunEnd::kNoRoster) {
    // The next choice of the operator needs the tournament.
    const ResumeNext next([this](const NumberedError& fault) { host().NoteFault(fault); });
    next([&] { OpenAgain(); });
    return ShowBox("Notice", "Cannot open Handicap Roster.");
  }
  if (!report.course_played.empty()) QBCourse.SetCaption(report.course_played);
  if (report.end == RunEnd::kDone) ShowReport(report);
}

void QBtoKV::ShowReport(const ScoresQbToKvReport& report) {
  Message.SetText(report.log);
  host().NoteCount("transferred", report.transferred);
  host().NoteCount("alreadyTransferred", report.already);
  host().NoteCount("toTransfer", report.to_transfer);
  host().NoteCount("notFound", report.not_found);
  if (report.not_found > 0) {
    host().Beep();
    ShowBox("Notice", std::to_string(report.not_found) + " golfers were NOT found.");
  }
  ShowBox("Notice", std::to_string(report.transferred) + " Scores transferred.");
}

void QBtoKV::ShowBox(std::string title, std::string text) {
  host().Ask(Box{.title = std::move(title), .text = std::move(text)});
}

TournamentScoreChoice QBtoKV::Choice() {
  TournamentScoreChoice choice;
  choice.round = selected_round_;
  choice.course = CourseOf(CourseCombo.text());
  for (const Sex& sex : Sexes()) {
    auto& tees = choice.tees[static_cast<std::size_t>(sex.group)];
    for (std::size_t i = 0; i < kTees; ++i) tees[i] = TeeOf(sex.partners[i]);
  }
  choice.as_tournament = TCheck.value();
  choice.points = TCheck2.value();
  return choice;
}

}  // namespace golf
