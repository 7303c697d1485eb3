#include "core/change_gate.h"

#include <functional>
#include <map>
#include <type_traits>

#include "support/files_test.h"

namespace golf {
namespace {

using namespace std::string_literals;

class ChangeGateTest : public FilesTest {
 protected:
  void SetUp() override {
    for (const char* name : {"a.dat", "b.dat"}) folder.Write(name, "abcdef");
    files.Open(1, At("a.dat"), 3);
    files.Open(2, At("b.dat"), 3);
  }
};

// Or the failure of one is told, once.
TEST_F(ChangeGateTest, JoinedWritesComeOutBeforeAnybodyCanLook) {
  files.Open(3, At("A.DAT"), 3);
  const std::pair<std::string, std::function<void()>> rows[] = {
      {"read", [&] { EXPECT_EQ(Read(1, 2, 3), "456"); }},
      {"read by another number", [&] { EXPECT_EQ(Read(3, 1, 3), "123"); }},
      {"length", [&] { EXPECT_EQ(files.Length(3), 9); }},
      {"box", [&] { files.Synchronize(); }},
      {"open", [&] { files.Open(4, At("c.dat"), 3); }},
      {"delete", [&] { files.DeleteFile(At("c.dat")); }},
      {"text", [&] { files.gate().ReplaceText(At("t.dat"), "text"); }},
      {"other file", [&] { files.WriteBytes(2, 1, "XYZ"); }},
      {"close", [&] { files.Close(1); }},
      {"close all", [&] { files.CloseAll(); }},
  };
  const JoinedWrites joined(files);
  for (const auto& [name, action] : rows) {
    const auto write = [&] {
      files.CloseAll();
      for (const char* file : {"a.dat", "b.dat"}) folder.Write(file, "abcdef");
      for (int number : {1, 3}) files.Open(number, At("a.dat"), 3);
      files.Open(2, At("b.dat"), 3);
      files.WriteBytes(1, 1, "123");
      files.WriteBytes(3, 2, "456");
      files.WriteBytes(1, 3, "789");
    };
    const int before = platform.Count(Operation::kWrite);
    write();
    EXPECT_EQ(platform.Count(Operation::kWrite), before) << name;
    action();
    EXPECT_EQ(folder.Read("a.dat"), "123456789") << name;
    write();
    platform.Fail({ErrorNumber::kDiskFull, 1, Operation::kWrite});
    EXPECT_EQ(ErrorOf(action), 61) << name;
    files.Synchronize();
    EXPECT_EQ(folder.Read("a.dat") + folder.Read("b.dat"), "abcdefabcdef") << name;
  }
}

TEST_F(ChangeGateTest, JoinedWritesKeepTheirOrder) {
  {
    const JoinedWrites joined(files);
    files.WriteBytes(1, 1, "111");
    files.WriteBytes(1, 2, "222");
    files.WriteBytes(2, 2, "333");
    files.WriteBytes(1, 1, "444");
  }
  files.WriteBytes(2, 3, "555");
  const Change order[] = {{Operation::kWrite, At("a.dat"), 0, 6},
                          {Operation::kWrite, At("b.dat"), 3, 3},
                          {Operation::kWrite, At("a.dat"), 0, 3},
                          {Operation::kWrite, At("b.dat"), 6, 3}};
  EXPECT_EQ(platform.changes(), std::vector<Change>(std::begin(order), std::end(order)));

  // What is kept back stays below 1 MB.
  const std::string large(400 << 10, 'x');
  const JoinedWrites joined(files);
  files.Open(5, At("large.dat"), large.size());
  for (int record = 1; record <= 3; ++record) files.WriteBytes(5, record, large);
  EXPECT_EQ(folder.Read("large.dat").size(), 2 * large.size());
}

TEST_F(ChangeGateTest, ATornNewRecordIsCutOffAgain) {
  const struct {
    bool joined;
    int record;
    std::size_t reached;
    std::string left;
  } rows[] = {
      {false, 3, 2, "abcdef"},   {false, 3, 0, "abcdef"}, {true, 3, 4, "abcdef123"},
      {true, 3, 3, "abcdef123"}, {true, 2, 5, "abc123"},  {false, 2, 2, "abc12f"},
      {false, 1, 2, "12cdef"},
  };
  for (const auto& row : rows) {
    folder.Write("a.dat", "abcdef");
    platform.Fail({ErrorNumber::kDiskFull, 1, Operation::kWrite, "A.DAT", false, row.reached});
    const auto write = [&] {
      std::optional<JoinedWrites> joined;
      if (row.joined) joined.emplace(files);
      files.WriteBytes(1, row.record, "123");
      if (row.joined) files.WriteBytes(1, row.record + 1, "456");
      files.Synchronize();
    };
    EXPECT_EQ(ErrorOf(write), 61);
    EXPECT_EQ(folder.Read("a.dat"), row.left) << row.record << ", " << row.reached;
  }
}

TEST_F(ChangeGateTest, RefusedChangesAreError75AndLeaveNothing) {
  folder.Write("empty.dat", "");
  files.gate().RefuseChanges();
  files.Open(3, At("none.dat"), 3);
  EXPECT_EQ(Read(3, 1, 3), "\0\0\0"s);
  EXPECT_EQ(files.Length(3), 0);
  files.Open(1, At("a.dat"), 3);
  EXPECT_EQ(Read(1, 2, 3), "def");
  const JoinedWrites joined(files);
  const std::function<void()> changes[] = {
      [&] { files.gate().Delete(At("a.dat")); },
      [&] { files.gate().CreateFolder(At("folder")); },
      [&] { files.gate().ReplaceText(At("a.dat"), "text"); },
  };
  for (const auto& change : changes) EXPECT_EQ(ErrorOf(change), 75);
  for (const int number : {1, 3}) files.WriteBytes(number, 1, "xyz");
  files.DeleteFile(At("a.dat"));
  EXPECT_EQ(ErrorOf([&] { files.Open(4, At("none/a.dat"), 3); }), 76);
  files.CloseAll();
  EXPECT_EQ(platform.changes(), std::vector<Change>());
  EXPECT_EQ(folder.Read("a.dat"), "abcdef");
  EXPECT_FALSE(folder.Exists("none.dat"));
}

static_assert(!std::is_default_constructible_v<ChangePass>, "only the gate changes files");

// Every change that the platform sees was told to the observer, with what it replaces.
TEST_F(ChangeGateTest, NoFileChangesUnseen) {
  std::vector<Change> told;
  std::vector<std::string> old;
  files.gate().Observe([&](const FileChange& change) {
    constexpr Operation kOperations[] = {Operation::kWrite, Operation::kCreate,
                                         Operation::kCreateFolder, Operation::kDelete,
                                         Operation::kWrite};
    const std::size_t size = change.new_bytes.size();
    const bool text = change.kind == FileChange::Kind::kReplaceText;
    if (text && !files.FileExists(change.path)) told.push_back({Operation::kCreate, change.path});
    told.push_back({kOperations[static_cast<std::size_t>(change.kind)], change.path,
                    change.record == 0 ? 0 : (change.record - 1) * 3, size});
    if (text) told.push_back({Operation::kTruncate, change.path, static_cast<int>(size)});
    if (size > 0) old.push_back(change.old_bytes());
  });
  files.Open(3, At("new.dat"), 3);
  files.WriteBytes(3, 2, "123");
  files.WriteBytes(3, 3, "456");
  files.WriteBytes(1, 2, "789");
  EXPECT_EQ(platform.changes(), told);  // at once, each by itself
  files.gate().CreateFolder(At("folder"));
  files.gate().ReplaceText(At("text.dat"), "long text");
  files.gate().ReplaceText(At("text.dat"), "text");
  files.Close(2);  // not every system deletes a file that is open
  files.DeleteFile(At("b.dat"));
  EXPECT_EQ(folder.Read("text.dat") + folder.Read("a.dat"), "textabc789");
  EXPECT_EQ(platform.changes(), told);
  EXPECT_EQ(old, (std::vector<std::string>{"", "", "def", "", "long text"}));

  old.clear();
  const JoinedWrites joined(files);
  for (const int record : {1, 2, 3, 2}) files.WriteBytes(1, record, "new");
  EXPECT_EQ(old, (std::vector<std::string>{"abc", "789", "", "new"}));
}

}  // namespace
}  // namespace golf
