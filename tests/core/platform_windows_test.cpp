#define NOMINMAX
#include <windows.h>

#include "support/files_test.h"
#include "support/processes_windows.h"

namespace golf {
namespace {

namespace fs = std::filesystem;

class PlatformWindowsTest : public FilesTest {
 protected:
  std::wstring Wide(const std::string& name) const {
    const std::string path = folder.Path(name);
    return fs::path(std::u8string(path.begin(), path.end())).wstring();
  }
};

TEST_F(PlatformWindowsTest, AFileThatOthersMayOnlyReadIsReadByDefault) {
  folder.Write("a.dat", "abc");
  const HANDLE other = CreateFileW(Wide("a.dat").c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                   OPEN_EXISTING, 0, nullptr);
  EXPECT_EQ(ErrorOf([&] { files.Open(1, At("a.dat"), 3); }), 70);
  files.Open(1, At("a.dat"), 3, FileAccess::kDefault);
  EXPECT_EQ(ErrorOf([&] { files.Open(2, At("a.dat"), 3, FileAccess::kReadOnly); }), 0);
  CloseHandle(other);
  EXPECT_EQ(Read(1, 1, 3), "abc");
  EXPECT_EQ(ErrorOf([&] { files.WriteBytes(1, 1, "xyz"); }), 75);
}

TEST_F(PlatformWindowsTest, AReadOnlyFileIsNamedAsTheReason) {
  folder.Write("a.dat", "abc");
  SetFileAttributesW(Wide("a.dat").c_str(), FILE_ATTRIBUTE_READONLY);
  try {
    real->Delete(TestPass(), At("a.dat"));
    ADD_FAILURE();
  } catch (const NumberedError& error) {
    EXPECT_EQ(error.number(), 75);
    EXPECT_EQ(error.description(),
              "Access to " + At("a.dat") +
                  " is refused. The file is marked read-only: remove that mark in its properties, "
                  "then try again.");
  }
  SetFileAttributesW(Wide("a.dat").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(PlatformWindowsTest, FoldersEndInOneBackslash) {
  EXPECT_EQ(MakePlatform("C:\\")->ProgramFolder(), "C:\\");
  EXPECT_EQ(MakePlatform("c:/windows")->ProgramFolder(), "c:\\windows\\");
  EXPECT_EQ(MakePlatform("\\\\?\\C:\\windows\\")->ProgramFolder(), "C:\\windows\\");
  const std::string own = MakePlatform("")->ProgramFolder();
  EXPECT_TRUE(own.ends_with("\\") && !own.ends_with("\\\\")) << own;
  EXPECT_EQ(MakePlatform(own)->ProgramFolder(), own);
}

TEST_F(PlatformWindowsTest, PathsMayBeLong) {
  std::string path = At("").substr(0, At("").size() - 1);
  while (path.size() < 400) {
    path += "\\a folder with a name of some length";
    files.gate().CreateFolder(path);
  }
  files.Open(1, path + "/new.dat", 3);
  files.WriteBytes(1, 1, "abc");
  EXPECT_EQ(Read(1, 1, 3), "abc");
  files.CloseAll();
  EXPECT_TRUE(platform.FolderExists(path));
  EXPECT_TRUE(files.FileExists(path + "\\NEW.*"));
  EXPECT_NE(real->LockRun(path), nullptr);
  files.gate().Delete(path + "\\new.dat");
  EXPECT_FALSE(files.FileExists(path + "\\*"));
}

TEST_F(PlatformWindowsTest, TheLockGoesWithTheRun) {
  auto lock = real->LockRun(At(""));
  EXPECT_TRUE(folder.Exists("golf-transfer.lock"));
  const auto child = [&] { return RunProgram(folder, GOLF_CHILD, "lock .").code; };
  EXPECT_NE(child(), 7);
  lock.reset();
  EXPECT_FALSE(folder.Exists("golf-transfer.lock"));
  EXPECT_EQ(child(), 7);
  EXPECT_FALSE(folder.Exists("golf-transfer.lock"));
  folder.Write("golf-transfer.lock", "");  // left over after a power failure
  EXPECT_NE(real->LockRun(At("")), nullptr);
  EXPECT_FALSE(folder.Exists("golf-transfer.lock"));
}

// The system ends the process when the handler of the event returns, so the handler waits for the
// run. The end of the run must not wait for the handler.
TEST_F(PlatformWindowsTest, AClosedConsoleIsNotedAndWaitsForTheRun) {
  const LPTHREAD_START_ROUTINE deliver = ConsoleEventRoutine();
  ASSERT_NE(deliver, nullptr);
  auto watch = real->WatchStops();
  const HANDLE event = CreateThread(nullptr, 0, deliver,
                                    reinterpret_cast<void*>(DWORD64{CTRL_CLOSE_EVENT}), 0, nullptr);
  while (watch->Signal() == 0) SwitchToThread();
  constexpr int kHangUp = 1;
  EXPECT_EQ(watch->Signal(), kHangUp);
  EXPECT_EQ(WaitForSingleObject(event, 0), DWORD{WAIT_TIMEOUT});
  watch.reset();
  EXPECT_EQ(WaitForSingleObject(event, INFINITE), DWORD{WAIT_OBJECT_0});
  CloseHandle(event);
}

TEST_F(PlatformWindowsTest, StartsPrograms) {
  folder.Write("kvm.exe", "no program");
  EXPECT_EQ(ErrorOf([&] { real->StartProgram(At("none.exe"), ""); }), 53);
  EXPECT_EQ(ErrorOf([&] { real->StartProgram(At("kvm.exe"), ""); }), 75);
  const HANDLE change =
      FindFirstChangeNotificationW(Wide("").c_str(), FALSE, FILE_NOTIFY_CHANGE_FILE_NAME);
  fs::copy_file(GOLF_CHILD, Wide("kvm.exe"), fs::copy_options::overwrite_existing);
  real->StartProgram(At("KVM.EXE"), "QB");
  while (!folder.Exists("KVM.EXE.out")) {
    ASSERT_EQ(WaitForSingleObject(change, 60000), WAIT_OBJECT_0);
    FindNextChangeNotification(change);
  }
  FindCloseChangeNotification(change);
  EXPECT_EQ(folder.Read("KVM.EXE.out"), "QB,1");
}

// Changes a setting of the user. The destructor restores it.
class Setting {
 public:
  explicit Setting(const wchar_t* name) : name_(name) {
    DWORD size = sizeof before_;
    RegGetValueW(HKEY_CURRENT_USER, kKey, name_, RRF_RT_REG_SZ, nullptr, before_, &size);
  }
  Setting(const Setting&) = delete;
  Setting& operator=(const Setting&) = delete;
  ~Setting() { Set(before_); }

  void Set(const std::wstring& value) {
    RegSetKeyValueW(HKEY_CURRENT_USER, kKey, name_, REG_SZ, value.c_str(),
                    static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
  }

 private:
  static constexpr const wchar_t* kKey = L"Control Panel\\International";
  const wchar_t* name_;
  wchar_t before_[128] = L"";
};

TEST_F(PlatformWindowsTest, FormsComeFromTheSettingsOfTheUser) {
  Setting date(L"sShortDate");
  Setting time(L"sTimeFormat");
  const struct {
    const wchar_t* date;
    const wchar_t* time;
    const char* forms;
  } kRows[] = {
      {L"M/d/yyyy", L"h:mm:ss tt", "mm/dd/yy ##/##/## ##:##"},
      {L"dd.MM.yyyy", L"HH:mm:ss", "dd.mm.yy ##.##.## ##:##"},
      {L"yyyy-MM-dd", L"HH.mm.ss", "yy-mm-dd ##-##-## ##.##"},
      {L"yy/MM/dd", L"H'h'mm", "yy/mm/dd ##/##/## ##h##"},
      {L"d. M. yyyy", L"H:mm:ss", "dd.mm.yy ##.##.## ##:##"},
  };
  for (const auto& row : kRows) {
    date.Set(row.date);
    time.Set(row.time);
    EXPECT_EQ(RunProgram(folder, GOLF_CHILD, "forms").out, row.forms);
  }
}

}  // namespace
}  // namespace golf
