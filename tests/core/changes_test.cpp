#include <functional>
#include <type_traits>

#include "core/change_gate.h"
#include "core/entry.h"
#include "core/resume_next.h"
#include "core/shared_state.h"
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

// Makes each call to the system fail once. The test expects that the error is raised and that the
// old records are unchanged.
TEST_F(ChangeGateTest, AFaultAtAnyCallIsToldAndSparesOldRecords) {
  const auto run = [&] {
    files.Open(3, At("a.dat"), 3);
    files.Open(4, At("new.dat"), 3);
    for (int record = 1; record <= 4; ++record) {
      const std::string bytes = Read(3, record, 3);
      files.WriteBytes(4, files.CountTruncated(4, 3) + 1, bytes);
      if (record == 2) files.WriteBytes(3, 3, "ghi");
      files.Synchronize();
    }
    files.CloseAll();
  };
  for (const bool stays : {false, true}) {
    for (int nth = 1;; ++nth) {
      folder.Write("a.dat", "abcdef");
      folder.Remove("new.dat");
      platform.Fail({ErrorNumber::kDiskFull, nth, {}, "", stays, 1});
      const int error = ErrorOf(run);
      EXPECT_EQ(error, platform.Failed() ? 61 : 0) << nth;
      platform.Heal();
      files.CloseAll();
      EXPECT_TRUE(folder.Read("a.dat").starts_with("abcdef")) << nth;
      if (error == 0) break;
      ASSERT_LT(nth, 100);
      if (!folder.Exists("new.dat")) continue;
      EXPECT_TRUE("abcdefghi\0\0\0"s.starts_with(folder.Read("new.dat"))) << nth;
    }
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

static_assert(!std::is_default_constructible_v<ChangePass>, "only the gates change files");

// Each write reaches the platform immediately and separately. A new text replaces the old one in
// one step, and after a fault in between the old text is unchanged.
TEST_F(ChangeGateTest, ChangesReachThePlatformOneByOne) {
  files.Open(3, At("new.dat"), 3);
  files.WriteBytes(3, 2, "123");
  files.WriteBytes(1, 2, "789");
  EXPECT_EQ(folder.Read("new.dat") + folder.Read("a.dat"), "\0\0\000123abc789"s);
  files.gate().CreateFolder(At("folder"));
  files.Close(2);  // some systems cannot delete an open file
  files.DeleteFile(At("b.dat"));
  const std::vector<Change> expected = {{Operation::kCreate, At("new.dat")},
                                        {Operation::kWrite, At("new.dat"), 3, 3},
                                        {Operation::kWrite, At("a.dat"), 3, 3},
                                        {Operation::kCreateFolder, At("folder")},
                                        {Operation::kDelete, At("b.dat")}};
  EXPECT_EQ(platform.changes(), expected);

  const auto replace = [&] { files.gate().ReplaceText(At("text.dat"), "text"); };
  for (int nth = 1;; ++nth) {
    folder.Write("text.dat", "long text");
    platform.Fail({.nth = nth});
    const int error = ErrorOf(replace);
    EXPECT_EQ(error, platform.Failed() ? 57 : 0) << nth;
    EXPECT_EQ(folder.Read("text.dat"), error == 0 ? "text" : "long text") << nth;
    EXPECT_FALSE(folder.Exists("text.dat.new")) << nth;
    if (error == 0) break;
    ASSERT_LT(nth, 20);
  }
}

using SharedStateTest = FilesTest;

TEST_F(SharedStateTest, StartSetsTheFormsAndTestsNoFolder) {
  SharedState state(platform, [](SharedState&, StoreObjects&) {});
  PrepareStart(state, {"dd.MM.yyyy", "HH.mm"}, 45000);
  EXPECT_EQ(state.DateFormat + " " + state.DateMask, "dd.mm.yy ##.##.##");
  EXPECT_EQ(state.TimeSeparator + " " + state.TimeMask, ". ##.##");
  EXPECT_EQ(platform.CountAll(), 0);
}

TEST_F(SharedStateTest, ObjectsAreMadeAnewThoughAFileFailsToClose) {
  int made = 0;
  SharedState state(platform, [&](SharedState& its, StoreObjects&) {
    EXPECT_EQ(ErrorOf([&] { its.files.Length(1); }), 52);
    ++made;
  });
  state.files.Open(1, At("a.dat"), 3);
  state.files.WriteBytes(1, 1, "abc");
  platform.Fail({ErrorNumber::kDiskFull, 1, Operation::kClose});
  EXPECT_EQ(ErrorOf([&] { state.InitSharedObjects(); }), 61);
  EXPECT_EQ(made, 1);
}

TEST(ResumeNext, CarriesOnOverNumberedErrorsOnly) {
  std::vector<std::string> told;
  const ResumeNext resume([&](const NumberedError& error) { told.push_back(error.Report()); });
  int done = 0;
  resume([&] { ++done; });
  resume([] { throw NumberedError(ErrorNumber::kDiskFull, "Full."); });
  resume([&] { ++done; });
  EXPECT_EQ(done, 2);
  EXPECT_EQ(told, std::vector<std::string>{"Error # 61 was generated by Golf Transfer: Full."});
  EXPECT_THROW(resume([] { throw std::logic_error("a bug"); }), std::logic_error);
}

}  // namespace
}  // namespace golf
