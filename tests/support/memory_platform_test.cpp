// Tests what the disk in memory contains after a power cut or the end of a process.

#include "support/memory_platform.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "support/error_of.h"
#include "support/failing_platform.h"

namespace golf {
namespace {

constexpr std::size_t kPage = 4096;

using FileBytes = std::map<std::string, std::string>;

// Returns the files with their bytes. The names of the files in the folder "D" lack the folder.
std::string FilesOf(const MemoryPlatform& memory) {
  std::string files;
  for (const auto& [path, bytes] : memory.Files()) {
    files +=
        (files.empty() ? "" : " ") + path.substr(path.starts_with("/D/") ? 3 : 0) + "=" + bytes;
  }
  return files;
}

// A disk with the synced files "OLD" and "BUSY".
class MemoryPlatformTest : public testing::Test {
 protected:
  MemoryPlatformTest() {
    memory.Bytes("d/old") = "old";
    memory.Bytes("d/busy") = "busy";
    memory.SyncAll();
  }

  std::unique_ptr<PlatformFile> Open(const std::string& path,
                                     FileAccess access = FileAccess::kDefault) {
    return memory.Open(path, access);
  }
  void Write(const std::string& path, std::int64_t offset, std::string_view bytes) {
    std::size_t written = 0;
    Open(path)->WriteAt(TestPass(), offset, bytes, written);
  }
  void Create(const std::string& path) { memory.Create(TestPass(), path); }
  void Delete(const std::string& path) { memory.Delete(TestPass(), path); }
  void Rename(const std::string& from, const std::string& to) {
    memory.Rename(TestPass(), from, to);
  }
  void Sync(const std::string& path) { Open(path)->Sync(TestPass()); }
  void SyncFolder(const std::string& path) { memory.SyncFolder(TestPass(), path); }

  MemoryPlatform memory;
};

TEST_F(MemoryPlatformTest, APowerCutTakesWhatIsNotSynced) {
  const char* const kBefore = "BUSY=busy OLD=old";
  using Step = std::function<void()>;
  const Step write = [&] { Write("/d/old", 1, "LDER"); }, sync = [&] { Sync("/d/old"); };
  const Step cut = [&] { Open("/d/old")->Truncate(TestPass(), 1); };
  const Step remove = [&] { Delete("/d/old"); };
  const Step rename = [&] { Rename("/d/old", "/d/busy"); };
  const Step make = [&] { Create("/d/new"); }, fill = [&] { Write("/d/new", 0, "new"); };
  const Step sync_new = [&] { Sync("/d/new"); }, sync_d = [&] { SyncFolder("/D/"); };
  const Step make_e = [&] { memory.CreateFolder(TestPass(), "/e"); };
  const Step make_in_e = [&] { Create("/e/new"); }, sync_e = [&] { SyncFolder("/e"); };
  const Step sync_root = [&] { SyncFolder("/"); }, again = [&] { Create("/d/old"); };
  const Step move = [&] { Rename("/d/old", "/e/old"); };
  const struct {
    const char* name;
    std::vector<Step> steps;
    std::string lost;  // the files without everything that is not synced
    std::string kept;
  } kRows[] = {
      {"bytes", {write}, kBefore, "BUSY=busy OLD=oLDER"},
      {"synced bytes", {write, sync}, "BUSY=busy OLD=oLDER", "BUSY=busy OLD=oLDER"},
      {"a length", {cut}, kBefore, "BUSY=busy OLD=o"},
      {"a deletion", {remove}, kBefore, "BUSY=busy"},
      {"a synced deletion", {remove, sync_d}, "BUSY=busy", "BUSY=busy"},
      {"a file without its name", {make, fill, sync_new}, kBefore, "BUSY=busy NEW=new OLD=old"},
      {"a name without its bytes",
       {make, fill, sync_d},
       "BUSY=busy NEW= OLD=old",
       "BUSY=busy NEW=new OLD=old"},
      {"a renaming", {rename}, kBefore, "BUSY=old"},
      {"a synced renaming", {rename, sync_d}, "BUSY=old", "BUSY=old"},
      {"a folder", {make_e, make_in_e, sync_e}, kBefore, "BUSY=busy OLD=old /E/NEW="},
      {"a renaming with one folder of the two synced",
       {make_e, sync_root, move, sync_e},
       kBefore,
       "BUSY=busy /E/OLD=old"},
      {"the changes of a name up to the one that is synced",
       {make_e, sync_root, move, again, sync_d},
       "BUSY=busy OLD= /E/OLD=old",
       "BUSY=busy OLD= /E/OLD=old"},
  };
  const MemoryPlatform before = memory.Copy();
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.name);
    memory = before.Copy();
    for (const Step& step : row.steps) step();
    MemoryPlatform kept = memory.Copy();
    memory.PowerCut(0);
    EXPECT_EQ(FilesOf(memory), row.lost);
    for (const std::uint64_t seed : {1u, 0u}) {  // what the first one leaves is synced
      kept.PowerCut(seed);
      EXPECT_EQ(FilesOf(kept), row.kept);
    }
  }
}

// Each page, each length and each name is lost by itself.
TEST_F(MemoryPlatformTest, APowerCutTakesAnyPart) {
  memory.Bytes("d/old") = std::string(2 * kPage, 'a');
  memory.SyncAll();
  Write("/d/old", 0, std::string(3 * kPage, 'b'));
  Create("/d/1");
  Rename("/d/1", "/d/2");
  Create("/d/3");
  Rename("/d/busy", "/d/moved");
  Create("/d/busy");
  std::set<std::string> contents;
  std::set<std::string> names;
  for (std::uint64_t seed = 0; seed < 500; ++seed) {
    MemoryPlatform cut = memory.Copy();
    cut.PowerCut(seed);
    const std::string& bytes = cut.Bytes("d/old");
    std::string content;
    for (std::size_t at = 0; at < bytes.size(); at += kPage) {
      content += bytes[at] == '\0' ? '0' : bytes[at];
      ASSERT_EQ(bytes.substr(at, kPage), std::string(kPage, bytes[at]));
    }
    contents.insert(content);
    std::string found;
    for (const std::string& name : cut.FileNames("/d")) found += name.size() == 1 ? name : "";
    names.insert(found);
    FileBytes files = cut.Files();
    EXPECT_TRUE(files["/D/BUSY"] == "busy" || files["/D/MOVED"] == "busy") << seed;
    MemoryPlatform again = memory.Copy();
    again.PowerCut(seed);
    ASSERT_EQ(again.Files(), cut.Files()) << seed;
  }
  EXPECT_EQ(contents, (std::set<std::string>{"aa", "ab", "ba", "bb", "aa0", "aab", "ab0", "abb",
                                             "ba0", "bab", "bb0", "bbb"}));
  EXPECT_EQ(names, (std::set<std::string>{"", "1", "13", "2", "23", "3"}));
}

// The matrix of crashes shows that the program dies in the right call.
TEST_F(MemoryPlatformTest, APartOfAWriteReachesTheFileWhenTheProgramDies) {
  for (const auto& [share, bytes] : {std::pair{0.0, "old"}, {0.5, "OLD"}, {1.0, "OLDER!"}}) {
    memory.Bytes("d/old") = "old";
    memory.DieAt(1, share);
    EXPECT_THROW(Write("/d/old", 0, "OLDER!"), Died);
    EXPECT_EQ(memory.Bytes("d/old"), bytes);
    for (int time = 1; time <= 2; ++time) EXPECT_THROW(Create("/d/other"), Died);
    EXPECT_THROW(Open("/d/old"), Died);
    memory.Revive();
    Create("/d/other");
  }
}

// A destructor that runs while the program dies must be able to end.
TEST_F(MemoryPlatformTest, WhatRunsWhileTheProgramDiesMeetsError57) {
  struct Closing {
    ~Closing() {
      error = ErrorOf([&] { file->Close(); });
    }
    std::unique_ptr<PlatformFile> file;
    int& error;
  };
  int error = 0;
  try {
    const Closing closing{Open("/d/old"), error};
    memory.DieAt(1);
    Create("/d/new");
    ADD_FAILURE();
  } catch (const Died&) {
    EXPECT_EQ(error, 57);
  }
}

TEST_F(MemoryPlatformTest, NothingStaysOpenOrLocked) {
  const std::function<void()> kEnds[] = {[&] { memory.Revive(); }, [&] { memory.PowerCut(7); }};
  for (const auto& end : kEnds) {
    MemoryPlatform other = memory.OnSameDisk();
    const auto file = Open("/d/old", FileAccess::kAlone);
    const auto scratch = memory.OpenScratch();
    auto lock = memory.LockRun("/");
    ASSERT_NE(lock, nullptr);
    EXPECT_EQ(ErrorOf([&] { other.LockRun("/"); }), 70);
    EXPECT_EQ(ErrorOf([&] { other.Open("/D/OLD", FileAccess::kReadOnly); }), 70);
    EXPECT_EQ(ErrorOf([&] { other.Delete(TestPass(), "/D/OLD"); }), 70);
    EXPECT_EQ(ErrorOf([&] { Rename("/d/busy", "/d/old"); }), 70);
    end();
    EXPECT_EQ(ErrorOf([&] { file->Length(); }), 57);
    EXPECT_EQ(ErrorOf([&] { scratch->Length(); }), 57);
    auto next = other.LockRun("/");
    lock.reset();  // of a process that is gone
    EXPECT_EQ(ErrorOf([&] { memory.LockRun("/"); }), 70);
    const auto shared = other.Open("/d/old", FileAccess::kReadOnly);
    EXPECT_NE(Open("/d/old"), nullptr);
    EXPECT_EQ(ErrorOf([&] { Open("/d/old", FileAccess::kAlone); }), 70);
  }
}

// The calls on names of files have the results of a real disk; see held_changes_test.cpp.
TEST_F(MemoryPlatformTest, FoldersAndAFullDisk) {
  memory.CreateFolder(TestPass(), "/D/Sub");
  Create("/d/sub/a");
  EXPECT_EQ(memory.FileNames("/d"), (std::vector<std::string>{"BUSY", "OLD"}));
  EXPECT_EQ(memory.FileNames("/d/SUB/"), std::vector<std::string>{"A"});
  for (const char* path : {"/", "/d", "/d/", "/d/sub"}) EXPECT_TRUE(memory.FolderExists(path));
  for (const char* path : {"", "/e", "/d/old", "/su"}) EXPECT_FALSE(memory.FolderExists(path));
  EXPECT_EQ(ErrorOf([&] { Rename("/d/old", "/d/sub"); }), 75);
  EXPECT_EQ(ErrorOf([&] { Write("/d/old", 16 << 20, "a"); }), 61);
}

}  // namespace
}  // namespace golf
