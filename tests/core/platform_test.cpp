// Tests what the platform must do on every system.

#include "support/files_test.h"
#include "support/processes.h"

namespace golf {
namespace {

using PlatformTest = FilesTest;

TEST_F(PlatformTest, AFileThatAnotherProgramHoldsIsError70) {
  folder.Write("a.dat", "abc");
  {
    const HeldFile other(folder.Path("a.dat"));
    ASSERT_TRUE(other.held());
    for (const auto access :
         {FileAccess::kReadWriteShared, FileAccess::kDefault, FileAccess::kReadOnly}) {
      EXPECT_EQ(ErrorOf([&] { files.Open(1, At("A.DAT"), 3, access); }), 70);
    }
  }
  files.Open(1, At("a.dat"), 3);
  EXPECT_FALSE(HeldFile(folder.Path("a.dat")).held());  // and the program holds it against others
  files.Close(1);
  EXPECT_TRUE(HeldFile(folder.Path("a.dat")).held());
}

TEST(PlatformFolder, TheInstallMayLieWhereTheCodePageHasNoLetters) {
  const TempFolder folder("\u0141\u00F3d\u017A \u26F3");
  folder.Write("KVDATA/A.DAT", "abc");
  const auto platform = MakePlatform(folder.Path() + "/");
  EXPECT_EQ(platform->ProgramFolder(), MakePlatform(folder.Path())->ProgramFolder());
  FileTable files(*platform);
  files.Open(1, platform->ProgramFolder() + "kvdata/a.dat", 3);
  files.WriteBytes(1, 2, "def");
  EXPECT_EQ(folder.Read("KVDATA/A.DAT"), "abcdef");
  EXPECT_TRUE(
      files.FileExists(platform->ProgramFolder() + "kvdata" + platform->Separator() + "*.dat"));
}

TEST_F(PlatformTest, OneRunAtATimeHoldsTheLock) {
  auto lock = real->LockRun(At(""));
  ASSERT_NE(lock, nullptr);
  const auto other = MakePlatform(folder.Path());
  EXPECT_EQ(ErrorOf([&] { other->LockRun(At("")); }), 70);
  lock.reset();
  EXPECT_NE(other->LockRun(At("")), nullptr);
  EXPECT_EQ(real->LockRun(At("none")), nullptr);
}

}  // namespace
}  // namespace golf
