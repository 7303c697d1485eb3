#include "core/file_table.h"

#include <functional>

#include "support/files_test.h"

namespace golf {
namespace {

using namespace std::string_literals;

using FileTableTest = FilesTest;

TEST_F(FileTableTest, GrowsAndCounts) {
  files.Open(1, At("new.dat"), 4);
  EXPECT_EQ(folder.Read("new.dat"), "");
  EXPECT_EQ(Read(1, 2147483647, 2), "\0\0"s);

  const struct {
    std::size_t length;
    int truncated, rounded;
  } rows[] = {{0, 0, 0}, {3, 0, 1}, {9, 2, 2}, {10, 2, 2}, {11, 2, 3}, {14, 3, 4}, {16, 4, 4}};
  for (const auto& row : rows) {
    folder.Write("new.dat", std::string(row.length, 'x'));
    EXPECT_EQ(files.Length(1), static_cast<std::int64_t>(row.length));
    EXPECT_EQ(files.CountTruncated(1, 4), row.truncated) << row.length;
    EXPECT_EQ(files.CountRounded(1, 4), row.rounded) << row.length;
  }
}

TEST_F(FileTableTest, NumbersThatAreNotOpenAreError52) {
  const int number = files.FreeNumber();
  EXPECT_GT(number, 255);
  EXPECT_NE(files.FreeNumber(), number);
  files.Open(number, At("a.dat"), 3);
  files.Close(number);
  files.Close(number);
  files.Open(files.FreeNumber(), At("a.dat"), 3);
  EXPECT_EQ(ErrorOf([&] { Read(number, 1, 3); }), 52);
  EXPECT_EQ(ErrorOf([&] { files.WriteBytes(number, 1, "abc"); }), 52);
  EXPECT_EQ(ErrorOf([&] { files.CountTruncated(number, 3); }), 52);

  // Opening a file under a number closes the number's old file, even if the opening fails.
  files.Open(1, At("a.dat"), 3);
  files.Open(1, At("b.dat"), 2);
  files.WriteBytes(1, 1, "bb");
  EXPECT_EQ(folder.Read("a.dat") + "|" + folder.Read("b.dat"), "|bb");
  EXPECT_EQ(ErrorOf([&] { files.Open(1, At("none/a.dat"), 3); }), 76);
  EXPECT_EQ(ErrorOf([&] { files.Length(1); }), 52);
  files.Open(1, At("a.dat"), 3);
  files.CloseAll();
  EXPECT_EQ(ErrorOf([&] { files.Length(1); }), 52);
}

// Closing a file that was only read cannot lose data, so its error is not raised.
TEST_F(FileTableTest, AnErrorOfClosingIsToldLikeOneOfAWrite) {
  for (const bool written : {true, false}) {
    for (const bool all : {true, false}) {
      folder.Write("a.dat", "abc");
      files.Open(1, At("a.dat"), 3);
      files.Open(2, At("b.dat"), 3);
      Read(1, 1, 3);
      if (written) files.WriteBytes(1, 1, "def");
      platform.Fail({.only = Operation::kClose, .name = "a.dat"});
      EXPECT_EQ(ErrorOf([&] { all ? files.CloseAll() : files.Close(1); }), written ? 57 : 0);
      EXPECT_TRUE(platform.Failed());
      EXPECT_EQ(ErrorOf([&] { files.Length(1); }), 52);
      EXPECT_EQ(ErrorOf([&] { files.Length(2); }), all ? 52 : 0);
    }
  }
  platform.Fail({.only = Operation::kClose, .name = "new.txt.new"});
  EXPECT_EQ(ErrorOf([&] { files.gate().ReplaceText(At("new.txt"), "x"); }), 57);
}

TEST_F(FileTableTest, AllSpellingsReachOneFile) {
  folder.Write("KVData/Caf\u00E9.KV5", "abcdef");
  files.Open(1, At("kvdata/CAF\xC9.kv5"), 3);
  files.Open(2, At("KVDATA/caf\xE9.Kv5"), 3);
  EXPECT_EQ(Read(2, 2, 3), "def");
  files.WriteBytes(1, 2, "xyz");
  EXPECT_EQ(Read(2, 2, 3), "xyz");
  EXPECT_EQ(folder.Read("KVData/Caf\u00E9.KV5"), "abcxyz");
  files.CloseAll();
  files.DeleteFile(At("KVDATA/CAF\xC9.KV5"));
  EXPECT_FALSE(folder.Exists("KVData/Caf\u00E9.KV5"));
}

TEST_F(FileTableTest, FileExistsSearches) {
  folder.Write("qbdata/X0001.Q9C", "");
  folder.MakeFolder("qbdata/folder.Q9C");
  folder.MakeFolder("empty");
  for (const std::string name :
       {"qbdata/x0001.q9c", "qbdata/X*.Q9C", "qbdata/X???1.*", "qbdata/*", "qbdata/"}) {
    EXPECT_TRUE(files.FileExists(At(name))) << name;
  }
  for (const std::string name : {"qbdata/X?.Q9C", "qbdata/X0001", "qbdata", "qbdata/folder.Q9C",
                                 "empty/", "none/*", "", "qbdata/X0001*01.Q9C"}) {
    EXPECT_FALSE(files.FileExists(At(name))) << name;
  }
}

TEST_F(FileTableTest, ErrorsHaveTheirNumbers) {
  folder.Write("file", "abc");
  folder.MakeFolder("folder");
  files.Open(1, At("file"), 3, FileAccess::kReadOnly);
  files.Open(2, At("new"), 3);
  const std::pair<int, std::function<void()>> rows[] = {
      {53, [&] { platform.Open(At("none"), FileAccess::kReadOnly); }},
      {53, [&] { files.Open(3, At("none"), 3, FileAccess::kReadOnly); }},
      {53, [&] { files.gate().Delete(At("none")); }},
      {59, [&] { Read(2, 1, 4); }},
      {59, [&] { files.WriteBytes(2, 1, "abcd"); }},
      {63, [&] { Read(2, 0, 3); }},
      {63, [&] { files.WriteBytes(2, -1, "abc"); }},
      {75, [&] { files.WriteBytes(1, 1, "xyz"); }},
      {75, [&] { files.Open(3, At("folder"), 3); }},
      {75, [&] { platform.Open(At("folder"), FileAccess::kReadOnly); }},
      {76, [&] { files.Open(3, At("none/file"), 3); }},
      {76, [&] { files.Open(3, At("file/file"), 3); }},
      {76, [&] { platform.FileNames(At("none")); }},
      {76, [&] { MakePlatform(folder.Path("none")); }},
      {76, [&] { MakePlatform(folder.Path("file")); }},
      {0, [&] { files.DeleteFile(At("none")); }},
      {0, [&] { files.DeleteFile(At("folder")); }},
  };
  for (std::size_t row = 0; row < std::size(rows); ++row) {
    EXPECT_EQ(ErrorOf(rows[row].second), rows[row].first) << "row " << row;
  }
  EXPECT_EQ(folder.Read("file"), "abc");
  EXPECT_FALSE(folder.Exists("none"));
}

TEST_F(FileTableTest, ReadAheadEndsAtSynchronizeAndAtWrites) {
  std::string bytes(3000, 'x');
  folder.Write("a.dat", bytes);
  files.Open(1, At("a.dat"), 3);
  files.Open(2, At("A.DAT"), 3);
  for (int record = 1; record <= 1000; ++record) Read(1, record, 3);
  EXPECT_LT(platform.Count(Operation::kRead), 5);

  auto generation = files.Generation(1);
  bytes.replace(27, 3, "new");
  folder.Write("a.dat", bytes);
  files.Synchronize();
  EXPECT_EQ(Read(1, 10, 3), "new");
  EXPECT_NE(files.Generation(1), generation);

  generation = files.Generation(1);
  files.WriteBytes(2, 500, "two");
  EXPECT_NE(files.Generation(1), generation);

  // After a failed read the read-ahead buffer contains no old bytes.
  platform.Fail({ErrorNumber::kDeviceFault, 1, Operation::kRead});
  EXPECT_EQ(ErrorOf([&] { Read(2, 10, 3); }), 57);
  EXPECT_EQ(Read(2, 10, 3), "new");
}

// Two numbers with the same file open see the same bytes, whatever is read ahead.
TEST_F(FileTableTest, ActsAsPlainBytesWouldUnderAnyOrderOfCalls) {
  std::mt19937 random(20240229);
  const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
  constexpr std::size_t kLength = 7;
  std::string model;
  for (int number : {1, 2}) files.Open(number, At("a.dat"), kLength);
  for (int step = 0; step < 5000; ++step) {
    const int number = 1 + below(2);
    const int record = below(4) == 0 ? 1 + below(60) : 1 + step % 40;
    const auto offset = static_cast<std::size_t>(record - 1) * kLength;
    switch (below(11)) {
      case 0:
        files.Open(number, At(below(2) == 0 ? "A.dat" : "a.dat"), kLength);
        break;
      case 1:
        files.Synchronize();
        ASSERT_EQ(folder.Read("a.dat"), model) << step;
        break;
      case 2:
        ASSERT_EQ(files.Length(number), static_cast<std::int64_t>(model.size())) << step;
        break;
      case 3:
      case 4:
      case 5: {
        const std::string bytes(1 + random() % kLength, static_cast<char>('a' + below(26)));
        files.WriteBytes(number, record, bytes);
        model.resize(std::max(model.size(), offset + bytes.size()));
        model.replace(offset, bytes.size(), bytes);
        break;
      }
      default:
        std::string expected = model.substr(std::min(offset, model.size()), kLength);
        expected.resize(kLength);
        ASSERT_EQ(Read(number, record, kLength), expected) << step;
    }
  }
}

}  // namespace
}  // namespace golf
