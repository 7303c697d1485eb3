#include <gtest/gtest.h>
#include <wx/frame.h>
#include <wx/grid.h>
#include <wx/menu.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>

#include <filesystem>
#include <memory>
#include <vector>

#include "app/application.h"
#include "desktop/desktop_host.h"
#include "desktop/invocation.h"
#include "desktop/operator.h"
#include "screens/courses/course_table.h"
#include "screens/courses/course_tee.h"
#include "screens/rosters/load_roster.h"
#include "screens/tip_box.h"
#include "screens/transfers/kv_to_qb.h"
#include "stores/course/course_layout.h"
#include "support/bytes.h"
#include "support/error_of.h"
#include "support/test_host.h"

namespace golf {
namespace {

// A host that notes progress for the test and lets it paint the windows.
class TestHost : public DesktopHost {
 public:
  using DesktopHost::DesktopHost;
  using DesktopHost::PaintNow;

  void Report(const Progress& progress) override {
    DesktopHost::Report(progress);
    if (on_progress) on_progress(progress);
  }
  std::function<void(const Progress&)> on_progress;
};

// The desktop program on a small install, and an operator.
class DesktopTest : public testing::Test {
 protected:
  DesktopTest() {
    install.host.reset();
    install.state().Now = [this] { return host.Now(); };
    std::string courses;
    for (const auto& [name, active] :
         {std::pair{"Dunes & West", 1}, {"Gone", 0}, {"Pe\xF1on", 1}}) {
      Record<CourseLayout> course;
      course.Set<"Name">(name);
      course.Set<"activeflag">(static_cast<std::int16_t>(active));
      course.Set<"HoleNumFlag">(18);
      course.Set<"TeeName">({1}, "White");
      courses += course.Bytes();
    }
    install.folder.Write("kvdata/kvcrs.dat", courses);
    host.Show(host.Load("TransferMenu"));
  }

  SharedState& state() { return install.state(); }
  static wxTopLevelWindow& WindowOf(const std::string& widget) {
    return dynamic_cast<wxTopLevelWindow&>(*wxGetTopLevelParent(Operator::Find(widget)));
  }
  // Tries every way in which an operator could leave during a run.
  void TryToLeave() {
    user.ClickNow("CancelButton");
    user.TypeNow(WXK_ESCAPE);
    user.TypeNow(WXK_RETURN);
    WindowOf("CancelButton").Close();
    host.PaintNow();
    EXPECT_NE(Operator::Find("CancelButton"), nullptr);
  }
  void ExpectMessage(const wxString& text) {
    user.When(
        "message", [] { return Operator::Find("Message") != nullptr; },
        [text] {
          EXPECT_EQ(dynamic_cast<wxTextCtrl&>(*Operator::Find("Message")).GetValue(), text);
        });
  }
  void ExpectThreeCourses() {
    user.Answer("Course transfer complete.",
                "Number of courses ADDED: 3\nNumber of courses UPDATED: 0\n");
  }
  // Opens the course transfer. At the second course the operator tries to leave.
  void StartTransfer() {
    host.on_progress = [this](const Progress& progress) {
      if (progress.done == 2) TryToLeave();
    };
    user.Press("KVCoursestoQBButton");
    user.Press("TransferCourses");
  }

  TestInstall install;
  TestHost host{install.state(), Application::Screens(), Views()};
  Operator user;
};

constexpr const char* kLibraryFiles[] = {"qbcrs.dat", "9CRSQB.INX", "18CRSQB.INX", "ALLCRSQB.INX"};

std::vector<std::string> Libraries(const TestInstall& install) {
  std::vector<std::string> bytes;
  for (const std::string name : kLibraryFiles)
    bytes.push_back(install.folder.Read("qbdata/" + name));
  return bytes;
}

// Runs the same transfer without a display and returns both libraries.
std::vector<std::string> LibrariesWithoutDisplay(const std::string& kelvane) {
  TestInstall install;
  install.folder.Write("kvdata/kvcrs.dat", kelvane);
  install.Open("KVCoursestoQB",
               [&](Screen& screen) { install.host->Press(screen, "TransferCourses"); });
  return Libraries(install);
}

TEST_F(DesktopTest, TransfersCoursesAndStartsTheCallerAgain) {
  state().CommandLine = "QB";
  install.platform->StartForReal();
  install.folder.Write("QB.EXE", "#!/bin/sh\necho again > \"$(dirname \"$0\")/started\"\n");
  std::filesystem::permissions(install.folder.Path("QB.EXE"), std::filesystem::perms::owner_all);
  StartTransfer();
  bool seen_in_run = false;
  const auto leave = host.on_progress;
  host.on_progress = [&, leave](const Progress& progress) {
    leave(progress);
    host.PaintNow();
    seen_in_run =
        Operator::Find("Progress") != nullptr && !Operator::Find("TransferCourses")->IsEnabled();
    const auto& label = dynamic_cast<wxStaticText&>(*Operator::Find("TransferLabel"));
    EXPECT_EQ(label.GetLabelText().Trim(), progress.done < 3 ? L"Dunes & West" : L"Pe\u00F1on");
  };
  ExpectThreeCourses();
  user.Press("ExitButton");
  user.RunProgram();
  EXPECT_TRUE(seen_in_run);
  EXPECT_EQ(Libraries(install) == LibrariesWithoutDisplay(install.folder.Read("kvdata/kvcrs.dat")),
            true);
  user.RunUntil("the caller", [&] { return install.folder.Exists("started"); });
}

TEST_F(DesktopTest, AnErrorInARunLeavesTheScreenThere) {
  install.platform->Fail(
      {.error = ErrorNumber::kDiskFull, .only = Operation::kWrite, .name = "qbcrs.dat"});
  StartTransfer();
  user.Answer("Golf Transfer", "Error # 61 was generated by Golf Transfer: " + state().QBDataPath +
                                   "qbcrs.dat failed on purpose.");
  user.Press("TransferCourses");  // what was typed in the first run has not closed it
  ExpectThreeCourses();
  user.Press("KVCoursestoQBButton");
  user.Type("CancelButton", WXK_ESCAPE);
  user.Await("Cancel", [] { return Operator::Find("CancelButton") == nullptr; });
  user.Press("ExitButton");
  user.RunProgram();
}

TEST_F(DesktopTest, NamesAMissingSiblingAndClosesByItsWindow) {
  install.folder.Remove("qbdata");
  install.platform->StartForReal();
  state().CommandLine = "qb";  // the word of no sibling
  user.Press("KVCoursestoQBButton");
  user.Answer("Notice",
              "Cannot transfer data because the Quenby program is not installed in the '" +
                  state().ProgramPath + "' folder");
  user.Press("PriorTransfer");
  user.Answer("", "Transfer program not available.");
  user.When(
      "the menu", [] { return true; }, [] { WindowOf("ExitButton").Close(); });
  user.RunProgram();
  EXPECT_EQ(install.platform->started(),
            std::vector<std::string>({state().ProgramPath + "PRIORXFR.EXE qb"}));
}

TEST_F(DesktopTest, AsksForALibraryAndFillsAScorecard) {
  user.When(
      "the menu", [] { return Operator::Find("ExitButton") != nullptr; },
      [] {
        auto& frame = dynamic_cast<wxFrame&>(WindowOf("ExitButton"));
        const wxMenu& tools = *frame.GetMenuBar()->GetMenu(0);
        ASSERT_EQ(tools.GetMenuItemCount(), 3u);  // Kelvane's is the only library
        const int entry = tools.FindItemByPosition(0)->GetId();
        frame.CallAfter([&frame, entry] { frame.ProcessCommand(entry); });
      });
  user.Answer(
      "Course library",
      "This is Kelvane's own course library:\n" + state().KVDataPath +
          "kvcrs.dat\n\nWhat you change in it is changed for Kelvane as well. Close Kelvane "
          "before you go on.\n\nOpen it?");
  user.Do([&] { host.Operate([&] { OpenScreen(state(), host, "CourseTable", "KV"); }); });
  user.Type("CourseGrid", WXK_DELETE);
  user.AnswerInput("DELETE COURSE?", "NO", "YES");
  user.Await("one course", [&] {
    return dynamic_cast<CourseTable&>(host.Load("CourseTable")).CourseGrid.rows() == 1;
  });
  user.Press("EditCourseButton");
  user.Press("EditTeeButton");
  user.Press("ActiveTee");
  auto& tee = dynamic_cast<CourseTee&>(host.Load("CourseTee"));
  user.Press("FMensRating");
  user.When(
      "the rating", [&] { return tee.focus() == &tee.FMensRating; },
      [&] {
        for (const char key : {'7', '1', '\t', '1', '1', '3', '\t'}) user.TypeNow(key);
      });
  user.When(
      "the next field", [&] { return tee.focus() == &tee.FLadiesRating; },
      [&] {
        EXPECT_EQ(tee.FMensRating.text(), "71.0");
        EXPECT_EQ(tee.FMensSlope.text(), "113");
      });
  user.Press("FTeeName");
  user.Type("FTeeName", 'x');
  user.Press("FPar");
  user.AnswerInput("Change tee name?", "No", "YES");
  user.Await("the new name", [&] { return tee.FTeeName.text() != "White"; });
  user.Press("FPar");
  user.Type("FPar", '4');
  user.When(
      "the next hole", [&] { return tee.focus() == &tee.FPar[1]; },
      [&] { EXPECT_NE(tee.FParOut.caption(), "0"); });
  for (const char* title : {"Cancel", "CANCEL"}) {
    user.Type("CancelButton", WXK_ESCAPE);
    user.Answer(title, "Cancel changes?");
  }
  user.Press("CloseButton");
  user.Press("ExitButton");
  user.RunProgram();
}

TEST_F(DesktopTest, AQuestionIsAnsweredByEnterAndRemembered) {
  std::vector<std::string> answers;
  const auto ask = [&] {
    host.Operate([&] {
      host.BeginRun();  // a run may ask, too
      TipBox& tip = SharedTipBox(host);
      tip.SetMessageType(TipBox::kQuestion);
      tip.SetMessageTitle("Again?");
      tip.SetMessageText("These scores have been posted before.\rPost them again?");
      host.EndRun();
    });
    answers.push_back(SharedTipBox(host).ResultReturned());
  };
  user.Do(ask);
  user.Type("NoButton", WXK_RETURN);
  user.Await("No", [&] { return answers.size() == 1; });
  user.Do(ask);
  ExpectMessage("These scores have been posted before.\nPost them again?");
  CheckBox& memory = SharedTipBox(host).ShowMessage;
  user.When(
      "hiding", [] { return true; }, [&] { memory.SetVisible(false); });
  user.When(
      "hidden", [] { return Operator::Find("ShowMessage") == nullptr; },
      [&] { memory.SetVisible(true); });
  user.Press("ShowMessage");
  user.Press("YesButton");
  user.Await("Yes", [&] { return answers.size() == 2; });
  user.Do(ask);
  user.Await("no question", [&] { return answers.size() == 3; });
  user.Press("ExitButton");
  user.RunProgram();
  EXPECT_EQ(answers, std::vector<std::string>({"NO", "YES", "YES"}));
}

// Covers both pickers, ticks in the grid by mouse and by keyboard, the run, and the report.
TEST_F(DesktopTest, TransfersGolfers) {
  std::string golfer(2804, ' ');
  Put16(golfer, 0, {1});
  Put(golfer, 4, {std::int32_t{5}});
  golfer[416] = 'C';
  std::string header(781, ' ');
  header[152] = 18;
  install.folder.Write("kvdata/club.kv5", header);
  install.folder.Write("kvdata/club.kvg", golfer);
  user.Press("KVtoQBButton");
  user.Press("SourceButton");
  user.When(
      "the picker", [&] { return host.IsShown("LoadRoster"); },
      [&] { Load<LoadRoster>(host).grid1.SetActiveRow(1); });
  user.Press("LoadButton");
  user.Press("DestButton");
  user.Press("LoadButton");
  user.When(
      "the grid",
      [&] { return !host.IsShown("LoadRosters") && Operator::Find("grid1")->IsEnabled(); },
      [] { EXPECT_EQ(dynamic_cast<wxGrid&>(*Operator::Find("grid1")).GetNumberRows(), 16); });
  const auto await_ticks = [&](const std::string& ticks) {
    user.Await("the ticks " + ticks, [&, ticks] {
      const Grid& grid = dynamic_cast<KVtoQB&>(host.Load("KVtoQB")).grid1;
      return grid.text(2, 1) + grid.text(2, 2) + grid.text(2, 3) == ticks;
    });
  };
  user.PressCell("grid1", 2, 1);
  await_ticks("101");
  for (const int key : {WXK_UP, WXK_LEFT, WXK_SPACE}) user.Type("grid1", key);
  await_ticks("111");
  user.PressCell("grid1", 0, 1);  // always ticked
  user.Type("grid1", WXK_SPACE);
  user.PressCell("grid1", 2, 1);
  await_ticks("110");
  user.Press("TransferButton");
  ExpectMessage("CLUB TRANSFERED:\n0 golfers updated.\n1 new golfers added.\n" + wxString('=', 30) +
                "\n");
  user.Press("OKButton");
  user.Press("ExitButton");
  user.RunProgram();
  const std::string quenby = install.folder.Read("qbdata/QBGOLFER.Q9D");
  ASSERT_EQ(quenby.size(), 10 * 1867u);
  EXPECT_EQ(quenby[9 * 1867 + 424], 'C');
}

// The golfers whom a run has left out are shown after its report.
TEST_F(DesktopTest, FaultsThatARunCarriedOnOverAreShown) {
  std::string golfer(2804, ' ');
  Put16(golfer, 0, {1});
  install.folder.Write("kvdata/club.kv5", std::string(781, ' '));
  install.folder.Write("kvdata/club.kvg", golfer);
  install.folder.Write("qbdata/KVtoQB.DAT", "0\r\n0\r\n\"Members 001\"\r\n\"club\"\r\n");
  install.platform->Fail({.only = Operation::kRead, .name = "club.kvg"});
  user.Press("KVtoQBButton");
  user.Press("TransferButton");
  user.Press("OKButton");
  user.Answer("Faults",
              "The transfer has carried on over a fault:\nThe golfer at place 1 was left out: " +
                  state().KVDataPath + "club.kvg failed on purpose.");
  user.Press("ExitButton");
  user.RunProgram();
}

TEST(DesktopHostTest, AScreenWithoutAViewIsAnErrorToTell) {
  TestInstall install;
  install.host.reset();
  DesktopHost host(install.state(), Application::Screens(), {});
  EXPECT_FALSE(host.HasScreen("TipBox"));
  EXPECT_EQ(ErrorOf([&] { host.Load("TipBox"); }), 5);
}

TEST(InvocationTest, TakesAFolderAndOneWord) {
  struct Case {
    std::vector<std::wstring> arguments;
    const char* install;
    const char* word;
    const char* answer;     // its beginning
    const char* complaint;  // its beginning
  };
  const Case kCases[] = {
      {{}, "", "", "", ""},
      {{L"zd"}, "", "zd", "", ""},
      {{L"/x"}, "", "/x", "", ""},
      {{L"--install", L"Gr\u00FCn/\u4E2D", L"\u00E9"}, "Gr\xC3\xBCn/\xE4\xB8\xAD", "\xE9", "", ""},
      {{L"QB", L"--install=a b"}, "a b", "QB", "", ""},
      {{L"--version"}, "", "", "Golf Transfer ", ""},
      {{L"--help"}, "", "", "Usage: golf-transfer [", ""},
      {{L"ZD", L"QB"}, "", "", "", "Unexpected parameter 'QB'"},
      {{L"--install"}, "", "", "", "Option 'install' requires a value."},
  };
  for (const Case& c : kCases) {
    std::vector<std::wstring> arguments = {L"golf-transfer"};
    arguments.insert(arguments.end(), c.arguments.begin(), c.arguments.end());
    std::vector<wchar_t*> pointers;
    for (std::wstring& argument : arguments) pointers.push_back(argument.data());
    wxCmdLineParser parser(static_cast<int>(pointers.size()), pointers.data());
    const Invocation invocation = ParseInvocation(parser);
    SCOPED_TRACE(invocation.answer + invocation.complaint);
    EXPECT_EQ(invocation.answer.substr(0, std::string(c.answer).size()), c.answer);
    EXPECT_EQ(invocation.complaint.substr(0, std::string(c.complaint).size()), c.complaint);
    if (!invocation.complaint.empty()) continue;
    EXPECT_EQ(invocation.install, c.install);
    EXPECT_EQ(invocation.word, c.word);
  }
}

}  // namespace
}  // namespace golf
