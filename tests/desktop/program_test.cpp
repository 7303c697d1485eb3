// Tests the desktop program as it changes from one install to another.

#include <gtest/gtest.h>
#include <wx/dnd.h>
#include <wx/filename.h>

#include <string>

#include "desktop/desktop_profile.h"
#include "desktop/desktop_program.h"
#include "desktop/operator.h"
#include "desktop/wx_text.h"
#include "support/error_of.h"
#include "support/temp_folder.h"
#include "support/test_profile.h"

namespace golf {
namespace {

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
