// These tests check the behaviour that the platform has on every system.

#include "core/platform_errors.h"
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
  EXPECT_FALSE(HeldFile(folder.Path("a.dat")).held());  // the open file refuses an exclusive lock
  files.Close(1);
  EXPECT_TRUE(HeldFile(folder.Path("a.dat")).held());
}

TEST(PlatformErrors, TheProgramsThatHoldAFileAreNamed) {
  const struct {
    std::vector<std::string> programs;
    const char* end;
  } kCases[] = {{{}, ""},
                {{"Kelvane"}, " It is Kelvane."},
                {{"Kelvane", "Backup"}, " They are Kelvane and Backup."},
                {{"A", "B", "C"}, " They are A, B and C."}};
  for (const auto& c : kCases) {
    const NumberedError error = HeldBy("C:\\golf\\a.dat", c.programs);
    EXPECT_EQ(error.number(), 70);
    EXPECT_EQ(error.description(),
              "Another program holds C:\\golf\\a.dat. Close that program, then try again." +
                  std::string(c.end));
  }
}

TEST_F(PlatformTest, AFileThatIsOpenedAloneIsHeldByOneOnly) {
  folder.Write("a.dat", "abc");
  constexpr FileAccess kAll[] = {FileAccess::kReadWriteShared, FileAccess::kDefault,
                                 FileAccess::kReadOnly, FileAccess::kAlone};
  const auto other = MakePlatform(folder.Path());
  for (const FileAccess access : kAll) {
    auto alone = real->Open(At("a.dat"), FileAccess::kAlone);
    EXPECT_EQ(ErrorOf([&] { other->Open(At("A.DAT"), access); }), 70);
    alone->Close();
    const auto shared = real->Open(At("a.dat"), access);
    EXPECT_EQ(ErrorOf([&] { other->Open(At("A.DAT"), FileAccess::kAlone); }), 70);
  }
  EXPECT_EQ(ErrorOf([&] { other->Open(At("none"), FileAccess::kAlone); }), 53);
}

TEST_F(PlatformTest, WhatIsSyncedCanBeWritten) {
  folder.Write("a.dat", "abc");
  std::size_t written = 0;
  for (const FileAccess access :
       {FileAccess::kReadWriteShared, FileAccess::kDefault, FileAccess::kAlone}) {
    const auto file = platform.Open(At("a.dat"), access);
    EXPECT_TRUE(file->IsWritable());
    file->WriteAt(TestPass(), 0, "xyz", written);
    file->Sync(TestPass());
  }
  EXPECT_EQ(platform.Count(Operation::kSync), 3);
  EXPECT_FALSE(real->Open(At("a.dat"), FileAccess::kReadOnly)->IsWritable());
  folder.MakeFolder("sub");
  for (const char* name : {"", "sub", "sub/", "SUB"}) platform.SyncFolder(TestPass(), At(name));
  for (const char* name : {"none", "none/"}) {
    EXPECT_EQ(ErrorOf([&] { platform.SyncFolder(TestPass(), At(name)); }), 76) << name;
  }
}

TEST_F(PlatformTest, AFileIsRenamedAndReplacesAnother) {
  folder.MakeFolder("sub");
  const struct {
    const char* from;
    const char* to;
    int error;
    const char* left;  // the name of the renamed file, as it is spelt on the disk
  } kRows[] = {
      {"new.dat", "a.dat", 0, "a.dat"},       {"NEW.DAT", "A.DAT", 0, "a.dat"},
      {"new.dat", "b.dat", 0, "b.dat"},       {"new.dat", "sub/a.dat", 0, "sub/a.dat"},
      {"none", "a.dat", 53, "new.dat"},       {"new.dat", "none/a.dat", 76, "new.dat"},
      {"new.dat", "sub", 75, "new.dat"},      {"sub", "b.dat", 75, "new.dat"},
      {"new.dat", "../a.dat", 75, "new.dat"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(std::string(row.from) + " to " + row.to);
    for (const char* name : {"b.dat", "sub/a.dat"}) folder.Remove(name);
    folder.Write("new.dat", "new");
    folder.Write("a.dat", "the old one");
    const std::size_t changes = platform.changes().size();
    EXPECT_EQ(ErrorOf([&] { platform.Rename(TestPass(), At(row.from), At(row.to)); }), row.error);
    EXPECT_EQ(platform.changes().size(), changes + (row.error == 0));
    EXPECT_EQ(folder.Exists("new.dat"), row.error != 0);
    EXPECT_EQ(folder.Read(row.left), "new");
  }
}

TEST_F(PlatformTest, AScratchFileIsOutsideTheInstallAndForOneOnly) {
  const auto first = platform.OpenScratch();
  const auto second = platform.OpenScratch();
  EXPECT_FALSE(first->Identity() == second->Identity());
  std::size_t written = 0;
  first->WriteAt(TestPass(), 4, "abc", written);
  second->WriteAt(TestPass(), 0, "xyz", written);
  std::string bytes(8, '?');
  EXPECT_EQ(first->ReadAt(0, bytes), 7u);
  EXPECT_EQ(bytes, std::string("\0\0\0\0abc?", 8));
  EXPECT_EQ(second->Length(), 3);
  EXPECT_TRUE(first->IsWritable());
  EXPECT_TRUE(real->FileNames(At("")).empty());
  EXPECT_TRUE(platform.changes().empty());
  platform.Fail({.error = ErrorNumber::kDiskFull, .only = Operation::kWrite, .name = kScratchName});
  EXPECT_EQ(ErrorOf([&] { first->WriteAt(TestPass(), 0, "z", written); }), 61);
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
