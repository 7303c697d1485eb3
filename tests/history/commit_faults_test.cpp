// Tests of runs that meet another program or a damaged history file, and of the groups of changes
// that an undo keeps together.

#include <gtest/gtest.h>

#include "history/memory_install.h"
#include "history/run_list.h"
#include "support/error_of.h"
#include "support/failing_platform.h"

namespace golf {
namespace {

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
