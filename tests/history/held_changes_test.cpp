// Tests that held changes are read as if they were on the disk, and are written at the commit only.

#include <random>
#include <set>

#include "core/file_table.h"
#include "core/text.h"
#include "history/hold_failed.h"
#include "history/memory_install.h"
#include "support/temp_folder.h"

namespace golf {
namespace {

class Random {
 public:
  explicit Random(unsigned seed) : random_(seed) {}

  std::int64_t Below(std::int64_t limit) {
    return static_cast<std::int64_t>(random_() % static_cast<std::uint64_t>(limit));
  }
  // Few different bytes, so that some writes bring the old bytes again.
  std::string Bytes(std::int64_t most) {
    return std::string(static_cast<std::size_t>(1 + Below(most)),
                       static_cast<char>("\0xyz"[Below(4)]));
  }

 private:
  std::mt19937_64 random_;
};

// Makes the same calls on two platforms and compares their results.
class Pair {
 public:
  Pair(Platform& held, Platform& plain,
       std::vector<std::string> names = {"a", "A", "b", "c", "d", "B"})
      : sides_{Side(held), Side(plain)}, names_(std::move(names)) {}

  void Step(Random& random) {
    const auto name = [&] {
      return names_[static_cast<std::size_t>(random.Below(std::ssize(names_)))];
    };
    const std::int64_t number = random.Below(3);
    const std::int64_t offset = random.Below(300);
    const std::string path = name();
    const std::string other = name();
    const std::string bytes = random.Bytes(60);
    const std::int64_t call = random.Below(14);
    if (call < 2) return Same([&](Side& side) { side.Open(number, path); });
    if (call < 3) return Same([&](Side& side) { side.files.erase(number); });
    if (call < 7) return Same([&](Side& side) { side.gate.Write(side.At(number), offset, bytes); });
    if (call < 8) return Same([&](Side& side) { side.gate.Truncate(side.At(number), offset); });
    if (call < 9) return Same([&](Side& side) { side.gate.Create(side.Path(path)); });
    if (call >= 11) return Compare();
    if (IsOpen(path)) return;
    if (call < 10) return Same([&](Side& side) { side.gate.Delete(side.Path(path)); });
    // Which of two errors is raised depends on the system.
    const bool is_sure = path.size() == 1 && (other.size() == 1 || other == "sub/a");
    const bool is_free = is_sure && !IsOpen(other) && UpperCase(path) != UpperCase(other);
    if (is_free) Same([&](Side& side) { side.gate.Rename(side.Path(path), side.Path(other)); });
  }

  void Compare() {
    for (const std::string& path : names_) {
      EXPECT_EQ(sides_[0].Content(path), sides_[1].Content(path)) << path;
    }
    EXPECT_EQ(sides_[0].Names(), sides_[1].Names());
    for (std::int64_t number = 0; number < 3; ++number) {
      if (!sides_[0].files.contains(number)) continue;
      for (std::int64_t offset : {0, 37, 100, 290}) {
        EXPECT_EQ(sides_[0].Read(number, offset), sides_[1].Read(number, offset));
      }
    }
  }

 private:
  struct OpenFile {
    std::string path;
    std::unique_ptr<PlatformFile> file;
  };

  struct Side {
    explicit Side(Platform& platform) : gate(platform) {}

    // Returns the path of a file or a folder by its name below the program's folder.
    std::string Path(const std::string& name) { return gate.platform().ProgramFolder() + name; }
    PlatformFile& At(std::int64_t number) {
      const auto open = files.find(number);
      if (open == files.end()) throw NumberedError(ErrorNumber::kBadFileNumber, "Not open.");
      return *open->second.file;
    }
    void Open(std::int64_t number, const std::string& path) {
      files.erase(number);
      files[number] = {path, gate.platform().Open(Path(path), FileAccess::kReadWriteShared)};
    }
    std::string Content(const std::string& path) {
      std::string bytes(1000, '?');
      const int error = ErrorOf([&] {
        const auto file = gate.platform().Open(Path(path), FileAccess::kReadOnly);
        bytes.resize(file->ReadAt(0, bytes));
        EXPECT_EQ(file->Length(), std::ssize(bytes));
      });
      return error == 0 ? bytes : "error " + std::to_string(error);
    }
    std::string Read(std::int64_t number, std::int64_t offset) {
      std::string bytes(70, '?');
      bytes.resize(At(number).ReadAt(offset, bytes));
      return bytes + std::to_string(At(number).Length());
    }
    std::set<std::string> Names() {
      std::set<std::string> names;
      for (const std::string& name : gate.platform().FileNames(Path(""))) {
        EXPECT_TRUE(names.insert(UpperCase(name)).second);
      }
      return names;
    }

    HistoryGate gate;
    std::map<std::int64_t, OpenFile> files;
  };

  bool IsOpen(const std::string& path) {
    return std::any_of(sides_[0].files.begin(), sides_[0].files.end(), [&](const auto& open) {
      return UpperCase(open.second.path) == UpperCase(path);
    });
  }

  void Same(const std::function<void(Side&)>& call) {
    const int held = ErrorOf([&] { call(sides_[0]); });
    EXPECT_EQ(held, ErrorOf([&] { call(sides_[1]); }));
  }

  std::array<Side, 2> sides_;
  std::vector<std::string> names_;
};

TEST(HeldChangesTest, ReadAsIfTheyWereMade) {
  for (unsigned seed = 1; seed <= 150; ++seed) {
    SCOPED_TRACE(seed);
    Random random(seed);
    MemoryPlatform disk;
    for (const char* name : {"a", "b"}) disk.Bytes(name) = random.Bytes(250) + random.Bytes(60);
    MemoryPlatform plain = disk.Copy();
    HistoryProgram program(disk);
    Pair pair(program.held, plain);
    for (int turn = 0; turn < 3; ++turn) {  // files stay open from one run to the next
      const DataFiles before = DataOf(disk);
      program.transactions.Begin({});
      for (int step = 0; step < 60; ++step) {
        pair.Step(random);
        if (testing::Test::HasFailure()) return;
      }
      EXPECT_EQ(Difference(DataOf(disk), before), "");
      program.transactions.Commit("");
      EXPECT_EQ(Difference(DataOf(disk), DataOf(plain)), "");
      pair.Compare();
      if (testing::Test::HasFailure()) return;
    }
    const DataFiles before = DataOf(disk);
    program.transactions.Begin({});
    for (int step = 0; step < 60; ++step) pair.Step(random);
    program.transactions.Drop();
    EXPECT_EQ(Difference(DataOf(disk), before), "");
  }
}

TEST(MemoryPlatformTest, ActsAsARealDisk) {
  const TempFolder folder;
  const auto real = MakePlatform(folder.Path());
  MemoryPlatform memory;
  for (Platform* disk : {real.get(), static_cast<Platform*>(&memory)}) {
    HistoryGate(*disk).CreateFolder(disk->ProgramFolder() + "sub");
  }
  Pair pair(memory, *real, {"a", "A", "b", "B", "sub", "sub/a", "none/a"});
  Random random(1);
  for (int step = 0; step < 3000 && !testing::Test::HasFailure(); ++step) pair.Step(random);
}

// A record is held once, with its bytes of before the run, however often it is written. One that
// has its old bytes again is no change.
TEST(HeldChangesTest, NetChangesAreHeld) {
  MemoryPlatform disk;
  disk.Bytes("a") = "aaabbbccc";
  HistoryProgram program(disk);
  FileTable files(program.held);
  const auto write = [&](int number, int record, const char* bytes) {
    files.WriteBytes(number, record, bytes);
  };
  const auto places = [&] {
    std::string told;
    for (const HistoryName& name : program.transactions.history().List()) {
      program.transactions.history()
          .Open(name, FileAccess::kReadOnly)
          ->Read({
              .place =
                  [&](const HistoryPlace& place) {
                    told += std::to_string(place.offset) + place.old_bytes + ">" + place.new_bytes +
                            " ";
                  },
          });
      program.transactions.history().Forget(name);
    }
    return told;
  };
  program.transactions.Begin({});
  files.Open(1, "/a", 3);
  files.Open(2, "/A", 3);
  write(1, 2, "xxx");
  write(2, 2, "yyy");
  write(1, 3, "zzz");
  write(2, 3, "ccc");
  write(2, 1, "a");
  EXPECT_EQ(program.transactions.Commit(""), 1);
  EXPECT_EQ(places(), "3bbb>yyy ");
  program.transactions.Begin({});
  write(1, 2, "qqq");
  write(2, 2, "yyy");
  EXPECT_EQ(program.transactions.Commit(""), 0);
  EXPECT_EQ(places(), "");
}

// Makes random writes and truncations of one file, with and without a store that keeps its places
// in memory.
TEST(HeldChangesTest, SpilledPlacesReadAsWritten) {
  for (const std::size_t memory : {std::size_t{0}, std::size_t{1} << 20}) {
    Random random(7);
    MemoryPlatform disk;
    disk.Bytes("a") = std::string(30000, 'o');
    std::string model = disk.Bytes("a");
    SpillStore store(disk, memory);
    HeldFileChanges changes("/a", disk.Open("/a", FileAccess::kReadWriteShared), store);
    for (int step = 0; step < 300; ++step) {
      const auto offset = static_cast<std::size_t>(random.Below(40000));
      if (random.Below(40) == 0) {
        changes.Truncate(static_cast<std::int64_t>(offset), 0);
        model.resize(offset);
      } else {
        std::string bytes = random.Bytes(3000);
        for (std::size_t at = 0; at < bytes.size(); at += 3) {
          bytes[at] = static_cast<char>(random.Below(256));
        }
        changes.WriteAt(static_cast<std::int64_t>(offset), bytes, 0);
        model.resize(std::max(model.size(), offset + bytes.size()));
        model.replace(offset, bytes.size(), bytes);
      }
      if (step % 10 != 0) continue;
      std::string read(50000, '?');
      read.resize(changes.ReadAt(0, read));
      ASSERT_TRUE(read == model) << step;
    }
  }
}

// Another program cuts the file during the run. The bytes that it has cut count as zeros.
TEST(HeldChangesTest, AFileThatAnotherProgramHasCutIsReadWithZeros) {
  MemoryPlatform disk;
  disk.Bytes("a") = std::string(100, 'a');
  SpillStore store(disk, 0);
  HeldFileChanges changes("/a", disk.Open("/a", FileAccess::kReadWriteShared), store);
  disk.Bytes("a").resize(50);
  changes.WriteAt(40, std::string(30, 'b'), 0);
  std::string read(100, '?');
  read.resize(changes.ReadAt(0, read));
  EXPECT_EQ(read, std::string(40, 'a') + std::string(30, 'b') + std::string(30, '\0'));
}

// A write that cannot be held ends the run.
TEST(HeldChangesTest, WhatCannotBeHeldEndsTheRun) {
  MemoryPlatform disk;
  disk.Bytes("a") = std::string(100, 'a');
  const Fault faults[] = {{.only = Operation::kRead, .name = "/a"},
                          {ErrorNumber::kDiskFull, 1, Operation::kWrite, kScratchName},
                          {ErrorNumber::kDiskFull, 1, Operation::kScratch}};
  for (const Fault& fault : faults) {
    FailingPlatform failing(disk);
    SpillStore store(failing, 0);
    HeldFileChanges changes("/a", failing.Open("/a", FileAccess::kReadWriteShared), store);
    failing.Fail(fault);
    EXPECT_THROW(
        {
          for (int i = 0; i < 400; ++i) {
            std::string bytes(1000, 'b');
            for (std::size_t at = 0; at < bytes.size(); ++at) bytes[at] = static_cast<char>(at * 7);
            changes.WriteAt(i * 1000, bytes, 0);
          }
        },
        HoldFailed);
  }
}

}  // namespace
}  // namespace golf
