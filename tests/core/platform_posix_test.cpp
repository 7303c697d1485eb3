#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "support/files_test.h"

namespace golf {
namespace {

using PlatformPosixTest = FilesTest;

// Opening a pipe or a device must not wait.
TEST_F(PlatformPosixTest, WhatIsNoFileIsError75) {
  ASSERT_EQ(mkfifo(folder.Path("pipe.dat").c_str(), 0666), 0);
  ASSERT_EQ(symlink("/dev/zero", folder.Path("device.dat").c_str()), 0);
  folder.MakeFolder("sub");
  folder.Write("a.dat", "");
  for (const char* name : {"pipe.dat", "device.dat", "sub", "sub/../a.dat", "../x.dat"}) {
    for (const FileAccess access : {FileAccess::kReadWriteShared, FileAccess::kDefault,
                                    FileAccess::kReadOnly, FileAccess::kAlone}) {
      EXPECT_EQ(ErrorOf([&] { files.Open(1, At(name), 4, access); }), 75) << name;
    }
  }
}

// A process may start without standard streams. The next opened files then get the numbers of these
// streams.
TEST_F(PlatformPosixTest, NoDataFileGetsThePlaceOfAStandardStream) {
  folder.Write("a.dat", "abcd");
  const pid_t child = fork();
  if (child == 0) {
    for (const int stream : {STDIN_FILENO, STDERR_FILENO}) close(stream);
    bool refused = true;
    for (int time = 1; time <= 3; ++time) {
      refused = refused && ErrorOf([&] { files.Open(1, At("a.dat"), 4); }) == 57;
    }
    TakeStandardStreams();
    char byte = 0;
    const bool fails = write(STDERR_FILENO, "x", 1) < 0 && read(STDIN_FILENO, &byte, 1) < 0;
    const bool opens = ErrorOf([&] { files.Open(1, At("a.dat"), 4); }) == 0;
    _exit(refused && fails && opens ? 0 : 1);
  }
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
}

// The folder of a scratch file is empty while the file is open. Another folder is used if TMPDIR
// does not exist.
TEST_F(PlatformPosixTest, AScratchFileHasNoName) {
  const char* before = std::getenv("TMPDIR");
  const std::string kept = before == nullptr ? "" : before;
  folder.MakeFolder("tmp");
  for (const char* name : {"tmp", "none"}) {
    setenv("TMPDIR", folder.Path(name).c_str(), 1);
    const auto scratch = real->OpenScratch();
    EXPECT_EQ(scratch->Length(), 0);
    EXPECT_TRUE(real->FileNames(At("tmp")).empty());
  }
  before == nullptr ? unsetenv("TMPDIR") : setenv("TMPDIR", kept.c_str(), 1);
}

// Drops the rights of the superuser, who may write every file.
class NormalUser {
 public:
  NormalUser() {
    if (before_ == 0) dropped_ = seteuid(kNobody) == 0;
  }
  NormalUser(const NormalUser&) = delete;
  NormalUser& operator=(const NormalUser&) = delete;
  ~NormalUser() { seteuid(before_); }
  bool dropped() const { return dropped_; }

 private:
  static constexpr uid_t kNobody = 65534;
  const uid_t before_ = geteuid();
  bool dropped_ = true;
};

TEST_F(PlatformPosixTest, AccessThatIsRefusedHasAReason) {
  if (!NormalUser().dropped()) GTEST_SKIP() << "The superuser may write every file.";
  const std::pair<const char*, mode_t> kFiles[] = {
      {"marked.dat", 0444}, {"others.dat", 0644}, {"closed.dat", 0200}, {"closed/a.dat", 0666}};
  for (const auto& [name, mode] : kFiles) {
    folder.Write(name, "abc");
    chmod(folder.Path(name).c_str(), mode);
  }
  chmod(folder.Path("closed").c_str(), 0555);
  const bool has_others = geteuid() == 0;
  auto user = std::make_unique<NormalUser>();
  EXPECT_FALSE(real->Open(At("marked.dat"), FileAccess::kDefault)->IsWritable());
  const auto open = [&](const char* name, FileAccess access) {
    return [this, name, access] { real->Open(At(name), access); };
  };
  struct Case {
    std::function<void()> use;
    const char* file;
    const char* reason;
  };
  std::vector<Case> cases = {
      {open("marked.dat", FileAccess::kReadWriteShared), "marked.dat",
       "The file is marked read-only"},
      {open("marked.dat", FileAccess::kAlone), "marked.dat", "The file is marked read-only"},
      {open("closed.dat", FileAccess::kReadOnly), "closed.dat", "has no right to it"},
      {open("closed.dat", FileAccess::kDefault), "closed.dat", "has no right to it"},
      {[&] { real->Create(TestPass(), At("closed/new.dat")); }, "closed/new.dat",
       "may not change its folder"},
      {[&] { real->CreateFolder(TestPass(), At("closed/new")); }, "closed/new",
       "may not change its folder"},
      {[&] { real->Delete(TestPass(), At("closed/a.dat")); }, "closed/a.dat",
       "may not change its folder"},
      {[&] { real->Rename(TestPass(), At("closed/a.dat"), At("closed/b.dat")); }, "closed/b.dat",
       "may not change its folder"},
  };
  if (has_others) {
    cases.push_back(
        {open("others.dat", FileAccess::kReadWriteShared), "others.dat", "has no right to it"});
  }
  for (const Case& c : cases) {
    try {
      c.use();
      ADD_FAILURE() << c.file;
    } catch (const NumberedError& error) {
      EXPECT_EQ(error.number(), 75);
      EXPECT_TRUE(error.description().starts_with("Access to " + At(c.file) + " is refused. "))
          << error.description();
      EXPECT_NE(error.description().find(c.reason), std::string::npos) << error.description();
    }
  }
  user.reset();
  chmod(folder.Path("closed").c_str(), 0755);  // so that it can be deleted
}

// A file of this kind cannot be synced. The call must end, and its error is raised.
TEST(PlatformPosix, ASyncThatFailsIsError57) {
  const auto platform = MakePlatform("/proc/self");
  const auto file = platform->Open("/proc/self/comm", FileAccess::kReadWriteShared);
  EXPECT_EQ(ErrorOf([&] { file->Sync(TestPass()); }), 57);
}

TEST(PlatformPosix, TheRootIsAFolder) { EXPECT_EQ(MakePlatform("/")->ProgramFolder(), "/"); }

TEST_F(PlatformPosixTest, OfNamesThatDifferInCaseOneIsMeant) {
  for (const char* name : {"a.dat", "A.dat", "a.DAT", "A.DAT", "A.dAT", "A.Dat", "a.Dat"}) {
    folder.Write(name, name);
  }
  for (const char* name : {"a.dat", "A.dat", "a.dAt"}) {
    files.Open(1, At(name), 5);
    EXPECT_EQ(Read(1, 1, 5), "A.DAT") << name;
  }
}

TEST_F(PlatformPosixTest, ARunThatEndsWithoutLettingGoLeavesNoLock) {
  const pid_t child = fork();
  if (child == 0) _exit(real->LockRun(At("")).release() == nullptr ? 1 : 0);
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_NE(real->LockRun(At("")), nullptr);
}

TEST_F(PlatformPosixTest, StartsPrograms) {
  folder.Write("KVM.EXE", "#!/bin/sh\necho \"$1,$#\" > \"$0.out\"\n");
  platform.StartProgram(At("KVM.EXE"), "QB");
  EXPECT_EQ(platform.started(), std::vector<std::string>{At("KVM.EXE QB")});
  EXPECT_EQ(wait(nullptr), -1);  // the platform only recorded it and started nothing
  EXPECT_EQ(ErrorOf([&] { real->StartProgram(At("none.exe"), ""); }), 53);
  EXPECT_EQ(ErrorOf([&] { real->StartProgram(At("kvm.exe"), ""); }), 75);
  chmod(folder.Path("KVM.EXE").c_str(), 0755);
  platform.StartForReal();
  platform.StartProgram(At("kvm.exe"), "QB");
  EXPECT_GT(wait(nullptr), 0);
  EXPECT_EQ(folder.Read("KVM.EXE.out"), "QB,1\n");
}

TEST_F(PlatformPosixTest, FormsComeFromTheLocale) {
  const char* before = std::getenv("LC_ALL");
  const std::string kept = before == nullptr ? "" : before;
  setenv("LC_ALL", "C", 1);
  const RegionalForms forms = real->Regional();
  before == nullptr ? unsetenv("LC_ALL") : setenv("LC_ALL", kept.c_str(), 1);
  EXPECT_EQ(forms.short_date, "MM/dd/yy");
  EXPECT_EQ(forms.long_time, "HH:mm:ss");
}

}  // namespace
}  // namespace golf
