// Uses arbitrary bytes as each kind of file. The first byte selects the kind, and the other bytes
// are the file. All other files are those of a made-up club. The target shows the record, opens
// every screen and presses its buttons, runs transfers, calculates all results, checks the install,
// exports it and writes pages of results. A NumberedError is a valid result. Any other exception
// ends the program.

#include <cstdint>
#include <cstdlib>
#include <functional>

#include "app/application.h"
#include "app/demo/demo_install.h"
#include "cli/field_text.h"
#include "cli/results_json.h"
#include "forms/headless_host.h"
#include "outlets/checkup/checkup.h"
#include "outlets/export/export_install.h"
#include "outlets/file_kinds.h"
#include "outlets/pages/tournament_pages.h"
#include "scoring/layouts/custom_standings.h"
#include "scoring/open_tournament.h"
#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"
#include "scoring/tournament_class.h"
#include "stores/kelvane/kelvane_files.h"
#include "stores/kelvane/kelvane_scores.h"
#include "support/checked_sink.h"
#include "support/memory_platform.h"

namespace golf {
namespace {

template <class Action>
void Try(Action&& action) {
  try {
    action();
  } catch (const NumberedError&) {
  } catch (const ClickEnded&) {
  }
}

void Need(bool holds) {
  if (!holds) std::abort();
}

// Shows a record in the form for people and in the form for programs.
void ShowRecord(const LayoutInfo& layout, std::string_view record) {
  for (const Field& field : layout.fields) {
    PlainLines(field, record);
    Need(FieldJson(field, record).dump().size() > 0);
  }
}

// Runs the timers, and selects the first row of each list that has no selection.
void Choose(HeadlessHost& host, Screen& screen) {
  for (Control* control : screen.controls()) {
    if (auto* timer = dynamic_cast<Timer*>(control); timer != nullptr && timer->IsRunning()) {
      Try([&] { host.Operate(screen, timer->on_timer); });
    } else if (auto* grid = dynamic_cast<Grid*>(control); grid != nullptr) {
      if (grid->rows() > 0 && grid->active_row() < 1) Try([&] { grid->SetActiveRow(1); });
    } else if (auto* list = dynamic_cast<List*>(control); list != nullptr) {
      if (!list->items().empty() && list->index() < 0) Try([&] { list->Select(0); });
    }
  }
}

// Presses each button except the one that closes the screen, first in forward order and then in
// reverse order. In reverse order a transfer uses the files that were selected before.
void WorkScreen(HeadlessHost& host, Screen& screen) {
  std::vector<Control*> controls = screen.controls();
  if (screen.name() != "TransferMenu") {
    controls.insert(controls.end(), screen.controls().rbegin(), screen.controls().rend());
  }
  for (Control* control : controls) {
    auto* button = dynamic_cast<Button*>(control);
    if (button == nullptr || button == screen.LeaveButton() || !host.IsShown(screen)) continue;
    Choose(host, screen);
    if (!button->IsReachable()) continue;
    Try([&] { host.Operate(screen, *button, [&] { button->Click(); }); });
  }
}

void WalkScreens(SharedState& state) {
  HostListener listener;
  HeadlessHost host(state, Application::Screens(), listener);
  host.clock = [] { return DateFromCivil({2024, 5, 13}); };
  int depth = 0;  // course, tee, and the boxes of a tee
  host.drive = [&](Screen& screen) {
    if (++depth <= 3) WorkScreen(host, screen);
    --depth;
  };
  for (const auto& opened :
       {std::pair{"TransferMenu", ""}, {"CourseTable", "QB"}, {"TeamResults", ""}}) {
    Try([&] { host.Operate([&] { OpenScreen(state, host, opened.first, opened.second); }); });
  }
}

// Calls the store functions that no screen calls.
void WalkStores(SharedState& state) {
  state.InitSharedObjects();
  state.StoreDataPath = state.CourseDataPath = state.QBDataPath;
  Try([&] {
    Need(OpenKVRoster(state, "club18"));
    state.files.Read(kKelvaneHeaderFile, 1, state.Kelvane().header);
    state.files.Read(kKelvaneGolferFile, 1, state.Kelvane().golfer);
    state.files.Read(kKelvaneScoreFile, 1, state.Kelvane().history);
    for (const int entry : {0, 1, 150, 300, 301}) {
      Try([&] { RepositionKVScore(state, entry); });
    }
    AddKVScore(state);
  });
  Try([&] {
    state.Tournament().CreateBlankTournament(2);
    state.Tournament().SaveRecord();
  });
}

// Calculates all results of the first entries and of the tournament.
void WalkScores(SharedState& state) {
  OpenTournament(state, 1);
  PlayerClass& player = state.Player();
  for (const int record : {1, 2, 3}) {
    Try([&] { player.GetRecord(record, true); });
    for (int round = 0; round <= 8; ++round) {
      const Json keys = {{"record", record}};
      ResultsObject object(keys);
      Try([&] { object.AddResults(player, record == 2, round); });
    }
  }
  for (const int number : {1, 2}) {
    if (!state.Team1().GetRecord(number)) continue;
    for (int round = 0; round <= 8; ++round) {
      const Json keys = {{"TeamNumber", number}};
      ResultsObject object(keys);
      Try([&] { object.AddResults(state.Team1(), round); });
    }
    const ReportLayout layout;
    Try([&] {
      CustomStandings standings(state, layout);
      standings.AddTeam();
      Need(standings.WorkOut().size() == 1);
    });
  }
  Try([&] { state.Tournament().CalculateTotals(); });
  for (int hole = 0; hole <= 22; ++hole) {
    Try([&] { state.Tournament().ScoreTotalGross(hole); });
    Try([&] { state.Tournament().ScoreAverageNet(hole); });
  }
}

void WalkOutlets(SharedState& state) {
  CheckInstall(state, [](const Finding& finding) { Need(!finding.text.empty()); });
  CheckedSink sink(Need);
  ExportInstall({state, sink, true, [](const Progress&) {}, [](const std::string&) {}});
}

void WalkPages(SharedState& state) {
  OpenTournament(state, 1);
  const ReportLayout layout;
  const auto failed = [](const std::string&, const NumberedError&) {};
  for (const Tiebreak tiebreak : {Tiebreak::kNone, Tiebreak::kUsga, Tiebreak::kHandicap}) {
    const PageQuestion question{state, tiebreak, false, failed, [](const std::string&) {}};
    for (const auto& make : {MakePlayersPage, MakeTeamsPage}) {
      Try([&] { Need(WriteResultsPage(make(question)).html.ends_with("</html>\n")); });
    }
    Try([&] { Need(!WriteResultsPage(MakeCustomPage(question, layout)).html.empty()); });
  }
}

constexpr const char* kFiles[] = {
    "kvdata/club18.kv5",   "kvdata/club18.kvg",   "kvdata/club18.kvs",   "kvsystem.fil",
    "qbdata/qbmaster.q9d", "qbdata/qbroster.q9d", "qbdata/qbgolfer.q9d", "qbdata/x0001.q9c",
    "qbdata/x0001.q9g",    "qbdata/x0001.q9t",    "qbdata/default.q9c",  "qbdata/qbcrs.dat",
    "qbdata/18crsqb.inx",  "zddata/00011.zl8",    "zddata/00011.ze8",    "zddata/00011.zp8",
    "zddata/00011.zt8"};

MemoryPlatform MadeUpClub() {
  auto platform = std::make_unique<MemoryPlatform>();
  MemoryPlatform& files = *platform;
  Application application(std::move(platform));
  application.Start(DateFromCivil({2024, 5, 13}), {});
  MakeDemoInstall(application.state());
  return files.Copy();
}

void Walk(std::string_view file, std::string_view bytes) {
  static const MemoryPlatform kClub = MadeUpClub();
  for (void (*walk)(SharedState&) : {WalkStores, WalkScores, WalkOutlets, WalkPages, WalkScreens}) {
    auto platform = std::make_unique<MemoryPlatform>(kClub.Copy());
    platform->Bytes(file) = bytes;
    Application application(std::move(platform));
    application.Start(DateFromCivil({2024, 5, 13}), {});
    application.state().StoreDataPath = application.state().QBDataPath;
    Try([&] { walk(application.state()); });
  }
  const auto layout = LayoutOfFile(file.substr(file.find_last_of('/') + 1));
  if (!layout) return;
  std::string record(bytes.substr(0, layout->length));
  record.resize(layout->length, '\0');
  ShowRecord(*layout, record);
}

}  // namespace
}  // namespace golf

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string bytes(data + 1, data + size);
  golf::Walk(golf::kFiles[data[0] % std::size(golf::kFiles)], bytes);
  return 0;
}
