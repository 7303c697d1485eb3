// Tests the code of places, and history files that are damaged.

#include <random>
#include <sstream>

#include "history/history_file.h"
#include "history/memory_install.h"
#include "history/place_code.h"
#include "history/place_comparison.h"

namespace golf {
namespace {

constexpr const char* kRun = "transfer-history/000001-20240513-120000.run";

// Returns bytes with short and long stretches of one byte.
std::string SomeBytes(std::mt19937& random, std::size_t size) {
  std::string bytes;
  while (bytes.size() < size) {
    const auto stretch = random() % 3 == 0 ? random() % 300 : 1 + random() % 9;
    bytes.append(std::min<std::size_t>(stretch, size - bytes.size()),
                 static_cast<char>(random() % 5));
  }
  return bytes;
}

TEST(HistoryFormatTest, PlacesComeBackFromTheirCode) {
  std::mt19937 random(1);
  for (int turn = 0; turn < 3000; ++turn) {
    SCOPED_TRACE(turn);
    std::string old_bytes = SomeBytes(random, random() % 500);
    std::string new_bytes = turn % 3 == 0 ? SomeBytes(random, random() % 500) : old_bytes;
    for (unsigned i = random() % 4; i > 0 && !new_bytes.empty(); --i) {
      new_bytes[random() % new_bytes.size()] = static_cast<char>(random() % 5);
    }
    if (turn % 7 == 0) old_bytes.resize(old_bytes.size() / 2);
    std::string code = "before";
    const bool differs = AppendPlace(code, old_bytes, new_bytes);
    ASSERT_EQ(differs, old_bytes != new_bytes);
    if (!differs) {
      ASSERT_EQ(code, "before");
      continue;
    }
    CodeReader reader(std::string_view(code).substr(6));
    HistoryPlace place;
    reader.Place(old_bytes.size(), new_bytes.size(), PlaceParts::kWhole, place);
    ASSERT_FALSE(reader.failed());
    ASSERT_TRUE(reader.AtEnd());
    ASSERT_EQ(place.old_bytes, old_bytes);
    ASSERT_EQ(place.new_bytes, new_bytes);
    const std::size_t first = place.FirstChanged();
    const auto now_of = [&](const std::string& side) {
      return side.substr(std::min(first, side.size()), place.ChangedSize());
    };
    const std::string old_now = now_of(old_bytes);
    ASSERT_TRUE(IsUntouched(place, old_now));
    ASSERT_TRUE(IsMixture(place, old_now) && IsMixture(place, now_of(new_bytes)));
    if (old_now.size() == place.ChangedSize()) {  // then another program cuts the file
      ASSERT_FALSE(IsUntouched(place, old_now.substr(0, old_now.size() - 1)));
    }
    std::string marked(std::max(old_bytes.size(), new_bytes.size()), '-');
    for (const ChangedBytes& run : place.changed) marked.replace(run.at, run.size, run.size, '*');
    for (std::size_t at = 0; at < marked.size(); ++at) {
      const bool changed =
          at >= old_bytes.size() || at >= new_bytes.size() || old_bytes[at] != new_bytes[at];
      ASSERT_EQ(marked[at], changed ? '*' : '-') << at;
    }
  }
}

// Returns the whole content of a history file, or "damaged".
std::string Told(const MemoryPlatform& disk) {
  const auto platform = ProcessOn(disk);
  HistoryFile file(kRun, platform->Open("/" + std::string(kRun), FileAccess::kReadOnly));
  std::string told;
  const auto add = [&](const auto&... parts) {
    std::ostringstream line;
    ((line << parts << '|'), ...);
    told += line.str();
  };
  try {
    file.Read({.run = [&](const RunTitle& title) { add(title.command, title.about); },
               .group = [&](ChangeGroup group, std::string_view title) { add(group, title); },
               .file =
                   [&](const HistoryFileEntry& entry) {
                     add(entry.path, entry.kept_as, entry.old_length, entry.new_length);
                   },
               .place =
                   [&](const HistoryPlace& place) {
                     add(place.offset, place.old_bytes, place.new_bytes);
                   },
               .report = [&](std::string_view report) { add(report); }});
    EXPECT_TRUE(file.IsWhole());
    return told;
  } catch (const DamagedHistory&) {
    EXPECT_FALSE(file.IsWhole());
    return "damaged";
  }
}

// Checks that the file is read as it was written or reported as damaged. Recovery finishes the run
// or puts it back. Otherwise it reports that it cannot, and changes nothing.
void CheckDamaged(const MemoryPlatform& disk, const std::string& whole, const DataFiles& before,
                  const DataFiles& after) {
  const std::string told = Told(disk);
  EXPECT_TRUE(told == whole || told == "damaged");
  const DataFiles found = DataOf(disk);
  const auto platform = ProcessOn(disk);
  HistoryProgram program(*platform);
  const bool unfinished = program.transactions.IsUnfinished();
  const Recovery recovery = program.transactions.Recover();
  const DataFiles left = DataOf(disk);
  if (recovery.stuck) {
    EXPECT_TRUE(unfinished);
    EXPECT_EQ(Difference(left, found), "");
    EXPECT_FALSE(program.transactions.Recover(RecoveryChoice::kLeave).stuck);
    EXPECT_EQ(Difference(DataOf(disk), found), "");
    EXPECT_FALSE(program.transactions.IsUnfinished());
  } else {
    EXPECT_TRUE(left == before || left == after);
  }
}

TEST(HistoryFormatTest, DamagedFilesAreFoundOut) {
  const DataFiles before = DataOf(SmallDisk());
  const MemoryPlatform done = DiskAfterEveryKind();
  const DataFiles after = DataOf(done);
  const std::string whole = Told(done);
  ASSERT_NE(whole, "damaged");
  const int calls = done.ChangingCalls();
  // Nothing is applied yet, some of it, all of it.
  for (const int nth : {12, calls - 14, calls - 1}) {
    const MemoryPlatform killed = *DiskKilledAt(nth);
    const std::string bytes = killed.Copy().Bytes(kRun);
    ASSERT_LT(bytes.size(), 6000U);
    // A file without a place for the commit mark is one of which nothing was applied.
    constexpr std::size_t kCommitMarkEnd = 1024;
    for (std::size_t at = 0; at < bytes.size(); at += at < 4096 ? 61 : 1) {
      SCOPED_TRACE("killed in call " + std::to_string(nth) + ", byte " + std::to_string(at));
      MemoryPlatform disk = killed.Copy();
      disk.Bytes(kRun)[at] ^= static_cast<char>(1 << at % 8);
      CheckDamaged(disk, whole, before, after);
      if (at < kCommitMarkEnd) continue;
      disk = killed.Copy();
      disk.Bytes(kRun).resize(at);
      CheckDamaged(disk, whole, before, after);
      if (testing::Test::HasFailure()) return;
    }
  }
}

}  // namespace
}  // namespace golf
