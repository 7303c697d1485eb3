#include "history/memory_install.h"

#include <algorithm>
#include <stdexcept>

#include "app/application.h"
#include "app/demo/demo_install.h"
#include "outlets/file_kinds.h"
#include "cli/picker_presses.h"
#include "history/undo.h"
#include "screens/courses/course_form.h"
#include "screens/courses/course_table.h"
#include "screens/results/team_layout_builder.h"
#include "screens/rosters/load_roster.h"
#include "screens/rosters/load_rosters.h"
#include "screens/transfers/kv_to_zd.h"
#include "screens/transfers/qb_to_kv.h"
#include "screens/transfers/zd_to_kv.h"
#include "screens/transfers/zd_to_qb.h"
#include "support/test_host.h"

namespace golf {
namespace {

DateValue Noon() { return DateFromCivil({2024, 5, 13, 12, 0, 0}); }

// Records the events, and calls `look` at each of them.
class LookingListener : public RecordingListener {
 public:
  explicit LookingListener(const std::function<void()>& look) : look_(look) {}

  void OnOpen(const Screen& screen) override {
    RecordingListener::OnOpen(screen);
    Look();
  }
  void OnClose(const Screen& screen) override {
    RecordingListener::OnClose(screen);
    Look();
  }
  void OnMessage(const Box& box, BoxButton answer) override {
    RecordingListener::OnMessage(box, answer);
    Look();
  }
  void OnInput(const InputBox& box, const std::string& answer) override {
    RecordingListener::OnInput(box, answer);
    Look();
  }
  void OnFault(const NumberedError& fault) override {
    events.push_back("fault " + std::to_string(fault.number()));
  }
  void OnNotice(const std::string& text) override { events.push_back("notice " + text); }
  void OnProgress(const Progress&) override { Look(); }
  void Look() const {
    if (look_) look_();
  }

 private:
  const std::function<void()>& look_;
};

using Drive = std::function<void(HeadlessHost&, Screen&)>;

// Works the screen in hand, and the pickers that it opens.
Drive Transfer(Drive work) {
  return [work = std::move(work)](HeadlessHost& host, Screen& screen) {
    if (screen.name() == "LoadRoster") return PickKelvaneRoster(host, screen, "CLUB18");
    if (screen.name() == "LoadRosters") return PickQuenbyRoster(host, screen, 1);
    work(host, screen);
  };
}

Drive Presses(std::vector<const char*> buttons) {
  return [buttons = std::move(buttons)](HeadlessHost& host, Screen& screen) {
    for (const char* button : buttons) host.Press(screen, button);
  };
}

Drive GolfersKvToZd() {
  return Transfer([](HeadlessHost& host, Screen& screen) {
    PickLeague(host, screen, "FindZDButton", dynamic_cast<KVtoZD&>(screen).picker, "00021");
    Presses({"FindKVMButton", "TransferButton"})(host, screen);
  });
}

Drive GolfersZdToQb() {
  return Transfer([](HeadlessHost& host, Screen& screen) {
    auto& transfer = dynamic_cast<ZDtoQB&>(screen);
    PickLeague(host, screen, "SourceButton", transfer.picker, "00011");
    host.Press(screen, "DestButton");
    host.Operate(screen, [&] { transfer.TransferSubs.Choose(true); });
    host.Press(screen, "TransferButton");
  });
}

Drive ScoresQbToKv() {
  return Transfer([](HeadlessHost& host, Screen& screen) {
    auto& transfer = dynamic_cast<QBtoKV&>(screen);
    host.Press(screen, "DestButton");
    host.Operate(screen, [&] { transfer.TournamentList.Select(0); });
    host.Operate(screen, [&] { transfer.RoundList.Select(0); });
    host.Press(screen, "TransferButton");
  });
}

Drive ScoresZdToKv() {
  return Transfer([](HeadlessHost& host, Screen& screen) {
    auto& transfer = dynamic_cast<ZDtoKV&>(screen);
    PickLeague(host, screen, "SourceButton", transfer.picker, "00021");
    host.Operate(screen, [&] { transfer.EventList.Select(0); });
    Presses({"DestButton", "TransferButton"})(host, screen);
  });
}

void MakeKelvaneRoster(HeadlessHost& host, Screen& screen) {
  host.Press(screen, "NewButton");
  dynamic_cast<LoadRoster&>(screen).NewRosterName.SetText("Seniors");
  host.Press(screen, "OK2Button");
}

void DeleteKelvaneRoster(HeadlessHost& host, Screen& screen) {
  auto& picker = dynamic_cast<LoadRoster&>(screen);
  for (int row = 1; row <= picker.grid1.rows(); ++row) {
    if (picker.grid1.text(2, row) == "NINE9") picker.grid1.SetActiveRow(row);
  }
  host.Press(screen, "DeleteButton");
}

void MakeQuenbyRoster(HeadlessHost& host, Screen& screen) {
  host.Press(screen, "NewButton");
  dynamic_cast<LoadRosters&>(screen).Text1[0].SetText("Seniors");
  host.Press(screen, "AddEditRosterOK");
}

void DeleteQuenbyRoster(HeadlessHost& host, Screen& screen) {
  dynamic_cast<LoadRosters&>(screen).grid1.SetActiveRow(2);
  host.Press(screen, "DeleteButton");
}

// Closing the table writes the indexes anew.
void EditCourse(HeadlessHost& host, Screen& screen) {
  if (auto* form = dynamic_cast<CourseForm*>(&screen)) {
    form->FCourseName.SetText("Zebra Links");
    return host.Press(screen, "OKButton");
  }
  dynamic_cast<CourseTable&>(screen).CourseGrid.SetActiveRow(1);
  host.Press(screen, "EditCourseButton");
}

void DeleteCourse(HeadlessHost& host, Screen& screen) {
  dynamic_cast<CourseTable&>(screen).CourseGrid.SetActiveRow(1);
  host.Press(screen, "DeleteCourseButton");
}

void SaveLayout(HeadlessHost& host, Screen& screen) {
  auto& builder = dynamic_cast<XReportsCustomTeamResults&>(screen);
  builder.ReportName.SetText("Best ball");
  host.Operate(screen, [&] { builder.SaveReport(); });
}

RecordKinds NamelessKinds() {
  return {
      .layout_of = [](std::string_view name) { return LayoutOfFile(name); },
      .title_of = [](std::string_view, std::int64_t, std::string_view) { return std::string(); },
      .derived_from = [](std::string_view) { return std::string(); },
      .is_same = [](std::string_view, std::string_view, std::string_view) { return false; },
      .references = [] { return [](std::string_view, std::int64_t) { return std::string(); }; }};
}

}  // namespace

DataFiles DataOf(const MemoryPlatform& disk) {
  DataFiles files = disk.Files();
  std::erase_if(files, [](const auto& file) { return file.first.starts_with("/TRANSFER-HIST"); });
  return files;
}

std::string Difference(const DataFiles& found, const DataFiles& expected) {
  std::string text;
  const auto size = [](const DataFiles& files, const std::string& path) {
    const auto file = files.find(path);
    return file == files.end() ? "none" : std::to_string(file->second.size());
  };
  const auto compare = [&](const DataFiles& some, const DataFiles& others, bool told_all) {
    for (const auto& [path, bytes] : some) {
      const auto other = others.find(path);
      const bool same = other != others.end() && (!told_all || other->second == bytes);
      if (!same) text += path + " (" + size(found, path) + ", not " + size(expected, path) + ") ";
    }
  };
  compare(expected, found, true);
  compare(found, expected, false);
  return text;
}

const MemoryPlatform& DemoDisk() {
  static const MemoryPlatform kDisk = [] {
    MemoryPlatform disk;
    Application application(ProcessOn(disk));
    application.Start(Noon(), {});
    MakeDemoInstall(application.state());
    MemoryPlatform made = disk.Copy();
    made.SyncAll();
    return made;
  }();
  return kDisk;
}

std::unique_ptr<Platform> ProcessOn(const MemoryPlatform& disk) {
  return std::make_unique<MemoryPlatform>(disk.OnSameDisk());
}

std::span<const Deed> Deeds() {
  const std::pair<std::string, std::string> kYes("DELETE Roster?", "YES");
  static const std::vector<Deed> kDeeds = {
      {"courses-kv-to-qb", "KVCoursestoQB", "", {}, Presses({"TransferCourses"})},
      {"golfers-kv-to-qb",
       "KVtoQB",
       "",
       {{"Update Handicaps?", "YES"}},
       Transfer(Presses({"SourceButton", "DestButton", "TransferButton"}))},
      {"golfers-kv-to-zd", "KVtoZD", "", {{"Question", "Yes"}}, GolfersKvToZd()},
      {"golfers-zd-to-qb", "ZDtoQB", "", {}, GolfersZdToQb()},
      {"scores-qb-to-kv", "QBtoKV", "", {{"Continue", "Yes"}}, ScoresQbToKv()},
      {"scores-zd-to-kv", "ZDtoKV", "", {}, ScoresZdToKv()},
      {"new-kv-roster", "LoadRoster", "", {{"New Roster", "Yes"}}, MakeKelvaneRoster},
      {"delete-kv-roster", "LoadRoster", "", {kYes}, DeleteKelvaneRoster},
      {"new-qb-roster", "LoadRosters", "", {{"New Roster", "Yes"}}, MakeQuenbyRoster},
      {"delete-qb-roster", "LoadRosters", "", {kYes}, DeleteQuenbyRoster},
      {"edit-course", "CourseTable", "kv", {}, EditCourse},
      {"delete-course", "CourseTable", "kv", {{"DELETE COURSE?", "YES"}}, DeleteCourse},
      {"save-layout", "XReportsCustomTeamResults", "new", {}, SaveLayout},
  };
  return kDeeds;
}

const Deed& DeedNamed(std::string_view name) {
  for (const Deed& deed : Deeds()) {
    if (deed.name == name) return deed;
  }
  throw std::logic_error("There is no such deed.");
}

std::vector<std::string> Do(const Deed& deed, std::unique_ptr<Platform> platform,
                            const std::function<void()>& look) {
  Application application(std::move(platform));
  application.Start(Noon(), {});
  application.state().remembers_settings = false;
  LookingListener listener(look);
  HeadlessHost host(application.state(), Application::Screens(), listener);
  host.clock = Noon;
  for (const auto& [title, answer] : deed.answers) host.QueueAnswer(title, answer, true);
  host.drive = [&](Screen& screen) {
    deed.drive(host, screen);
    listener.Look();
  };
  try {
    host.Operate([&] { OpenScreen(application.state(), host, deed.screen, deed.word); });
  } catch (const ClickEnded&) {
    // The listener was told.
  }
  listener.Look();
  return std::move(listener.events);
}

HistoryProgram::HistoryProgram(Platform& platform) : held(platform), transactions(held, Noon) {}

MemoryPlatform SmallDisk() {
  MemoryPlatform disk;
  for (const char* name : {"changed", "grown", "cut", "gone", "text", "again", "other"}) {
    disk.Bytes(name) = std::string(9000, name[0]);
  }
  disk.SyncAll();
  return disk;
}

void HoldEveryKind(HistoryProgram& program) {
  program.transactions.Begin({.command = "every kind"});
  HistoryGate gate(program.held);
  const auto open = [&](const char* path) {
    return program.held.Open(path, FileAccess::kReadWriteShared);
  };
  const auto make = [&](const char* path, std::size_t size) {
    gate.Create(path);
    gate.Write(*open(path), 0, std::string(size, 'N'));
  };
  for (const std::int64_t offset : {10, 4090, 8000}) {
    program.transactions.BeginGroup("Place " + std::to_string(offset));
    gate.Write(*open("/changed"), offset, "NNNNNNNNNN");
  }
  program.transactions.BeginGroup("");
  gate.Write(*open("/grown"), 9000, std::string(5000, 'N'));
  gate.Truncate(*open("/cut"), 3000);
  gate.Delete("/gone");
  make("/text.new", 5000);
  gate.Rename("/text.new", "/text");
  gate.Delete("/again");
  make("/again", 7000);
  make("/made", 6000);
}

void CommitEveryKind(Platform& platform) {
  HistoryProgram program(platform);
  HoldEveryKind(program);
  program.transactions.Commit("A report.");
}

std::size_t UndoNewest(Platform& platform) {
  HistoryProgram program(platform);
  Transactions& transactions = program.transactions;
  const auto lock = platform.LockRun(platform.ProgramFolder());
  transactions.Recover();
  for (const HistoryRun& run : ListRuns(transactions.history()).runs) {
    if (run.IsUndo()) continue;
    transactions.BeginClick();
    const UndoResult result =
        HoldUndo(program.held, transactions.history(), transactions, NamelessKinds(), run);
    transactions.Commit("");
    transactions.EndClick();
    return result.conflicts.size();
  }
  throw std::logic_error("There is nothing to undo.");
}

}  // namespace golf
