// Kills each transaction at each of its changes, also by a power cut, and each recovery from that.
// Afterwards the files are as before the transaction, or as after it.

#include <gtest/gtest.h>

#include "history/memory_install.h"

namespace golf {
namespace {

using Look = std::function<void()>;

// A transaction, and the disk on which it is made.
struct Run {
  std::string name;
  MemoryPlatform before;
  std::function<void(const MemoryPlatform& disk, const Look& look)> make;
};

Run RunOf(const Deed& deed) {
  return {deed.name, DemoDisk().Copy(), [&deed](const MemoryPlatform& disk, const Look& look) {
            Do(deed, ProcessOn(disk), look);
          }};
}

// Its undo, on the disk that it leaves.
Run UndoOf(const Run& run) {
  MemoryPlatform disk = run.before.Copy();
  run.make(disk, {});
  disk.SyncAll();
  return {"undo of " + run.name, disk.Copy(), [](const MemoryPlatform& after, const Look&) {
            EXPECT_EQ(UndoNewest(*ProcessOn(after)), 0U);
          }};
}

// What a crash or a power cut may leave of a disk.
struct Rest {
  std::string name;
  MemoryPlatform disk;
};

std::vector<Rest> RestsOf(const MemoryPlatform& dead, int cuts) {
  std::vector<Rest> rests;
  rests.push_back({"crash", dead.Copy()});
  for (int seed = 0; seed < cuts; ++seed) {
    rests.push_back({"power cut " + std::to_string(seed), dead.Copy()});
    rests.back().disk.PowerCut(static_cast<std::uint64_t>(seed));
  }
  return rests;
}

bool DiesIn(const std::function<void()>& action) {
  try {
    action();
  } catch (const Died&) {
    return true;
  }
  return false;
}

// What starts next on the disk finishes the run, or puts it back.
void Recover(const MemoryPlatform& disk) {
  const auto platform = ProcessOn(disk);
  HistoryProgram program(*platform);
  const Recovery recovery = program.transactions.Recover();
  EXPECT_FALSE(recovery.stuck) << recovery.stuck_text;
  EXPECT_FALSE(program.transactions.IsUnfinished());
}

class Matrix {
 public:
  // `every`: each death of each recovery, and more ways to lose power.
  Matrix(const Run& run, bool every) : run_(run), every_(every) {}

  void Check() {
    SCOPED_TRACE(run_.name);
    const int calls = MakeOnce();
    ASSERT_GT(states_.size(), 1U);
    for (int nth = 1; nth <= calls; ++nth) {
      for (const double share : {0.0, 0.5}) {
        SCOPED_TRACE("dies in call " + std::to_string(nth) + " of " + std::to_string(calls) +
                     ", share " + std::to_string(share));
        const MemoryPlatform disk = run_.before.Copy();
        MemoryPlatform(disk.OnSameDisk()).DieAt(nth, share);
        ASSERT_TRUE(DiesIn([&] { run_.make(disk, {}); }));
        for (const Rest& rest : RestsOf(disk, every_ ? 8 : 4)) CheckRest(rest);
        if (testing::Test::HasFailure()) return;
      }
    }
  }

 private:
  // Notes the states in which the run may leave the files. Returns the number of its changes.
  int MakeOnce() {
    const MemoryPlatform disk = run_.before.Copy();
    const auto look = [&] {
      DataFiles state = DataOf(disk);
      if (states_.empty() || states_.back() != state) states_.push_back(std::move(state));
    };
    look();
    run_.make(disk, look);
    look();
    const int calls = disk.ChangingCalls();
    // Once the run says done, a power cut takes nothing.
    for (const Rest& rest : RestsOf(disk, 8)) {
      Recover(rest.disk);
      EXPECT_EQ(Difference(DataOf(rest.disk), states_.back()), "") << rest.name;
    }
    return calls;
  }

  void CheckRest(const Rest& rest) {
    SCOPED_TRACE(rest.name);
    const MemoryPlatform disk = rest.disk.Copy();
    Recover(disk);
    const int calls = disk.ChangingCalls();
    CheckWhole(disk);
    for (int nth = 1 + turn_++ % step(); nth <= calls; nth += step()) {
      SCOPED_TRACE("recovery dies in call " + std::to_string(nth));
      const MemoryPlatform again = rest.disk.Copy();
      MemoryPlatform(again.OnSameDisk()).DieAt(nth, 0.5);
      ASSERT_TRUE(DiesIn([&] { Recover(again); }));
      for (const Rest& second : RestsOf(again, every_ ? 3 : 2)) {
        Recover(second.disk);
        SCOPED_TRACE(second.name);
        CheckWhole(second.disk);
      }
    }
  }

  void CheckWhole(const MemoryPlatform& disk) {
    const DataFiles state = DataOf(disk);
    if (std::find(states_.begin(), states_.end(), state) != states_.end()) return;
    ADD_FAILURE() << "before: " << Difference(state, states_.front())
                  << "\nafter: " << Difference(state, states_.back());
  }

  int step() const { return every_ ? 1 : 5; }

  const Run& run_;
  bool every_;
  std::vector<DataFiles> states_;
  int turn_ = 0;
};

void CheckAll(bool every) {
  for (const Deed& deed : Deeds()) {
    const Run run = RunOf(deed);
    Matrix(run, every).Check();
    if (testing::Test::HasFailure()) return;
    Matrix(UndoOf(run), every).Check();
  }
}

TEST(CrashMatrix, ATransactionIsWholeOrNotAtAll) { CheckAll(false); }

// The test "history_full" of CTest runs it.
TEST(CrashMatrix, DISABLED_EveryCrashOfEveryRecovery) { CheckAll(true); }

}  // namespace
}  // namespace golf
