// Tests recovery and commits after another program has changed a file, and two processes at a time.

#include "core/text.h"
#include "history/memory_install.h"
#include "history/run_list.h"

namespace golf {
namespace {

// A change that another program makes.
struct Foreign {
  const char* name;
  const char* file;
  std::function<void(HistoryGate&, PlatformFile*)> change;  // no file: it is deleted
  // True if it is in a place that the run changes. Otherwise it only changes the file's length.
  bool in_place = true;
};

void Make(const Foreign& foreign, const MemoryPlatform& disk) {
  const auto platform = ProcessOn(disk);
  HistoryGate gate(*platform);
  const std::string path = foreign.file;
  if (foreign.change == nullptr) return gate.Delete(path);
  gate.Create(path);
  const auto file = platform->Open(path, FileAccess::kReadWriteShared);
  foreign.change(gate, file.get());
}

std::function<void(HistoryGate&, PlatformFile*)> Writes(std::int64_t offset, std::size_t size) {
  return [=](HistoryGate& gate, PlatformFile* file) {
    gate.Write(*file, offset, std::string(size, 'S'));
  };
}

const Foreign kForeign[] = {
    {"changed bytes", "/changed", Writes(4092, 5)},
    {"a file that is cut in a change", "/changed",
     [](HistoryGate& gate, PlatformFile* file) { gate.Truncate(*file, 4092); }},
    {"a deleted file that the run changes", "/changed", nullptr, false},
    {"records in the place of those of the run", "/grown", Writes(9000, 500)},
    {"records behind those of the run", "/grown", Writes(9000, 9000), false},
    {"bytes that the run cuts off", "/cut", Writes(5000, 10)},
    {"records behind what the run cuts off", "/cut", Writes(9000, 10), false},
    {"another text", "/text", Writes(0, 30)},
    {"a file where the run makes one", "/made", Writes(0, 20)},
    {"a deleted file that the run deletes", "/gone", nullptr, false},
};

// The choice is carried out in all other files, and the bytes of the other program stay.
TEST(RecoveryTest, AChangeOfAnotherProgramWaitsForTheOperator) {
  const DataFiles before = DataOf(SmallDisk());
  const DataFiles after = DataOf(DiskAfterEveryKind());
  const std::pair<RecoveryChoice, const DataFiles*> kChoices[] = {
      {RecoveryChoice::kFinish, &after},
      {RecoveryChoice::kPutBack, &before},
      {RecoveryChoice::kLeave, nullptr}};
  for (const Foreign& foreign : kForeign) {
    int stuck = 0;
    for (int nth = 1;; ++nth) {
      SCOPED_TRACE(std::string(foreign.name) + ", crash in call " + std::to_string(nth));
      const auto crashed = DiskKilledAt(nth);
      if (!crashed) break;
      if (ErrorOf([&] { Make(foreign, *crashed); }) != 0) continue;  // the file is gone by now
      const DataFiles found = DataOf(*crashed);
      if (!Recover(crashed->Copy()).stuck) continue;
      ++stuck;
      const std::string path = UpperCase(foreign.file);
      for (const auto& [choice, expected] : kChoices) {
        const MemoryPlatform disk = crashed->Copy();
        EXPECT_TRUE(Recover(disk).stuck);
        EXPECT_EQ(Difference(DataOf(disk), found), "");
        EXPECT_TRUE(IsUnfinished(disk));
        EXPECT_FALSE(Recover(disk, choice).stuck);
        DataFiles left = DataOf(disk);
        EXPECT_FALSE(IsUnfinished(disk));
        if (expected == nullptr) {
          EXPECT_EQ(Difference(left, found), "");
          continue;
        }
        DataFiles wanted = *expected;
        const std::string now = left.contains(path) ? left.at(path) : "";
        const std::string then = found.contains(path) ? found.at(path) : "";
        if (foreign.in_place) {
          EXPECT_EQ(std::count(now.begin(), now.end(), 'S'),
                    std::count(then.begin(), then.end(), 'S'));
        } else {
          EXPECT_EQ(now, then);
        }
        for (DataFiles* files : {&left, &wanted}) files->erase(path);
        EXPECT_EQ(Difference(left, wanted), "");
      }
    }
    EXPECT_GT(stuck, 0) << foreign.name;
  }
}

// The sync of the done mark failed, and the process was killed while it put the run back. The
// operator finishes the run, and this recovery is killed in each of its calls.
TEST(RecoveryTest, ARunThatWasPutBackCanBeFinished) {
  const DataFiles after = DataOf(DiskAfterEveryKind());
  MemoryPlatform disk = SmallDisk();
  disk.DieAt(DiskAfterEveryKind().ChangingCalls() + 9);
  EXPECT_TRUE(DiesIn([&] {
    FailingPlatform failing(disk);
    failing.Fail({.nth = 3, .only = Operation::kSync, .name = ".RUN"});
    CommitEveryKind(failing);
  }));
  disk.Revive();
  Make(kForeign[3], disk);
  EXPECT_TRUE(Recover(disk.Copy()).stuck);
  bool killed = true;
  for (int nth = 1; killed; ++nth) {
    MemoryPlatform again = disk.Copy();
    again.DieAt(nth);
    killed = DiesIn([&] { Recover(again, RecoveryChoice::kFinish); });
    again.Revive();
    Recover(again, RecoveryChoice::kFinish);
    DataFiles left = DataOf(again);
    left["/GROWN"] = after.at("/GROWN");
    EXPECT_EQ(Difference(left, after), "");
  }
}

// Between the first change and the commit.
TEST(RecoveryTest, AChangeOfAnotherProgramInMidRunIsError70) {
  for (const Foreign& foreign : kForeign) {
    SCOPED_TRACE(foreign.name);
    const MemoryPlatform disk = SmallDisk();
    const auto platform = ProcessOn(disk);
    HistoryProgram program(*platform);
    HoldEveryKind(program);
    if (ErrorOf([&] { Make(foreign, disk); }) != 0) continue;  // held open by the run
    if (std::string_view(foreign.name) == "bytes that the run cuts off") continue;  // read last
    const DataFiles found = DataOf(disk);
    EXPECT_EQ(ErrorOf([&] { program.transactions.Commit(""); }), 70);
    EXPECT_TRUE(program.transactions.IsOpen());
    program.transactions.Drop();
    EXPECT_EQ(Difference(DataOf(disk), found), "");
    EXPECT_TRUE(program.transactions.history().List().empty());
  }
}

TEST(RecoveryTest, ARunAtWorkIsLeftAlone) {
  const MemoryPlatform disk = SmallDisk();
  const auto first = ProcessOn(disk);
  const auto second = ProcessOn(disk);
  // In the commit the history file is open alone.
  class Meeting : public FailingPlatform {
   public:
    using FailingPlatform::FailingPlatform;
    std::function<void()> meet;
    void SyncFolder(ChangePass pass, const std::string& folder) override {
      FailingPlatform::SyncFolder(pass, folder);
      meet();
    }
  };
  Meeting meeting(*first);
  int met = 0;
  meeting.meet = [&] {
    const DataFiles found = DataOf(disk);
    HistoryProgram other(*second);
    EXPECT_TRUE(other.transactions.Recover().finished.empty());
    EXPECT_FALSE(other.transactions.IsUnfinished());
    EXPECT_TRUE(ListRuns(other.transactions.history()).runs.empty());
    EXPECT_EQ(Difference(DataOf(disk), found), "");
    ++met;
  };
  CommitEveryKind(meeting);
  EXPECT_GT(met, 1);
  EXPECT_EQ(Difference(DataOf(disk), DataOf(DiskAfterEveryKind())), "");
}

}  // namespace
}  // namespace golf
