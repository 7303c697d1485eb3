// Tests the tools that keep rosters, layouts and deleted courses, on the demonstration install.

#include "app/tools.h"

#include <map>
#include <string>

#include "app/demo/demo_install.h"
#include "screens/courses/course_table.h"
#include "screens/courses/deleted_courses.h"
#include "screens/history/run_undo.h"
#include "screens/results/team_layout_list.h"
#include "screens/rosters/load_roster.h"
#include "screens/rosters/load_rosters.h"
#include "support/file_checks.h"

namespace golf {
namespace {

using Files = std::map<std::string, std::string>;

class ToolsTest : public testing::Test {
 protected:
  ToolsTest() { MakeDemoInstall(install.state()); }

  HeadlessHost& host() { return *install.host; }
  void Press(Screen& screen, const char* button) { host().Press(screen, button); }
  // Opens the tool whose caption, without access keys, is this text.
  void OpenTool(const std::string& caption, std::function<void(Screen&)> drive) {
    host().drive = std::move(drive);
    for (const MenuEntry& tool : Tools(install.state())) {
      std::string plain = tool.caption;
      std::erase(plain, '&');
      if (plain != caption) continue;
      host().Operate([&] { tool.open(install.state(), host()); });
      return;
    }
    ADD_FAILURE() << "no tool " << caption;
  }
  // Returns the files of the three programs.
  Files Data() const {
    Files files = install.folder.Files();
    std::erase_if(files, [](const auto& file) { return file.first.starts_with("transfer-"); });
    return files;
  }
  void Undo() {
    host().drive = nullptr;
    host().QueueAnswer("Undo", "Yes");
    host().Operate([&] { UndoLastRun(install.state(), host()); });
  }
  // Returns the names of the files that differ.
  static std::string Differences(const Files& before, const Files& after) {
    std::string names;
    for (const auto& [name, bytes] : before) {
      if (!after.contains(name)) names += "-" + name + " ";
      if (after.contains(name) && after.at(name) != bytes) names += name + " ";
    }
    for (const auto& file : after)
      names += before.contains(file.first) ? "" : "+" + file.first + " ";
    return names;
  }

  TestInstall install{false};
};

TEST_F(ToolsTest, ARestoredCourseIsAsItWasBeforeItsDeletion) {
  for (const std::string program : {"KV", "QB", "ZD"}) {
    SCOPED_TRACE(program);
    std::string name;
    const auto delete_second = [&](const char* answer) {
      install.Open(
          "CourseTable",
          [&](Screen& screen) {
            auto& table = dynamic_cast<CourseTable&>(screen);
            table.CourseGrid.SetActiveRow(2);
            name = table.CourseGrid.text(1, 2);
            host().QueueAnswer("DELETE COURSE?", answer);
            Press(screen, "DeleteCourseButton");
            Press(screen, "CloseButton");
          },
          program.c_str());
    };
    delete_second("NO");  // writes the indexes, so that they differ later only by the course
    const Files before = Data();
    delete_second("YES");
    const Files deleted = Data();
    ASSERT_NE(deleted, before);
    install.Open(
        "DeletedCourses",
        [&](Screen& screen) {
          auto& list = dynamic_cast<DeletedCourses&>(screen);
          const int row = list.CourseList.rows();
          ASSERT_GT(row, 0);
          list.CourseList.SetActiveRow(row);
          while (list.CourseList.text(DeletedCourses::kNameColumn, list.CourseList.active_row()) !=
                 name) {
            ASSERT_GT(list.CourseList.active_row(), 1);
            list.CourseList.SetActiveRow(list.CourseList.active_row() - 1);
          }
          Press(screen, "RestoreButton");  // the default is No
          EXPECT_EQ(Data(), deleted);
          host().QueueAnswer("Restore course", "Yes");
          Press(screen, "RestoreButton");
          EXPECT_EQ(list.CourseList.rows(), row - 1);
        },
        program.c_str());
    EXPECT_EQ(Differences(before, Data()), "");
    for (const auto& [file, bytes] : before) EXPECT_TRUE(Holds(install.folder, file, bytes));
    Undo();
    EXPECT_EQ(Differences(deleted, Data()), "");
  }
}

TEST_F(ToolsTest, LayoutsAreDuplicatedAndDeleted) {
  const Files before = Data();
  const auto open = [&](const std::string& item, const char* button) {
    OpenTool("Team results layouts...", [&](Screen& screen) {
      auto& list = dynamic_cast<TeamLayouts&>(screen);
      for (int i = 0; i < static_cast<int>(list.LayoutList.items().size()); ++i) {
        if (list.LayoutList.items()[static_cast<std::size_t>(i)] == item) list.LayoutList.Select(i);
      }
      ASSERT_EQ(list.LayoutList.text(), item);
      Press(screen, button);
    });
  };
  open("Gross and net", "DeleteButton");  // the default is No
  const std::pair<const char*, const char*> kRefused[] = {
      {"a/b", "message [Notice] A report name "},
      {"TWO BEST NETS", "message [Notice] A report layout with this name already exists."},
      {" ", "input [Duplicate layout] Name of the copy ->  "}};
  for (const auto& [name, message] : kRefused) {
    install.listener.events.clear();
    host().QueueAnswer("Duplicate layout", name);
    open("Gross and net", "DuplicateButton");
    EXPECT_TRUE(ToldBeginning(install, message)) << name;
  }
  EXPECT_EQ(Data(), before);
  open("Gross and net", "DuplicateButton");  // with the proposed name
  const std::string old_path = "qbdata/Gross and net.TR";
  const std::string new_path = "qbdata/Gross and net 2.TR";
  const Files copied = Data();
  EXPECT_EQ(Differences(before, copied), "+" + new_path + "1 +" + new_path + "2 ");
  EXPECT_EQ(copied.at(new_path + "1"), before.at(old_path + "1"));
  EXPECT_EQ(copied.at(new_path + "2"), before.at(old_path + "2"));
  host().QueueAnswer("Delete layout", "Yes");
  open("Gross and net", "DeleteButton");
  EXPECT_EQ(Differences(copied, Data()), "-" + old_path + "1 -" + old_path + "2 ");
  Undo();
  EXPECT_EQ(Data(), copied);
  install.folder.Remove(new_path + "2");
  const Files half = Data();
  EXPECT_EQ(ClickErrorOf([&] { open("Gross and net 2", "DuplicateButton"); }), 53);
  EXPECT_EQ(Data(), half);
}

// A tool offers the buttons that change a list, and none that loads a roster.
TEST_F(ToolsTest, RostersAreMadeAndDeleted) {
  const Files before = Data();
  OpenTool("Rosters of Kelvane...", [&](Screen& screen) {
    auto& rosters = dynamic_cast<LoadRoster&>(screen);
    EXPECT_FALSE(rosters.LoadButton.IsShown());
    rosters.grid1.SetActiveRow(1);
    rosters.grid1.on_double_click();
    EXPECT_FALSE(rosters.picked());
    host().QueueAnswer("New Roster", "Yes");
    Press(screen, "NewButton");
    rosters.NewRosterName.SetText("JUNIORS");
    Press(screen, "OK2Button");
    EXPECT_FALSE(rosters.LoadButton.IsShown());
    EXPECT_EQ(rosters.grid1.rows(), 3);
  });
  const Files made = Data();
  EXPECT_EQ(Differences(before, made), "+kvdata/JUNIORS.kv5 ");
  OpenTool("Rosters of Kelvane...", [&](Screen& screen) {
    auto& rosters = dynamic_cast<LoadRoster&>(screen);
    rosters.grid1.SetActiveRow(1);
    host().QueueAnswer("DELETE Roster?", "yes");
    Press(screen, "DeleteButton");
    EXPECT_EQ(rosters.grid1.rows(), 2);
  });
  EXPECT_EQ(Differences(made, Data()), "-kvdata/CLUB18.kv5 -kvdata/CLUB18.kvg -kvdata/CLUB18.kvs ");
  Undo();
  EXPECT_EQ(Data(), made);

  OpenTool("Rosters of Quenby...", [&](Screen& screen) {
    auto& rosters = dynamic_cast<LoadRosters&>(screen);
    EXPECT_FALSE(rosters.LoadButton.IsShown());
    rosters.grid1.SetActiveRow(2);
    Press(screen, "EditButton");
    rosters.Text1[0].SetText("Guests");
    Press(screen, "AddEditRosterOK");
  });
  const Files edited = Data();
  EXPECT_EQ(Differences(made, edited), "qbdata/QBROSTER.Q9D ");
  OpenTool("Rosters of Quenby...", [&](Screen& screen) {
    auto& rosters = dynamic_cast<LoadRosters&>(screen);
    EXPECT_EQ(rosters.grid1.text(1, 2), "Guests");
    rosters.grid1.SetActiveRow(2);
    host().QueueAnswer("DELETE Roster?", "y");
    Press(screen, "DeleteButton");
  });
  EXPECT_EQ(Differences(edited, Data()), "qbdata/QBGOLFER.Q9D qbdata/QBROSTER.Q9D ");
  Undo();
  EXPECT_EQ(Data(), edited);
  Undo();
  EXPECT_EQ(Data(), made);
}

// A course whose indexes cannot be written is not restored, and neither is one that has changed
// while the operator was asked.
TEST_F(ToolsTest, ACourseIsRestoredWithItsIndexesOrNotAtAll) {
  const Files before = Data();
  install.Open(
      "CourseTable",
      [&](Screen& screen) {
        host().QueueAnswer("DELETE COURSE?", "YES");
        Press(screen, "DeleteCourseButton");
        Press(screen, "CloseButton");
      },
      "QB");
  const Files deleted = Data();
  std::function<void()> during_restore = [] {};
  const auto restore = [&] {
    install.Open(
        "DeletedCourses",
        [&](Screen& screen) {
          during_restore();
          host().QueueAnswer("Restore course", "Yes");
          Press(screen, "RestoreButton");
        },
        "QB");
  };
  install.platform->Fail({.only = Operation::kOpen, .name = "ALLCRSQB.INX", .stays = true});
  EXPECT_NE(ClickErrorOf(restore), 0);
  EXPECT_TRUE(install.platform->Failed());
  install.platform->Heal();
  EXPECT_EQ(Data(), deleted);

  during_restore = [&] { install.folder.Write("qbdata/qbcrs.dat", before.at("qbdata/qbcrs.dat")); };
  restore();
  EXPECT_TRUE(ToldBeginning(
      install,
      "message [Restore course] Another program has changed this course meanwhile. It was "
      "not restored."));
  EXPECT_EQ(Data().at("qbdata/qbcrs.dat"), before.at("qbdata/qbcrs.dat"));
}

TEST_F(ToolsTest, APermanentLayoutIsNotDeleted) {
  for (const char part : {'1', '2'}) {
    const std::string bytes = install.folder.Read(std::string("qbdata/Gross and net.TR") + part);
    install.folder.Write(std::string("qbdata/(Club).TR") + part, bytes);
  }
  const Files before = Data();
  host().QueueAnswer("Delete layout", "Yes");
  OpenTool("Team results layouts...", [&](Screen& screen) {
    dynamic_cast<TeamLayouts&>(screen).LayoutList.Select(0);
    Press(screen, "DeleteButton");
  });
  EXPECT_TRUE(ToldBeginning(
      install, "message [Notice] This is a permanent system report and cannot be deleted."));
  EXPECT_EQ(Data(), before);
}

// A held file is reported in a box, and nothing changes.
TEST_F(ToolsTest, HeldFilesAreReported) {
  const struct {
    const char* tool;
    const char* file;
    const char* message;
  } kCases[] = {
      {"Rosters of Quenby...", "QBROSTER.Q9D", "message [Rosters] Quenby's rosters are in use:\r"},
      {"Rosters of Quenby...", "QBGOLFER.Q9D", "message [Rosters] Quenby's rosters are in use:\r"},
      {"Deleted courses...", "KVCRS.DAT",
       "message [Course library] Kelvane's course library is in use:\r"},
  };
  const Files before = Data();
  for (const auto& c : kCases) {
    install.Restart();
    install.platform->Fail({.error = ErrorNumber::kPermissionDenied,
                            .only = Operation::kOpen,
                            .name = c.file,
                            .stays = true});
    OpenTool(c.tool, [&](Screen& screen) {
      EXPECT_FALSE(dynamic_cast<DeletedCourses&>(screen).RestoreButton.enabled());
    });
    EXPECT_TRUE(ToldBeginning(install, c.message)) << install.LastMessage();
    install.platform->Heal();
    EXPECT_EQ(Data(), before);
  }
}

TEST_F(ToolsTest, AreOfferedForWhatExists) {
  TestInstall empty(false);
  EXPECT_TRUE(Tools(empty.state()).empty());
  empty.folder.MakeFolder("kvdata");
  std::string captions;
  for (const MenuEntry& tool : Tools(empty.state())) captions += tool.caption + "|";
  EXPECT_EQ(captions, "Rosters of Kel&vane...|&Check the data...|&Export...|");
}

}  // namespace
}  // namespace golf
