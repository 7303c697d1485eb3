// Tests commits that fail and runs that are requested to stop.

#include <gtest/gtest.h>

#include "history/memory_install.h"
#include "history/stopped.h"
#include "screens/transfers/screen_run.h"
#include "support/error_of.h"
#include "support/failing_platform.h"
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
  for (const Deed& deed : Deeds()) FailEachChange(deed);
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
  for (const Deed& deed : Deeds()) {
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

}  // namespace
}  // namespace golf
