// Tests the screens that check and export all data, on the demonstration install.

#include <filesystem>
#include <set>

#include "app/demo/demo_install.h"
#include "outlets/checkup/finding_list.h"
#include "screens/courses/course_form.h"
#include "screens/courses/course_tee.h"
#include "screens/outlets/check_data.h"
#include "screens/outlets/export_data.h"
#include "screens/rosters/load_roster.h"
#include "screens/rosters/load_rosters.h"
#include "support/bytes.h"
#include "support/test_host.h"

namespace golf {
namespace {

class OutletsTest : public testing::Test {
 protected:
  OutletsTest() { MakeDemoInstall(install.state()); }

  void Press(Screen& screen, const char* button) { install.host->Press(screen, button); }
  void Put(const char* file, std::size_t at, const std::string& bytes) {
    std::string content = install.folder.Read(file);
    content.replace(at, bytes.size(), bytes);
    install.folder.Write(file, content);
  }
  // Cancels the run of a screen at its report with this number, from 1. Until then the operator
  // tries to leave the screen, which a run does not allow.
  void CancelAt(Screen& screen, int report) {
    install.listener.on_progress = [this, &screen, report, count = 0,
                                    last = std::int64_t{0}](const Progress& progress) mutable {
      EXPECT_GE(progress.done, std::exchange(last, progress.done));
      EXPECT_LE(progress.done, progress.total);
      EXPECT_EQ(progress.doing.substr(0, 8), "Reading ");
      Button& pressed = ++count == report ? *screen.RunCancelButton() : *screen.LeaveButton();
      install.host->Operate(screen, pressed, [&] { pressed.Click(); });
    };
  }

  TestInstall install{false};
};

int RowOf(const CheckData& check, const std::string& kind, const std::string& file) {
  int row = check.FindingList.rows();
  while (row > 0 && (check.FindingList.text(CheckData::kKindColumn, row) != kind ||
                     check.FindingList.text(CheckData::kFileColumn, row) != file)) {
    --row;
  }
  return row;
}

// Returns what a screen shows of a course or roster, and checks that nothing can be changed in it.
std::string Viewed(Screen& screen) {
  for (const Control* control : screen.controls()) {
    const auto* text = dynamic_cast<const TextBox*>(control);
    const auto* toggle = dynamic_cast<const Toggle*>(control);
    EXPECT_FALSE(text != nullptr && text->IsReachable() && !text->read_only()) << control->name();
    EXPECT_FALSE(toggle != nullptr && toggle->IsReachable()) << control->name();
  }
  const auto row = [](const Grid& grid, int column) {
    return grid.active_row() == 0 ? "" : grid.text(column, grid.active_row());
  };
  std::string viewed = screen.name() + " ";
  if (auto* form = dynamic_cast<CourseForm*>(&screen)) {
    viewed += form->FCourseNum.caption() + " " + form->FCourseName.text();
  } else if (auto* roster = dynamic_cast<LoadRoster*>(&screen)) {
    viewed += row(roster->grid1, 2);
  } else if (auto* rosters = dynamic_cast<LoadRosters*>(&screen)) {
    viewed += row(rosters->grid1, 1);
  }
  for (const Control* control : screen.controls()) {
    if (control->kind() == ControlKind::kButton && control->IsReachable()) {
      viewed += "; " + dynamic_cast<const Button*>(control)->caption();
    }
  }
  return viewed;
}

TEST_F(OutletsTest, AFindingOpensItsCourseOrRosterAndNothingCanBeChangedThere) {
  const struct {
    const char* kind;
    const char* file;
    std::size_t at;
    std::string bytes;
    std::vector<std::string> viewed;  // the screens, or a box
  } kCases[] = {
      {"course-link-wrong",
       "qbdata/qbcrs.dat",
       1224,
       std::string("\1\0", 2),
       {"CourseForm 1 Quarry Hollow; Show Blue tee; Close", "CourseTee ; Close"}},
      {"half-waits", "kvdata/CLUB18.kvg", 454, "\x28", {"LoadRoster CLUB18; Close"}},
      {"history-count", "kvdata/CLUB18.kvs", 0, "", {"LoadRoster CLUB18; Close"}},
      {"golfer-on-no-roster",
       "qbdata/QBGOLFER.Q9D",
       9 * 1867 + 8,
       std::string(8, '\0'),
       {"LoadRosters (Show ALL Rosters); Close"}},
      {"id-twice",
       "qbdata/QBGOLFER.Q9D",
       13 * 1867 + 4,
       install.folder.Read("qbdata/QBGOLFER.Q9D").substr(12 * 1867 + 4, 2),
       {"LoadRosters Invitation Guests; Close"}},
      {"entry-no-golfer", "qbdata/X0001.Q9G", 0, std::string("\x9\0", 2), {}},
  };
  Put("kvdata/CLUB18.kvg", 455, std::string("\3\0", 2));  // history-count
  for (const auto& c : kCases) {
    if (!c.bytes.empty()) Put(c.file, c.at, c.bytes);
  }
  const auto before = install.folder.Files();
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.kind);
    std::vector<std::string> viewed;
    install.Open("CheckData", [&](Screen& screen) {
      auto* check = dynamic_cast<CheckData*>(&screen);
      if (check == nullptr) {
        viewed.push_back(Viewed(screen));
        auto* form = dynamic_cast<CourseForm*>(&screen);
        if (form != nullptr) install.host->Operate(screen, form->grid1.on_double_click);
        if (auto* grid = dynamic_cast<Grid*>(screen.FindControl("grid1"))) {
          if (form == nullptr) install.host->Operate(screen, grid->on_double_click);
        }
        return;
      }
      Press(screen, "CheckButton");
      const int row = RowOf(*check, c.kind, c.file);
      if (row == 0) return;
      check->FindingList.SetActiveRow(row);
      EXPECT_NE(check->DetailText.text().find("What to do: "), std::string::npos);
      install.host->Operate(screen, check->FindingList.on_double_click);
      install.host->Press(screen, "OpenButton");
    });
    std::vector<std::string> expected = c.viewed;
    expected.insert(expected.end(), c.viewed.begin(), c.viewed.end());
    EXPECT_EQ(viewed, expected);
  }
  EXPECT_TRUE(ToldBeginning(install, "message [Check the data] "));
  EXPECT_NE(install.LastMessage().find("\r\rThis is in the file qbdata/X0001.Q9G.\rRecord 1, "
                                       "Autumn Medal -> OK"),
            std::string::npos)
      << install.LastMessage();
  EXPECT_TRUE(install.folder.Files() == before);
}

TEST_F(OutletsTest, ACancelledCheckKeepsTheFindingsBefore) {
  const auto before = install.folder.Files();
  install.Open("CheckData", [&](Screen& screen) {
    auto& check = dynamic_cast<CheckData&>(screen);
    CancelAt(screen, 5);
    Press(screen, "CheckButton");
    EXPECT_EQ(check.SummaryLabel.caption(), "The check was cancelled.");
    EXPECT_EQ(check.FindingList.rows(), 0);
    EXPECT_FALSE(check.run.CancelButton.enabled() || check.CopyButton.enabled());
    install.listener.on_progress = nullptr;
    Press(screen, "CheckButton");
    const int rows = check.FindingList.rows();
    EXPECT_EQ(rows, static_cast<int>(FindingsByFile(install.state()).size()));
    EXPECT_GT(rows, 0);
    CancelAt(screen, 1);
    Press(screen, "CheckButton");
    EXPECT_EQ(check.FindingList.rows(), rows);
    EXPECT_EQ(check.SummaryLabel.caption(),
              "The check was cancelled. The list shows the check before.");
    Press(screen, "CopyButton");
    const std::string headings = "Severity\tKind\tFile\tRecord\tName\tFinding\r\n";
    EXPECT_EQ(install.host->copied().substr(0, headings.size()), headings);
  });
  EXPECT_TRUE(install.folder.Files() == before);
}

// Operates the screen until the export has ended. `work` sets its controls.
class ExportTest : public OutletsTest {
 protected:
  void Export(const std::function<void(ExportData&)>& work) {
    install.Open("ExportData", [&](Screen& screen) {
      auto& exported = dynamic_cast<ExportData&>(screen);
      work(exported);
      Press(screen, "ExportButton");
      install.listener.on_progress = nullptr;
      message = exported.MessageLabel.visible() ? exported.MessageLabel.caption() : "";
      summary = exported.SummaryLabel.caption();
      tables = exported.TableList.rows();
    });
  }
  // Returns the names beside the install.
  std::set<std::string> NamesBeside() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(install.folder.Path(".."))) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }

  std::string message;
  std::string summary;
  int tables = 0;
};

TEST_F(ExportTest, RefusalsAndCancelledExportsWriteNothing) {
  install.folder.Write("../old.sqlite", "old");
  install.folder.Write("../photos/cat.jpg", "cat");
  const auto before = install.folder.Files("..");
  const auto names = NamesBeside();
  const struct {
    int format;
    std::string target;
    bool replaces;
    std::string message;  // its end
  } kCases[] = {
      {0, "", false, "Choose where to write first."},
      {0, "old.sqlite", false, "old.sqlite exists. Tick \"Replace\" to replace it."},
      {1, "photos", true,
       "It is not a folder of an earlier export, so the export does not replace "
       "it."},
      {2, "install/kvdata/new", false,
       "is in the folder kvdata, which contains golf data. Choose another folder."},
      {0, "nowhere/new.sqlite", false, "There is no folder "},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.target);
    Export([&](ExportData& screen) {
      screen.FormatList.Select(c.format);
      screen.TargetText.Enter(c.target);
      screen.ReplaceCheck.Choose(c.replaces);
    });
    EXPECT_NE(message.find(c.message), std::string::npos) << message;
    EXPECT_EQ(summary, "");
  }
  for (const int format : {0, 1, 2}) {
    for (const int report : {1, 20, 200}) {
      Export([&](ExportData& screen) {
        screen.FormatList.Select(format);
        CancelAt(screen, report);
      });
      EXPECT_EQ(message, "");
      EXPECT_EQ(summary, "The export was cancelled. Nothing was written.");
    }
  }
  install.platform->Fail({.error = ErrorNumber::kPermissionDenied,
                          .only = Operation::kOpen,
                          .name = "QBGOLFER.Q9D",
                          .stays = true});
  EXPECT_EQ(ClickErrorOf([&] { Export([](ExportData&) {}); }), 70);
  EXPECT_EQ(NamesBeside(), names);
  EXPECT_TRUE(install.folder.Files("..") == before);
}

TEST_F(ExportTest, TheTargetIsProposedChosenAndReplaced) {
  const auto before = install.folder.Files();
  const auto golfers = [&](const std::string& folder) {
    return install.folder.Read("../" + folder + "/kelvane_golfers.csv");
  };
  Export([](ExportData& screen) { screen.FormatList.Select(1); });
  EXPECT_TRUE(summary.ends_with("golf-csv.")) << summary;
  EXPECT_GT(tables, 10);
  EXPECT_TRUE(install.folder.Files() == before);
  Put("kvdata/CLUB18.kvg", 8, "Zelda");
  Export([&](ExportData& screen) {
    screen.TargetText.Enter("chosen by hand");
    screen.FormatList.Select(1);
    EXPECT_EQ(screen.TargetText.text(), "chosen by hand");
  });
  EXPECT_NE(golfers("chosen by hand").find("Zelda"), std::string::npos);
  EXPECT_EQ(golfers("golf-csv").find("Zelda"), std::string::npos);
  Export([&](ExportData& screen) {
    screen.FormatList.Select(1);
    install.host->QueueAnswer("Target of the export", screen.TargetText.text());
    screen.TargetText.Enter("");
    Press(screen, "ChooseButton");
    screen.ReplaceCheck.Choose(true);
  });
  EXPECT_EQ(golfers("golf-csv"), golfers("chosen by hand"));
}

}  // namespace
}  // namespace golf
