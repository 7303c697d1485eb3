// Kills each transaction at each of its changes, also by a power cut, and each recovery from that.
// Afterwards the files are as before the transaction, or as after it.

#include "history/memory_install.h"

namespace golf {
namespace {

using Look = std::function<void()>;

// A transaction and the disk before it.
struct Run {
  std::string name;
  MemoryPlatform before;
  std::function<void(const MemoryPlatform& disk, const Look& look)> make;
  // The files after a run that puts everything back itself.
  std::optional<DataFiles> after = {};
};

Run RunOf(const Deed& deed) {
  return {deed.name, DemoDisk().Copy(), [&deed](const MemoryPlatform& disk, const Look& look) {
            Do(deed, ProcessOn(disk), look);
          }};
}

// Returns the undo of a run, on the disk after the run.
Run UndoOf(const Run& run) {
  MemoryPlatform disk = run.before.Copy();
  run.make(disk, {});
  disk.SyncAll();
  return {"undo of " + run.name, disk.Copy(), [](const MemoryPlatform& after, const Look&) {
            EXPECT_EQ(UndoNewest(*ProcessOn(after)), 0U);
          }};
}

// A disk after a crash or a power cut.
struct Rest {
  std::string name;
  MemoryPlatform disk;
};

Rest RestOf(const MemoryPlatform& dead, int cut) {
  if (cut == 0) return {"crash", dead.Copy()};
  Rest rest{"power cut " + std::to_string(cut - 1), dead.Copy()};
  rest.disk.PowerCut(static_cast<std::uint64_t>(cut - 1));
  return rest;
}

std::vector<Rest> RestsOf(const MemoryPlatform& dead, int cuts) {
  std::vector<Rest> rests;
  for (int cut = 0; cut <= cuts; ++cut) rests.push_back(RestOf(dead, cut));
  return rests;
}

// Checks that the next start on the disk finishes the run or puts it back.
void ExpectRecovery(const MemoryPlatform& disk) {
  const Recovery recovery = Recover(disk);
  EXPECT_FALSE(recovery.stuck) << recovery.stuck_text;
  EXPECT_FALSE(IsUnfinished(disk));
}

// The number of cases. A run is killed in each of its changes in any case.
enum class Depth {
  kSample,  // one way to lose power, and one death of the recovery, in turn
  kMost,    // three ways, and every 7th death
  kAll,     // nine ways, and each death
};

class Matrix {
 public:
  Matrix(const Run& run, Depth depth) : run_(run), depth_(depth) {}

  void Check() {
    SCOPED_TRACE(run_.name);
    const auto calls = static_cast<unsigned>(MakeOnce());
    ASSERT_GT(states_.size(), 1U);
    for (unsigned nth = 1; nth <= calls; ++nth) {
      for (const double share : {0.0, 0.5}) {
        if (depth_ != Depth::kAll && nth % 2 == (share == 0)) continue;
        SCOPED_TRACE("dies in call " + std::to_string(nth) + " of " + std::to_string(calls) +
                     ", share " + std::to_string(share));
        const MemoryPlatform disk = run_.before.Copy();
        MemoryPlatform(disk.OnSameDisk()).DieAt(static_cast<int>(nth), share);
        ASSERT_TRUE(DiesIn([&] { run_.make(disk, {}); }));
        if (depth_ == Depth::kSample) {
          CheckRest(RestOf(disk, static_cast<int>(nth % 4)));
        } else {
          for (const Rest& rest : RestsOf(disk, depth_ == Depth::kAll ? 8 : 3)) CheckRest(rest);
        }
        if (testing::Test::HasFailure()) return;
      }
    }
  }

 private:
  // Notes the states in which the run may leave the files. Returns the number of its changes.
  int MakeOnce() {
    const MemoryPlatform disk = run_.before.Copy();
    states_.Note(disk);
    run_.make(disk, [&] { states_.Note(disk); });
    states_.Note(disk);
    const int calls = disk.ChangingCalls();
    for (const Rest& rest : RestsOf(disk, 8)) {  // once the run says done, nothing is lost
      ExpectRecovery(rest.disk);
      EXPECT_EQ(Difference(DataOf(rest.disk), states_.back()), "") << rest.name;
    }
    if (run_.after) states_.push_back(*run_.after);
    return calls;
  }

  void CheckRest(const Rest& rest) {
    SCOPED_TRACE(rest.name);
    const MemoryPlatform disk = rest.disk.Copy();
    ExpectRecovery(disk);
    const int calls = disk.ChangingCalls();
    states_.ExpectOneIn(disk);
    const int step = depth_ == Depth::kAll ? 1 : depth_ == Depth::kMost ? 7 : std::max(calls, 1);
    for (int nth = 1 + turn_++ % step; nth <= calls; nth += step) {
      SCOPED_TRACE("recovery dies in call " + std::to_string(nth));
      const MemoryPlatform again = rest.disk.Copy();
      MemoryPlatform(again.OnSameDisk()).DieAt(nth, 0.5);
      ASSERT_TRUE(DiesIn([&] { ExpectRecovery(again); }));
      for (const Rest& second : RestsOf(again, depth_ == Depth::kAll ? 3 : 1)) {
        SCOPED_TRACE(second.name);
        ExpectRecovery(second.disk);
        states_.ExpectOneIn(second.disk);
      }
    }
  }

  const Run& run_;
  Depth depth_;
  States states_;
  int turn_ = 0;
};

Run EveryKind() {
  return {"every kind of change", SmallDisk(),
          [](const MemoryPlatform& disk, const Look&) { CommitEveryKind(*ProcessOn(disk)); }};
}

// Returns a run whose commit fails once and puts everything back.
Run FailsAndPutsBack(const Run& run, const Fault& fault) {
  const MemoryPlatform disk = run.before.Copy();
  run.make(disk, {});
  const auto make = [&fault](const MemoryPlatform& full, const Look&) {
    MemoryPlatform process = full.OnSameDisk();
    FailingPlatform failing(process);
    failing.Fail(fault);
    EXPECT_NE(ErrorOf([&] { CommitEveryKind(failing); }), 0);
    EXPECT_TRUE(failing.Failed());
  };
  return {run.name + " on a full disk", run.before.Copy(), make, DataOf(disk)};
}

void CheckWithUndo(const Run& run, Depth depth) {
  Matrix(run, depth).Check();
  if (!testing::Test::HasFailure()) Matrix(UndoOf(run), depth).Check();
}

void CheckDeeds(Depth depth) {
  for (const Deed& deed : kDeeds) {
    if (testing::Test::HasFailure()) return;
    CheckWithUndo(RunOf(deed), depth);
  }
}

// The commit fails at a write, a rename, a sync and the done mark.
void CheckPutBacks(Depth depth) {
  constexpr auto kFull = ErrorNumber::kDiskFull;
  const Fault faults[] = {{kFull, 1, Operation::kWrite, "CHANGED", false, 5},
                          {kFull, 1, Operation::kWrite, "MADE", false, 5000},
                          {kFull, 1, Operation::kTruncate, "CUT"},
                          {kFull, 2, Operation::kRename},
                          {kFull, 1, Operation::kSync, "GROWN"},
                          {kFull, 2, Operation::kSyncFolder},
                          {kFull, 4, Operation::kWrite, ".RUN"}};
  for (const Fault& fault : faults) {
    Matrix(FailsAndPutsBack(EveryKind(), fault), depth).Check();
    if (testing::Test::HasFailure()) return;
  }
}

TEST(CrashMatrix, EveryKindOfChangeIsWholeOrNotAtAll) { Matrix(EveryKind(), Depth::kMost).Check(); }
TEST(CrashMatrix, EveryTransactionIsWholeOrNotAtAll) { CheckDeeds(Depth::kSample); }
TEST(CrashMatrix, APutBackIsWholeOrNotAtAll) { CheckPutBacks(Depth::kSample); }

// The test "history_full" of CTest runs it.
TEST(CrashMatrix, DISABLED_EveryCrashOfEveryRecovery) {
  Matrix(EveryKind(), Depth::kAll).Check();
  CheckPutBacks(Depth::kMost);
  CheckDeeds(Depth::kMost);
}

// A process was killed before its done mark was synced. Another run follows, and then the power
// fails: the mark must not be lost.
TEST(CrashMatrix, AMarkOutlastsTheRunsThatFollow) {
  // The killed call is the sync of the done mark.
  MemoryPlatform disk = *DiskKilledAt(DiskAfterEveryKind().ChangingCalls());
  {
    const auto platform = ProcessOn(disk);
    HistoryProgram program(*platform);
    EXPECT_TRUE(program.transactions.Recover().finished.empty());
    program.transactions.Begin({});
    HistoryGate gate(program.held);
    gate.Write(*program.held.Open("/changed", FileAccess::kReadWriteShared), 10, "second");
    program.transactions.Commit("");
  }
  const DataFiles after = DataOf(disk);
  disk.PowerCut(0);
  ExpectRecovery(disk);
  EXPECT_EQ(Difference(DataOf(disk), after), "");
}

}  // namespace
}  // namespace golf
