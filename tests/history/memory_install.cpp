#include "history/memory_install.h"

#include <sstream>

#include "app/application.h"
#include "app/demo/demo_install.h"
#include "cli/script_runner.h"
#include "history/undo.h"
#include "outlets/file_kinds.h"
#include "support/test_host.h"

namespace golf {
namespace {

DateValue Noon() { return DateFromCivil({2024, 5, 13, 12, 0, 0}); }

RecordKinds NamelessKinds() {
  return {
      .layout_of = [](std::string_view name) { return LayoutOfFile(name); },
      .title_of = [](std::string_view, std::int64_t, std::string_view) { return std::string(); },
      .name_in = [](std::string_view, std::int64_t, std::string_view) { return std::string(); },
      .derived_from = [](std::string_view) { return std::string(); },
      .for_each_reference = [](std::string_view, const EachReference&) {},
      .referrer_name = [](const RecordId&) { return std::string(); }};
}

}  // namespace

DataFiles DataOf(const MemoryPlatform& disk) {
  DataFiles files = disk.Files();
  std::erase_if(files, [](const auto& file) { return file.first.starts_with("/TRANSFER-HIST"); });
  return files;
}

std::string Difference(const DataFiles& found, const DataFiles& expected) {
  const auto size = [](const DataFiles& files, const std::string& path) {
    return files.contains(path) ? std::to_string(files.at(path).size()) : "none";
  };
  DataFiles differing;
  std::set_symmetric_difference(found.begin(), found.end(), expected.begin(), expected.end(),
                                std::inserter(differing, differing.end()));
  std::string text;
  for (const auto& [path, bytes] : differing) {
    text += path + " (" + size(found, path) + ", not " + size(expected, path) + ") ";
  }
  return text;
}

void States::Note(const MemoryPlatform& disk) {
  DataFiles state = DataOf(disk);
  if (empty() || back() != state) push_back(std::move(state));
}

void States::ExpectOneIn(const MemoryPlatform& disk) const {
  const DataFiles state = DataOf(disk);
  if (std::find(begin(), end(), state) != end()) return;
  ADD_FAILURE() << "before: " << Difference(state, front())
                << "\nafter: " << Difference(state, back());
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

const Deed& DeedNamed(std::string_view name) {
  return *std::ranges::find(kDeeds, name, &Deed::name);
}

std::vector<std::string> Do(const Deed& deed, std::unique_ptr<Platform> platform,
                            const std::function<void()>& look) {
  Application application(std::move(platform));
  application.Start(Noon(), {});
  application.state().remembers_settings = false;
  RecordingListener listener;
  listener.on_event = look;
  if (look) listener.on_progress = [&](const Progress&) { look(); };
  HeadlessHost host(application.state(), Application::Screens(), listener);
  host.clock = Noon;
  JsonListener unused;  // gets the numbers of the lines, but no events
  std::istringstream lines(deed.script);
  ScriptRunner runner(application.state(), host, unused, lines);
  if (look) {
    host.drive = [&, follow = host.drive](Screen& screen) {
      follow(screen);
      look();
    };
  }
  try {
    runner.Run();
  } catch (const ClickEnded&) {
    // The listener has noted the error.
  }
  if (look) look();
  for (const NumberedError& fault : host.faults()) {
    listener.events.push_back("fault " + std::to_string(fault.number()));
  }
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

MemoryPlatform DiskAfterEveryKind() {
  MemoryPlatform disk = SmallDisk();
  CommitEveryKind(*ProcessOn(disk));
  return disk;
}

std::optional<MemoryPlatform> DiskKilledAt(int nth) {
  MemoryPlatform disk = SmallDisk();
  disk.DieAt(nth);
  if (!DiesIn([&] { CommitEveryKind(*ProcessOn(disk)); })) return std::nullopt;
  disk.Revive();
  return disk;
}

bool DiesIn(const std::function<void()>& action) {
  try {
    action();
  } catch (const Died&) {
    return true;
  }
  return false;
}

Recovery Recover(const MemoryPlatform& disk, RecoveryChoice choice) {
  const auto platform = ProcessOn(disk);
  return HistoryProgram(*platform).transactions.Recover(choice);
}

bool IsUnfinished(const MemoryPlatform& disk) {
  return HistoryProgram(*ProcessOn(disk)).transactions.IsUnfinished();
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
