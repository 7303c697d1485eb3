// Operates the tools that change rosters, courses and layouts in real windows, on the
// demonstration install. Each test makes something and removes it again, or the reverse.

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "desktop/demo_desktop.h"
#include "desktop/operator.h"
#include "screens/courses/deleted_courses.h"
#include "screens/outlets/export_data.h"

namespace golf {
namespace {

class WindowToolsTest : public testing::Test {
 protected:
  WindowToolsTest() { demo.host.Show(demo.host.Load("TransferMenu")); }

  void OpenTool(std::size_t entry, const char* caption) {
    user.ChooseInMenu(0, entry, [caption](const wxMenu&, const wxMenuItem& item) {
      EXPECT_EQ(item.GetItemLabel().utf8_string(), caption);
    });
  }
  void AwaitRows(const char* list, unsigned rows) {
    user.Await(std::to_string(rows) + " rows of " + list, [list, rows] {
      return Operator::Find(list) != nullptr && Operator::RowCount(list) == rows;
    });
  }
  // Types into a text box when it has the focus.
  void Enter(const std::string& name, const std::string& keys) {
    user.When(
        "the focus on " + name,
        [name] { return Operator::Find(name) != nullptr && Operator::Find(name)->HasFocus(); },
        [this, keys] {
          for (const char key : keys) user.TypeNow(key);
        });
    user.Await("the text " + keys, [name, keys] {
      return dynamic_cast<wxTextCtrl&>(*Operator::Find(name)).GetValue().Lower().Contains(keys);
    });
  }
  void Leave(const char* button, const char* screen) {
    user.Press(button);
    user.Await("the menu", [this, screen] { return !demo.host.IsShown(screen); });
  }
  // Returns the files of the three programs without those that a tool's opening creates.
  std::map<std::string, std::string> Data() const {
    auto files = demo.install.folder.Files();
    std::erase_if(files, [](const auto& file) {
      return file.first.starts_with("transfer-") || file.first.ends_with(".INX");
    });
    return files;
  }
  // Returns true if the data are the same at the end of the program as now.
  bool StaysTheSame() {
    const auto before = Data();
    user.RunToExit();
    return Data() == before;
  }

  Demo<DesktopHost> demo;
  Operator user;
};

TEST_F(WindowToolsTest, MakesAndDeletesAKelvaneRoster) {
  std::string made;
  OpenTool(0, "Rosters of Kel&vane...");
  AwaitRows("grid1", 2);
  user.Press("NewButton");
  user.Answer("New Roster", "Start a new roster?", 'Y', wxMOD_ALT);
  Enter("NewRosterName", "a b");
  user.Press("OK2Button");
  user.AnswerInput("What kind of roster?", "18", "9");
  AwaitRows("grid1", 3);
  user.Next([&] {
    for (const auto& [name, bytes] : Data()) made += name.ends_with(".kv5") ? bytes[152] : ' ';
  });
  user.Press("DeleteButton");
  user.AnswerInput("DELETE Roster?", "NO", "YES");
  user.Answer("Delete roster?",
              "Your are currently viewing this roster.  Are you sure you want to delete it?", 'Y',
              wxMOD_ALT);
  user.Await("the menu", [this] { return !demo.host.IsShown("LoadRoster"); });
  EXPECT_TRUE(StaysTheSame());
  EXPECT_NE(made.find('\x09'), std::string::npos);
}

TEST_F(WindowToolsTest, MakesEditsAndDeletesAQuenbyRoster) {
  const std::string rosters = "qbdata/QBROSTER.Q9D";
  std::string written;
  const auto note = [&] { user.Next([&] { written += demo.install.folder.Read(rosters); }); };
  OpenTool(1, "Rosters of Q&uenby...");
  user.Press("NewButton");
  user.Answer("New Roster", "Start a new roster?", 'Y', wxMOD_ALT);
  Enter("Text1", "x1");
  user.Press("AddEditRosterOK");
  user.Press("EditButton");
  note();
  Enter("Text1", "z2");
  user.Press("AddEditRosterOK");
  user.Press("DeleteButton");
  note();
  user.AnswerInput("DELETE Roster?", "NO", "YES");
  Leave("CancelButton", "LoadRosters");
  const std::string before = demo.install.folder.Read(rosters);
  user.RunToExit();
  EXPECT_NE(written.find("x1"), std::string::npos);
  EXPECT_NE(written.find("z2"), std::string::npos);
  // The place of the deleted roster stays.
  EXPECT_TRUE(demo.install.folder.Read(rosters).starts_with(before));
}

TEST_F(WindowToolsTest, RestoresADeletedCourse) {
  std::map<std::string, std::string> deleted;
  OpenTool(2, "Course library of &Kelvane...");
  user.Answer("Course library",
              "This is Kelvane's own course library:\n" + demo.install.state().KVDataPath +
                  "kvcrs.dat\n\nWhat you change in it is changed for Kelvane as well. Close "
                  "Kelvane before you go on.\n\nOpen it?",
              'Y', wxMOD_ALT);
  user.Press("DeleteCourseButton");
  user.AnswerInput("DELETE COURSE?", "NO", "YES");
  Leave("CloseButton", "CourseTable");
  OpenTool(5, "&Deleted courses...");
  AwaitRows("CourseList", 2);
  user.Next([&] {
    deleted = Data();
    Load<DeletedCourses>(demo.host).CourseList.SetActiveRow(2);
  });
  user.Press("RestoreButton");
  user.Answer(
      "Restore course",
      "Restore the course Ash Ridge Municipal in Kelvane's course library?\n\nClose Kelvane before "
      "you go on. The menu History can undo this.",
      'Y', wxMOD_ALT);
  AwaitRows("CourseList", 1);
  Leave("ExitButton", "DeletedCourses");
  const auto before = Data();
  EXPECT_TRUE(StaysTheSame());
  EXPECT_EQ(deleted == before, false);
}

TEST_F(WindowToolsTest, DuplicatesAndDeletesALayout) {
  std::string copy;
  OpenTool(7, "Team results &layouts...");
  user.Press("DuplicateButton");
  user.AnswerInput("Duplicate layout", "Gross and net 2", "a copy");
  user.Await("the copy", [&] { return demo.install.folder.Exists("qbdata/a copy.TR2"); });
  user.Next([&] { copy = demo.install.folder.Read("qbdata/a copy.TR1"); });
  user.Press("DeleteButton");
  user.Answer("Delete layout", "Delete the layout \"a copy\"?\n\nThe menu History can undo this.",
              'Y', wxMOD_ALT);
  user.Await("the end", [&] { return !demo.install.folder.Exists("qbdata/a copy.TR1"); });
  Leave("ExitButton", "TeamLayouts");
  EXPECT_TRUE(StaysTheSame());
  EXPECT_EQ(copy == demo.install.folder.Read("qbdata/Gross and net.TR1"), true);
}

TEST_F(WindowToolsTest, ChecksTheDataAndOpensTheCourseOfAFinding) {
  OpenTool(8, "&Check the data...");
  user.Press("CheckButton");
  AwaitRows("FindingList", 8);
  user.Press("OpenButton");  // the finding of the active row
  user.Await("the course", [this] { return demo.host.IsShown("CourseForm"); });
  user.Type("CancelButton", WXK_ESCAPE);
  user.Await("the findings", [this] { return !demo.host.IsShown("CourseForm"); });
  Leave("ExitButton", "CheckData");
  EXPECT_TRUE(StaysTheSame());
}

TEST_F(WindowToolsTest, ExportsTheData) {
  const TempFolder& folder = demo.install.folder;
  OpenTool(9, "&Export...");
  user.When(
      "the target", [] { return Operator::Find("TargetText") != nullptr; },
      [&] { Load<ExportData>(demo.host).TargetText.SetText(folder.Path("made.sqlite")); });
  user.Press("ExportButton");
  user.Await("the database", [&] { return folder.Exists("made.sqlite"); });
  user.Await("the tables", [] { return Operator::RowCount("TableList") > 10; });
  Leave("ExitButton", "ExportData");
  user.RunToExit();
  EXPECT_TRUE(folder.Read("made.sqlite").starts_with("SQLite format 3"));
}

}  // namespace
}  // namespace golf
