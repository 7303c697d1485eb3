// Tests commits that fail, runs that are requested to stop, runs that meet another program or a
// damaged history file, and the groups of changes that an undo keeps together.

#include <cstring>

#include "core/text.h"
#include "history/memory_install.h"
#include "history/run_list.h"
#include "history/stopped.h"
#include "screens/transfers/screen_run.h"
#include "support/test_host.h"

namespace golf {
namespace {

// Returns the states in which a deed may leave the files: those before it and after each of its
// transactions.
States StatesOf(const Deed& deed) {
  const MemoryPlatform disk = DemoDisk().Copy();
  States states;
  states.Note(disk);
  Do(deed, ProcessOn(disk), [&] { states.Note(disk); });
  return states;
}

bool IsTold(const std::vector<std::string>& events) {
  return std::any_of(events.begin(), events.end(), [](const std::string& event) {
    return event.starts_with("error ") || event.starts_with("fault ") ||
           event.starts_with("message [Error]");
  });
}

constexpr Operation kChanges[] = {
    Operation::kCreate, Operation::kCreateFolder, Operation::kDelete, Operation::kRename,
    Operation::kWrite,  Operation::kTruncate,     Operation::kSync,   Operation::kSyncFolder};

// Makes each call that changes something fail once, or with all later calls of its kind. After a
// single fault the run puts everything back at once, otherwise the next start does so.
void FailEachChange(const Deed& deed, Operation operation, bool stays) {
  const States states = StatesOf(deed);
  constexpr ErrorNumber kErrors[] = {ErrorNumber::kDiskFull, ErrorNumber::kDeviceFault,
                                     ErrorNumber::kPermissionDenied};
  for (int nth = 1;; ++nth) {
    SCOPED_TRACE(std::string(deed.name) + ", call " + std::to_string(nth) + " of operation " +
                 std::to_string(static_cast<int>(operation)) + (stays ? " and all behind it" : ""));
    MemoryPlatform disk = DemoDisk().Copy();
    auto failing = std::make_unique<FailingPlatform>(disk);
    FailingPlatform& platform = *failing;
    platform.Fail({kErrors[nth % 3], nth, operation, "", stays, 1});
    bool failed = false;
    const auto events = Do(deed, std::move(failing), [&] { failed = platform.Failed(); });
    if (!failed) {
      EXPECT_EQ(Difference(DataOf(disk), states.back()), "");
      return;
    }
    const bool unfinished = IsUnfinished(disk);
    EXPECT_TRUE(stays || !unfinished);
    if (!unfinished) states.ExpectOneIn(disk);
    // The list of rosters itself shows that a roster could not be deleted.
    const bool told = IsTold(events) || std::string_view(deed.name) == "delete-kv-roster";
    EXPECT_TRUE(told || DataOf(disk) == states.back());
    EXPECT_FALSE(Recover(disk).stuck);
    states.ExpectOneIn(disk);
    if (testing::Test::HasFailure()) return;
  }
}

void FailEachChange(const Deed& deed) {
  for (const Operation operation : kChanges) {
    for (const bool stays : {false, true}) FailEachChange(deed, operation, stays);
  }
}

TEST(CommitTest, AFailedCommitHasChangedNothing) {
  for (const char* name : {"courses-kv-to-qb", "golfers-kv-to-qb", "delete-kv-roster"}) {
    FailEachChange(DeedNamed(name));
  }
}

// The test "history_full" of CTest runs it.
TEST(CommitTest, DISABLED_AFailedCommitOfAnyTransaction) {
  for (const Deed& deed : kDeeds) FailEachChange(deed);
}

// The file of the history itself cannot be read, opened or closed.
TEST(CommitTest, AFaultOfTheHistoryFileHasChangedNothing) {
  const DataFiles states[] = {DataOf(SmallDisk()), DataOf(DiskAfterEveryKind())};
  for (int nth = 1;; ++nth) {
    SCOPED_TRACE(nth);
    MemoryPlatform disk = SmallDisk();
    FailingPlatform failing(disk);
    failing.Fail({.nth = nth, .name = ".RUN"});
    const int error = ErrorOf([&] { CommitEveryKind(failing); });
    if (!failing.Failed()) break;
    EXPECT_EQ(Difference(DataOf(disk), states[error == 0 ? 1 : 0]), "");
    EXPECT_FALSE(Recover(disk).stuck);
    EXPECT_EQ(Difference(DataOf(disk), states[error == 0 ? 1 : 0]), "");
  }
}

// Reports at the nth look that the process is to end.
class StoppingPlatform : public MemoryPlatform {
 public:
  StoppingPlatform(const MemoryPlatform& disk, int nth)
      : MemoryPlatform(disk.OnSameDisk()), looks_(nth) {}

  std::unique_ptr<StopWatch> WatchStops() override {
    struct Watch : StopWatch {
      explicit Watch(int& looks) : left(looks) {}
      int Signal() const override {
        if (left > 0) --left;
        return left == 0 ? 15 : 0;
      }
      int& left;
    };
    return std::make_unique<Watch>(looks_);
  }

 private:
  int looks_;
};

TEST(CommitTest, ARunThatIsStoppedHasChangedNothing) {
  for (const Deed& deed : kDeeds) {
    const States states = StatesOf(deed);
    int stopped = 0;
    for (int nth = 1;; nth += 1 + nth / 3) {
      SCOPED_TRACE(std::string(deed.name) + ", look " + std::to_string(nth));
      const MemoryPlatform disk = DemoDisk().Copy();
      bool ended = false;
      try {
        Do(deed, std::make_unique<StoppingPlatform>(disk, nth));
        ended = true;
      } catch (const Stopped& stop) {
        EXPECT_EQ(stop.signal(), 15);
        ++stopped;
      }
      states.ExpectOneIn(disk);
      EXPECT_FALSE(IsUnfinished(disk));
      if (!ended) continue;
      EXPECT_EQ(Difference(DataOf(disk), states.back()), "");
      break;
    }
    EXPECT_GT(stopped, 0) << deed.name;
  }
}

// Changes that are close together are written with one call. Bytes between distant changes are not
// written.
TEST(CommitTest, ACommitWritesOnlyWhatHasChanged) {
  constexpr std::size_t kFar = 10000;
  MemoryPlatform disk;
  const std::string before = std::string(5 * kFar, 'a');
  disk.Bytes("changed") = before;
  disk.SyncAll();
  FailingPlatform counting(disk);
  HistoryProgram program(counting);
  program.transactions.Begin({});
  const auto file = program.held.Open("/changed", FileAccess::kReadWriteShared);
  // Each record has one new byte. The first two adjoin, and so do the third and the fourth.
  const struct {
    std::size_t at, size, new_byte;
  } kRecords[] = {{0, 100, 50},
                  {100, 100, 10},
                  {kFar, kFar, 0},
                  {2 * kFar, kFar, kFar - 1},
                  {4 * kFar, 100, 7}};
  for (const auto& [at, size, new_byte] : kRecords) {
    std::string record(size, 'a');
    record[new_byte] = 'b';
    HistoryGate(program.held).Write(*file, static_cast<std::int64_t>(at), record);
  }
  program.transactions.Commit("");
  std::string written;
  for (const Change& change : counting.changes()) {
    if (change.path != "/changed" || change.operation != Operation::kWrite) continue;
    written += std::to_string(change.offset) + "+" + std::to_string(change.size) + " ";
  }
  EXPECT_EQ(written, "50+61 10000+1 29999+1 40007+1 ");
}

// Once the last changes are committed, a request is kept for the next click.
TEST(CommitTest, ARequestAfterTheCommitEndsTheNextClick) {
  MemoryPlatform disk = SmallDisk();
  StoppingPlatform stopping(disk, 1000);
  HistoryProgram program(stopping);
  program.transactions.BeginClick();
  HoldEveryKind(program);
  program.transactions.Commit("");
  const DataFiles after = DataOf(disk);
  const auto watch = stopping.WatchStops();
  while (watch->Signal() == 0) continue;
  program.transactions.EndClick();
  EXPECT_THROW(program.transactions.BeginClick(), Stopped);
  EXPECT_EQ(Difference(DataOf(disk), after), "");
}

TEST(CommitTest, AScreenDoesNotReadChangesThatCannotBeCommitted) {
  struct Reader : Screen {
    using Screen::Screen;
    Button* LeaveButton() override { return nullptr; }
    void OpenAgain() override { found = state().files.ReadText(state().QBDataPath + "text"); }
    std::string found;
  };
  TestInstall install;
  install.folder.Write("qbdata/text", "before");
  SharedState& state = install.state();
  Reader screen("Reader", {state, *install.host});
  install.platform->Fail({.only = Operation::kWrite, .name = "text"});
  const auto run = [&] {
    ScreenRun changes(state, *install.host, {}, {});
    state.files.gate().ReplaceText(state.QBDataPath + "text", "after");
    changes.Commit({}, nullptr);
  };
  EXPECT_EQ(ErrorOf([&] { RunTransfer(screen, state, *install.host, RunEnding::kCommit, run); }),
            57);
  EXPECT_EQ(screen.found, "before");
}

constexpr const char* kRun = "/transfer-history/000001-20240513-120000.run";

void WriteAt(Platform& platform, const std::string& path, std::int64_t offset,
             const std::string& bytes) {
  HistoryGate(platform).Write(*platform.Open(path, FileAccess::kReadWriteShared), offset, bytes);
}

using Run = std::function<void(const MemoryPlatform&)>;

void EveryKind(const MemoryPlatform& disk) { CommitEveryKind(*ProcessOn(disk)); }

void CreateEmptyFile(const MemoryPlatform& disk) {
  const auto platform = ProcessOn(disk);
  HistoryProgram program(*platform);
  program.transactions.Begin({});
  HistoryGate(program.held).Create("/empty");
  program.transactions.Commit("");
}

// Returns the small disk after a run that has changed all files but was killed before its last
// mark.
MemoryPlatform Interrupted(const Run& run) {
  const MemoryPlatform done = SmallDisk();
  run(done);
  MemoryPlatform disk = SmallDisk();
  disk.DieAt(done.ChangingCalls() - 1);
  EXPECT_THROW(run(disk), Died);
  disk.Revive();
  return disk;
}

TEST(CommitFaultsTest, AReaderDoesNotHideAnInterruptedRun) {
  const MemoryPlatform disk = Interrupted(EveryKind);
  const auto platform = ProcessOn(disk);
  HistoryProgram program(*platform);
  {
    const auto reading = ProcessOn(disk);
    const auto reader = reading->Open(kRun, FileAccess::kReadOnly);
    EXPECT_EQ(ErrorOf([&] { program.transactions.Recover(); }), 70);
    FailingPlatform failing(*platform);
    failing.Fail({.only = Operation::kRead, .name = ".RUN"});
    EXPECT_EQ(ErrorOf([&] { HistoryProgram(failing).transactions.Recover(); }), 57);
  }
  EXPECT_EQ(program.transactions.Recover().finished.size(), 1U);
}

TEST(CommitFaultsTest, AFileThatTheRunCreatedAndAnotherProgramFilledStays) {
  const auto fill = [](const MemoryPlatform& disk) {
    WriteAt(*ProcessOn(disk), "/empty", 0, "filled");
    return DataOf(disk);
  };
  const MemoryPlatform interrupted = Interrupted(CreateEmptyFile);
  const DataFiles filled = fill(interrupted);
  for (const RecoveryChoice choice :
       {RecoveryChoice::kByItself, RecoveryChoice::kFinish, RecoveryChoice::kPutBack}) {
    const MemoryPlatform disk = interrupted.Copy();
    const auto platform = ProcessOn(disk);
    EXPECT_EQ(HistoryProgram(*platform).transactions.Recover(choice).stuck,
              choice == RecoveryChoice::kByItself);
    EXPECT_EQ(Difference(DataOf(disk), filled), "");
  }
  const MemoryPlatform done = SmallDisk();
  CreateEmptyFile(done);
  fill(done);
  EXPECT_EQ(UndoNewest(*ProcessOn(done)), 1U);
  EXPECT_EQ(Difference(DataOf(done), filled), "");
}

TEST(CommitFaultsTest, AChangeBetweenTheReadAndTheWriteOfARecordIsError70) {
  const MemoryPlatform disk = SmallDisk();
  const auto platform = ProcessOn(disk);
  HistoryProgram program(*platform);
  program.transactions.Begin({});
  const auto file = program.held.Open("/changed", FileAccess::kReadWriteShared);
  std::string record(100, '\0');
  file->ReadAt(200, record);
  WriteAt(*ProcessOn(disk), "/changed", 250, "S");
  HistoryGate(program.held).Write(*file, 200, std::string(100, 'N'));
  EXPECT_EQ(ErrorOf([&] { program.transactions.Commit(""); }), 70);
}

// Another program has one of the roster's files open.
TEST(CommitFaultsTest, AKelvaneRosterIsDeletedWholeOrNotAtAll) {
  for (const char* file : {"/kvdata/NINE9.kvg", "/kvdata/NINE9.kvs", "/kvdata/NINE9.kv5"}) {
    for (const FileAccess access : {FileAccess::kAlone, FileAccess::kReadOnly}) {
      SCOPED_TRACE(file);
      const MemoryPlatform disk = DemoDisk().Copy();
      const DataFiles before = DataOf(disk);
      const auto other = ProcessOn(disk);
      const auto held = other->Open(file, access);
      Do(DeedNamed("delete-kv-roster"), ProcessOn(disk));
      EXPECT_EQ(Difference(DataOf(disk), before), "");
    }
  }
}

// A golfer cannot be read.
TEST(CommitFaultsTest, AQuenbyRosterIsDeletedWholeOrNotAtAll) {
  const MemoryPlatform done = DemoDisk().Copy();
  Do(DeedNamed("delete-qb-roster"), ProcessOn(done));
  bool failed = true;
  for (int nth = 1; failed; ++nth) {
    SCOPED_TRACE(nth);
    MemoryPlatform disk = DemoDisk().Copy();
    auto failing = std::make_unique<FailingPlatform>(disk);
    FailingPlatform& platform = *failing;
    platform.Fail({.nth = nth, .only = Operation::kRead, .name = "QBGOLFER.Q9D"});
    Do(DeedNamed("delete-qb-roster"), std::move(failing), [&] { failed = platform.Failed(); });
    const DataFiles left = DataOf(disk);
    EXPECT_TRUE(left == DataOf(DemoDisk()) || left == DataOf(done));
  }
}

TEST(CommitTest, AnUndoGivesBackEveryKindOfChange) {
  MemoryPlatform disk = DiskAfterEveryKind();
  EXPECT_EQ(UndoNewest(disk), 0U);
  EXPECT_EQ(Difference(DataOf(disk), DataOf(SmallDisk())), "");
}

// The places of the marks begin at 512 bytes and end at 4096. A file that is cut in them contains
// no whole mark.
TEST(CommitFaultsTest, AHistoryFileThatIsCutInItsMarksIsDamaged) {
  for (const std::size_t size : {1, 512, 1023}) {
    SCOPED_TRACE(size);
    MemoryPlatform disk = Interrupted(EveryKind);
    disk.Bytes(kRun + 1).resize(size);
    const DataFiles found = DataOf(disk);
    HistoryProgram program(disk);
    EXPECT_EQ(ListRuns(program.transactions.history()).damaged.size(), 1U);
    EXPECT_TRUE(program.transactions.IsUnfinished());
    EXPECT_TRUE(program.transactions.Recover().stuck);
    EXPECT_EQ(Difference(DataOf(disk), found), "");
  }
}

// The run keeps two files that it has deleted.
TEST(CommitFaultsTest, KeptFilesAreForgottenBeforeTheirHistoryFile) {
  MemoryPlatform disk = SmallDisk();
  EveryKind(disk);
  for (const char* number : {"1", "2"}) {
    const std::string kept = std::string(kRun + 1).replace(std::strlen(kRun) - 4, 3, number);
    EXPECT_TRUE(disk.Files().contains("/" + UpperCase(kept + ".KEPT"))) << kept;
  }
  disk.DieAt(3);
  EXPECT_THROW(ForgetAllRuns(HistoryProgram(disk).transactions.history()), Died);
  disk.Revive();
  EXPECT_EQ(HistoryProgram(disk).transactions.history().List().size(), 1U);
  ForgetAllRuns(HistoryProgram(disk).transactions.history());
  EXPECT_EQ(Difference(disk.Files(), DataOf(disk)), "");
}

// Record 3 is written by Ann and Bob, record 1 by Ann and the run, record 4 by Cat and the run.
// Another program changes record 2, which is Bob's.
TEST(CommitFaultsTest, AnUndoKeepsGroupsThatShareARecord) {
  constexpr const char* kFile = "/QBGOLFER.Q9D";
  constexpr std::size_t kLength = 1867;
  const auto record = [](char byte) { return std::string(kLength, byte); };
  MemoryPlatform disk;
  disk.Bytes(kFile + 1) = record('a') + record('b') + record('c') + record('d');
  disk.SyncAll();
  {
    HistoryProgram program(disk);
    program.transactions.Begin({});
    const struct {
      const char* group;
      std::vector<std::pair<std::int64_t, char>> writes;  // records and their new bytes
    } kGroups[] = {{"Ann", {{1, 'A'}, {3, 'x'}}},
                   {"Bob", {{3, 'C'}, {2, 'B'}}},
                   {"Cat", {{4, 'y'}}},
                   {"", {{4, 'D'}, {1, 'E'}}}};
    for (const auto& [group, writes] : kGroups) {
      program.transactions.BeginGroup(group);
      for (const auto& [number, byte] : writes) {
        WriteAt(program.held, kFile, (number - 1) * std::int64_t{kLength}, record(byte));
      }
    }
    program.transactions.Commit("");
  }
  WriteAt(disk, kFile, kLength + 300, "another program");
  const std::string kept = disk.Bytes(kFile + 1).substr(0, 3 * kLength);
  EXPECT_EQ(UndoNewest(disk), 1U);
  EXPECT_TRUE(disk.Bytes(kFile + 1) == kept + record('d'));
}

}  // namespace
}  // namespace golf
