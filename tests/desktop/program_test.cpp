// Tests the desktop program as it changes from one install to another.

#include <gtest/gtest.h>
#include <wx/dnd.h>
#include <wx/filename.h>

#ifdef _WIN32
#include <shlobj.h>
#include <wx/msw/wrapwin.h>
#else
#include <glib.h>
#endif

#include <string>

#include "desktop/desktop_profile.h"
#include "desktop/desktop_program.h"
#include "desktop/operator.h"
#include "desktop/shortcut.h"
#include "desktop/wx_text.h"
#include "support/error_of.h"
#include "support/temp_folder.h"
#include "support/test_profile.h"

namespace golf {
namespace {

#ifdef _WIN32
// Returns what the system reads from a shortcut: the program and its arguments.
wxString ReadShortcut(const wxString& folder, const wxString& name) {
  IShellLinkW* link = nullptr;
  IPersistFile* file = nullptr;
  EXPECT_EQ(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                             reinterpret_cast<void**>(&link)),
            S_OK);
  EXPECT_EQ(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file)), S_OK);
  EXPECT_EQ(file->Load(wxFileName(folder, name, "lnk").GetFullPath().wc_str(), STGM_READ), S_OK);
  wchar_t program[MAX_PATH] = {};
  wchar_t arguments[MAX_PATH] = {};
  link->GetPath(program, MAX_PATH, nullptr, 0);
  link->GetArguments(arguments, MAX_PATH);
  file->Release();
  link->Release();
  return wxString(program) + " " + arguments;
}

constexpr const char* kShortcutCases[][3] = {
    {"C:\\club\\golf.exe", "C:\\Club \xC3\x84",
     "C:\\club\\golf.exe --install \"C:\\Club \xC3\x84\""},
    {"C:\\golf.exe", "D:\\", "C:\\golf.exe --install \"D:\\.\""}};
#else
wxString ReadShortcut(const wxString& folder, const wxString& name) {
  const std::string path = wxFileName(folder, name, "desktop").GetFullPath().utf8_string();
  GKeyFile* const file = g_key_file_new();
  EXPECT_TRUE(g_key_file_load_from_file(file, path.c_str(), G_KEY_FILE_NONE, nullptr));
  char* const command = g_key_file_get_string(file, "Desktop Entry", "Exec", nullptr);
  const wxString read = wxString::FromUTF8(command);
  g_free(command);
  g_key_file_free(file);
  return read;
}

constexpr const char* kShortcutCases[][3] = {
    {"/opt/golf", "/home/Club \xC3\x84", "\"/opt/golf\" --install \"/home/Club \xC3\x84\""},
    {"/o\\p", "/a\"$%", "\"/o\\\\p\" --install \"/a\\\"\\$%%\""}};
#endif

TEST(ShortcutTest, IsReadBackAsItWasMeant) {
  const TempFolder desktop;
  const wxString folder = wxString::FromUTF8(desktop.Path());
  for (const auto& [program, install, read] : kShortcutCases) {
    ASSERT_TRUE(WriteShortcut(
        folder, {"Golf (x)", wxString::FromUTF8(program), wxString::FromUTF8(install)}));
    EXPECT_EQ(ReadShortcut(folder, "Golf (x)"), wxString::FromUTF8(read));
  }
  EXPECT_FALSE(WriteShortcut(folder + "missing", {"Golf", "x", "y"}));
}

// The operator tries the demonstration, drops the folder of the club on the menu, opens the
// demonstration again, and drops a file.
TEST(ProgramTest, OpensOneInstallAfterAnother) {
  const TempFolder own;
  const TempFolder club("Caf\xC3\xA9");
  club.Write("kvdata/x", "x");
  TestProfile user(own.Path() + wxString(wxFileName::GetPathSeparator()).utf8_string());
  DesktopProgram program(user);
  Operator operator_;
  program.Open(own.Path(), "");
  const auto shows = [](const char* widget) {
    const wxWindow* found = Operator::Find(widget);
    return found != nullptr && found->IsShownOnScreen();
  };
  const auto await_folder = [&](const std::string& end) {
    operator_.Await("the folder " + end, [end, &program, &shows] {
      const auto* folder = dynamic_cast<wxStaticText*>(Operator::Find("FolderText"));
      const wxString path = WxText(program.application().state().ProgramPath)
                                .BeforeLast(wxFileName::GetPathSeparator());
      return shows("FolderText") && path.EndsWith(wxString::FromUTF8(end)) &&
             folder->GetLabelText().Contains(path) && wxTopLevelWindows.GetCount() == 1;
    });
  };
  const auto drop = [&](const std::string& path) {
    operator_.Next([path] {
      wxWindow* const panel = Operator::Find("FolderText")->GetParent();
      auto* target = dynamic_cast<wxFileDropTarget*>(panel->GetDropTarget());
      ASSERT_NE(target, nullptr);
      wxArrayString paths;
      paths.push_back(wxString::FromUTF8(path));
      EXPECT_TRUE(target->OnDropFiles(1, 1, paths));
    });
  };
  EXPECT_TRUE(shows("NoticeLabel"));
  EXPECT_TRUE(shows("StepsLabel"));
  operator_.Press("CloseStepsButton");
  operator_.Press("DemonstrationButton");
  await_folder("Demonstration");
  operator_.Next([&] {
    EXPECT_FALSE(shows("NoticeLabel"));
    EXPECT_FALSE(shows("StepsLabel"));
  });
  drop(club.Path());
  await_folder("Caf\xC3\xA9");
  operator_.Press("RecentButton");
  operator_.Press("OpenButton");
  await_folder("Demonstration");
  drop(club.Path("kvdata/x"));
  operator_.Answer("Folder of the golf data", club.Path("kvdata/x") + " is a file, not a folder.");
  operator_.RunToExit();
  EXPECT_EQ(ErrorOf([&] { program.Open(own.Path("gone"), ""); }), 76);
  EXPECT_TRUE(program.IsOpen());
}

// The code page of the texts lacks these letters.
TEST(ProgramTest, ABoxShowsTheFolderAsItIsWritten) {
  const TempFolder club("\xC5\x81owicz");
  club.Write("kvdata/x", "x");
  TestProfile user(club.Path());
  DesktopProgram program(user);
  Operator operator_;
  program.Open(club.Path(), "");
  operator_.Press("KVCoursestoQBButton");
  operator_.Answer("Notice",
                   "Cannot transfer data because the Quenby program is not installed in the '" +
                       program.application().state().files.platform().Utf8ProgramFolder() +
                       "' folder");
  operator_.RunToExit();
}

TEST(ProgramTest, AProfileKeepsSettingsForTheNextStart) {
  const std::string value = "C:\\Caf\xC3\xA9 \"x\" = 1;\\";
  {
    DesktopProfile profile;
    EXPECT_EQ(profile.Setting("Test"), "");
    profile.KeepSetting("Test", value);
  }
  DesktopProfile profile;
  EXPECT_EQ(profile.Setting("Test"), value);
  profile.KeepSetting("Test", "");
  EXPECT_EQ(DesktopProfile().Setting("Test"), "");
}

}  // namespace
}  // namespace golf
