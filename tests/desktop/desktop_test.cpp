#include <wx/menu.h>
#include <wx/stattext.h>

#include "core/new_target.h"
#include "desktop/demo_desktop.h"
#include "desktop/invocation.h"
#include "desktop/operator.h"
#include "outlets/help/help_page.h"
#include "screens/courses/course_table.h"
#include "screens/courses/course_tee.h"
#include "screens/rosters/load_roster.h"
#include "screens/transfers/kv_to_qb.h"
#include "screens/transfers/screen_run.h"
#include "stores/course/course_layout.h"
#include "support/bytes.h"
#include "support/file_checks.h"

namespace golf {
namespace {

// Is a host that reports progress and web pages to the test. Its function PaintNow is public for
// the tests.
class TestHost : public DesktopHost {
 public:
  using DesktopHost::DesktopHost;
  using DesktopHost::PaintNow;

  void Report(const Progress& progress) override {
    DesktopHost::Report(progress);
    if (on_progress) on_progress(progress);
  }
  void OpenInBrowser(const std::string& utf8_path) override {
    if (!has_browser) throw NumberedError(ErrorNumber::kBadCall, "No browser can be started.");
    if (starts_browser) return DesktopHost::OpenInBrowser(utf8_path);
    pages.push_back(utf8_path.substr(utf8_path.find_last_of("/\\") + 1));
  }
  std::function<void(const Progress&)> on_progress;
  bool has_browser = true;
  bool starts_browser = false;     // starts the one of the system
  std::vector<std::string> pages;  // the names of the files that were opened
};

// Waits for the roster picker, and then chooses its first roster.
void PickKelvaneRoster(Operator& user, DesktopHost& host) {
  user.When(
      "the picker", [&] { return host.IsShown("LoadRoster"); },
      [&] { Load<LoadRoster>(host).grid1.SetActiveRow(1); });
  user.Press("LoadButton");
}

// Runs the desktop program on a small install, with a simulated operator.
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
  // Tries each way in which an operator could close the screen during a run.
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
  // Opens the course transfer and starts it. At the second course the operator tries to close the
  // screen.
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

// Returns the name of the help's file that begins at a heading.
std::string HelpFile(const std::string& heading) {
  return "golf-transfer-help-" + std::string(ProgramVersion()) + "-" + heading + "-page.html";
}

TEST_F(DesktopTest, F1OpensTheHelpAtTheWindowInFront) {
  std::size_t expected = 0;
  const auto await_page = [&] {
    ++expected;
    user.Await("a page", [this, expected] { return host.pages.size() == expected; });
  };
  const auto leave = [this](const char* button, const char* screen) {
    user.Press(button);
    user.Await("the end of a window", [=, this] { return !host.IsShown(screen); });
  };
  user.Press("KVtoQBButton");
  user.Type("HandicapRoster", WXK_F1);
  await_page();
  user.Press("SourceButton");
  user.Type("grid1", WXK_F1);
  await_page();
  leave("CancelButton", "LoadRoster");
  leave("ExitButton", "KVtoQB");
  user.Type("KVtoQBButton", WXK_F1);
  await_page();
  user.ChooseInMenu(2, 0, [](const wxMenu& menu, const wxMenuItem& entry) {
    EXPECT_EQ(menu.GetTitle(), "H&elp");
    EXPECT_EQ(entry.GetItemLabel(), "&Contents\tF1");
  });
  await_page();
  user.RunToExit();
  EXPECT_EQ(host.pages,
            (std::vector<std::string>{HelpFile("KVtoQB"), HelpFile("LoadRoster"),
                                      HelpFile("TransferMenu"), HelpFile("TransferMenu")}));
}

TEST_F(DesktopTest, F1DoesNothingDuringARun) {
  host.on_progress = [this](const Progress& progress) {
    if (progress.done != 2) return;
    user.TypeNow(WXK_F1);
    host.PaintNow();
  };
  user.Press("KVCoursestoQBButton");
  user.Press("TransferCourses");
  ExpectThreeCourses();
  user.RunToExit();
  EXPECT_TRUE(host.pages.empty());
}

TEST_F(DesktopTest, WithoutABrowserABoxNamesThePage) {
  host.has_browser = false;
  const std::string path = TemporaryFolder() + HelpFile("KVCoursestoQB");
  user.Press("KVCoursestoQBButton");
  user.Type("TransferCourses", WXK_F1);
  user.Answer("Notice",
              "No browser can be started.\n\nThe page is in this file. Open it yourself:\n" + path);
  user.Press("CancelButton");
  user.RunToExit();
  EXPECT_TRUE(std::filesystem::exists(path));
}

#ifdef __WXGTK__
// The program xdg-open of the test notes the address, and ends as if there were no browser.
TEST_F(DesktopTest, ABoxNamesThePageAlsoIfTheSystemFindsNoBrowserLater) {
  host.starts_browser = true;
  install.folder.Write("programs/xdg-open",
                       "#!/bin/sh\necho \"$1\" > \"$(dirname \"$0\")/address\"\nexit 3\n");
  std::filesystem::permissions(install.folder.Path("programs/xdg-open"),
                               std::filesystem::perms::owner_all);
  wxString before;
  wxGetEnv("PATH", &before);
  wxSetEnv("PATH", install.folder.Path("programs") + ":" + before);
  const std::string path = TemporaryFolder() + HelpFile("KVCoursestoQB");
  user.Press("KVCoursestoQBButton");
  user.Type("TransferCourses", WXK_F1);
  user.Answer("Notice",
              "No browser can be started.\n\nThe page is in this file. Open it yourself:\n" + path);
  user.Press("CancelButton");
  user.RunToExit();
  wxSetEnv("PATH", before);
  EXPECT_EQ(install.folder.Read("programs/address"), "file://" + path + "\n");
}
#endif

TEST_F(DesktopTest, TheHelpButtonOfAScreenOpensTheHelp) {
  user.Do([this] { host.Operate([this] { OpenScreen(state(), host, "CourseTable", "KV"); }); });
  user.Press("Help");
  user.Await("a page", [this] { return host.pages.size() == 1; });
  user.Press("CloseButton");
  user.When(
      "the end of the library", [this] { return !host.IsShown("CourseTable"); }, [] {});
  user.RunToExit();
  EXPECT_EQ(host.pages, std::vector<std::string>{HelpFile("CourseTable")});
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
  user.RunToExit();
  EXPECT_TRUE(seen_in_run);
  TestInstall other;  // the same transfer without a display
  other.folder.Write("kvdata/kvcrs.dat", install.folder.Read("kvdata/kvcrs.dat"));
  other.Open("KVCoursestoQB",
             [&](Screen& screen) { other.host->Press(screen, "TransferCourses"); });
  for (const std::string name : {"qbcrs.dat", "9CRSQB.INX", "18CRSQB.INX", "ALLCRSQB.INX"}) {
    EXPECT_TRUE(Holds(install.folder, "qbdata/" + name, other.folder.Read("qbdata/" + name)));
  }
  user.RunUntil("the caller", [&] { return install.folder.Exists("started"); });
}

TEST_F(DesktopTest, AnErrorInARunLeavesTheScreenThere) {
  install.platform->Fail(
      {.error = ErrorNumber::kDiskFull, .only = Operation::kWrite, .name = "qbcrs.dat"});
  StartTransfer();
  user.Answer("Golf Transfer", "Error # 61 was generated by Golf Transfer: " + state().QBDataPath +
                                   "qbcrs.dat failed on purpose.");
  user.Press("TransferCourses");  // the keys of the first run have not closed it
  ExpectThreeCourses();
  user.Press("KVCoursestoQBButton");
  user.Type("CancelButton", WXK_ESCAPE);
  user.Await("Cancel", [] { return Operator::Find("CancelButton") == nullptr; });
  user.RunToExit();
}

TEST_F(DesktopTest, NamesAMissingSiblingAndClosesByItsWindow) {
  install.folder.Remove("qbdata");
  install.platform->StartForReal();
  state().CommandLine = "qb";  // not the word of any sibling
  user.Press("KVCoursestoQBButton");
  user.Answer("Notice",
              "Cannot transfer data because the Quenby program is not installed in the '" +
                  state().ProgramPath + "' folder");
  user.Press("PriorTransfer");
  user.Answer("", "Transfer program not available.");
  user.Next([] { WindowOf("ExitButton").Close(); });
  user.RunProgram();
  EXPECT_EQ(install.platform->started(),
            std::vector<std::string>({state().ProgramPath + "PRIORXFR.EXE qb"}));
}

TEST_F(DesktopTest, AsksForALibraryAndFillsAScorecard) {
  user.ChooseInMenu(0, 2, [](const wxMenu& tools, const wxMenuItem&) {
    EXPECT_EQ(tools.GetMenuItemCount(), 8u);  // only Kelvane has a course library
  });
  user.Answer(
      "Course library",
      "This is Kelvane's own course library:\n" + state().KVDataPath +
          "kvcrs.dat\n\nWhat you change in it is changed for Kelvane as well. Close Kelvane "
          "before you go on.\n\nOpen it?");
  user.Do([&] { host.Operate([&] { OpenScreen(state(), host, "CourseTable", "KV"); }); });
  user.Await("the focus on the list", [] {
    const wxWindow* list = Operator::Find("CourseGrid");
    return list != nullptr && list->IsDescendant(wxWindow::FindFocus());
  });
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
  user.Type("CancelButton", WXK_ESCAPE);
  user.Answer("Cancel", "Cancel changes?");  // Enter means No
  user.Type("CancelButton", WXK_ESCAPE);
  user.Answer("Cancel", "Cancel changes?", 'Y', wxMOD_ALT);
  user.Await("the course", [&] { return !host.IsShown("CourseTee"); });
  user.Type("CancelButton", WXK_ESCAPE);  // nothing has been changed, so there is no question
  user.Press("CloseButton");
  user.RunToExit();
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
  user.Next([&] { memory.SetVisible(false); });
  user.When(
      "hidden", [] { return Operator::Find("ShowMessage") == nullptr; },
      [&] { memory.SetVisible(true); });
  user.Press("ShowMessage");
  user.Press("YesButton");
  user.Await("Yes", [&] { return answers.size() == 2; });
  user.Do(ask);
  user.Await("no question", [&] { return answers.size() == 3; });
  user.RunToExit();
  EXPECT_EQ(answers, std::vector<std::string>({"NO", "YES", "YES"}));
}

// Covers both pickers, ticks in the grid by mouse and by keyboard, the run, and its report. The
// golfers that a run has left out are shown after its report.
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
  PickKelvaneRoster(user, host);
  user.Press("DestButton");
  user.Press("LoadButton");
  user.When(
      "the grid",
      [&] { return !host.IsShown("LoadRosters") && Operator::Find("grid1")->IsEnabled(); },
      [] { EXPECT_EQ(Operator::RowCount("grid1"), 16); });
  const auto await_ticks = [&](const std::string& ticks) {
    user.Await("the ticks " + ticks, [&, ticks] {
      const Grid& grid = dynamic_cast<KVtoQB&>(host.Load("KVtoQB")).grid1;
      return grid.text(2, 1) + grid.text(2, 2) + grid.text(2, 3) == ticks;
    });
  };
  user.PressCell("grid1", 2, 1);
  await_ticks("101");
  for (const int key : {WXK_UP, WXK_SPACE}) user.Type("grid1", key);
  await_ticks("111");
  user.PressCell("grid1", 0, 1);  // always ticked
  user.Type("grid1", WXK_SPACE);
  user.PressCell("grid1", 2, 1);
  await_ticks("110");
  user.Press("TransferButton");
  ExpectMessage("CLUB TRANSFERED:\n0 golfers updated.\n1 new golfers added.\n" + wxString('=', 30) +
                "\n");
  for (const char* button : {"OKButton", "KVtoQBButton"}) user.Press(button);
  user.Next([&] { install.platform->Fail({.only = Operation::kRead, .name = "club.kvg"}); });
  user.Press("TransferButton");
  user.Press("OKButton");
  user.Answer("Faults",
              "The transfer has carried on over a fault:\nThe golfer at place 1 was left out: " +
                  state().KVDataPath + "CLUB.kvg failed on purpose.");
  user.Answer("Left out",
              "The transfer has left out:\n1 stopped by an error: " + state().KVDataPath +
                  "CLUB.kvg failed on purpose.\n    The golfer at place 1");
  user.RunToExit();
  const std::string quenby = install.folder.Read("qbdata/QBGOLFER.Q9D");
  ASSERT_EQ(quenby.size(), 10 * 1867u);
  EXPECT_EQ(quenby[9 * 1867 + 424], 'C');
}

// Transfers the courses from the list of a preview, undoes the transfer, and looks at both runs.
TEST_F(DesktopTest, PreviewsATransferAndUndoesIt) {
  const auto choose = [&](std::size_t entry, const std::string& caption) {
    user.ChooseInMenu(1, entry, [caption](const wxMenu&, const wxMenuItem& item) {
      EXPECT_EQ(item.GetItemLabel().utf8_string(), caption);
      EXPECT_EQ(item.IsEnabled(), !caption.ends_with("transfer..."));
    });
  };
  const auto await_titles = [&](const std::string& first, const std::string& last) {
    user.Await("the list from " + first + " to " + last, [first, last] {
      return Operator::CellText("ChangeList", 0, 0) == first &&
             Operator::CellText("ChangeList", -1, 0) == last;
    });
  };
  host.clock = [] { return DateFromCivil({2026, 5, 12, 14, 32, 0}); };
  choose(0, "&Undo last transfer...");
  user.Press("KVCoursestoQBButton");
  user.Press("PreviewButton");
  await_titles("qbdata/qbcrs.dat", "Pe\u00F1on");
  user.Next([] {
    EXPECT_EQ(wxGetTopLevelParent(Operator::Find("ChangeList"))->GetLabel(), "What would change");
    bool marked = false;
    for (const wxWindow* window : wxTopLevelWindows) {
      if (window->GetLabel() == "Preview - Transfer COURSES from Kelvane to Quenby") marked = true;
    }
    EXPECT_TRUE(marked);
  });
  user.PressHeading("ChangeList", 0);
  await_titles("Dunes & West", "qbdata/qbcrs.dat");
  user.PressHeading("ChangeList", 0);
  await_titles("qbdata/qbcrs.dat", "Dunes & West");
  user.Next([&] { EXPECT_FALSE(install.folder.Exists("qbdata/qbcrs.dat")); });
  user.Press("TransferNowButton");
  ExpectThreeCourses();
  user.Next([&] { EXPECT_TRUE(install.folder.Exists("qbdata/qbcrs.dat")); });
  choose(0, "&Undo last transfer (courses to QB, today 14:32, 3 courses)...");
  user.Answer("Undo",
              "Undo this transfer?\n\ncourses to QB, today 14:32\n\nIt would change: 4 files "
              "(4 deleted)",
              'Y', wxMOD_ALT);
  user.Answer("Undo", "courses to QB, today 14:32: undone.");
  user.Next([&] { EXPECT_FALSE(install.folder.Exists("qbdata/qbcrs.dat")); });
  choose(1, "&Transfers...");
  user.When(
      "the runs", [] { return Operator::Find("RunList") != nullptr; },
      [] { EXPECT_EQ(Operator::RowCount("RunList"), 2); });
  user.Type("RunList", WXK_ESCAPE);
  user.Await("the menu", [&] { return !host.IsShown("TransferHistory"); });
  user.RunToExit();
}

TEST_F(DesktopTest, EscapeMeansNoAlsoIfTheDefaultIsYes) {
  std::string answers;
  for (const std::size_t chosen : {0u, 1u}) {
    user.Do([&, chosen] {
      const BoxButton answer = host.Ask(Box{.title = "Forget",
                                            .text = "Sure?",
                                            .buttons = {BoxButton::kYes, BoxButton::kNo},
                                            .default_button = chosen});
      answers += answer == BoxButton::kYes ? 'Y' : 'N';
    });
    user.Answer("Forget", "Sure?", WXK_ESCAPE);
  }
  user.RunToExit();
  EXPECT_EQ(answers, "NN");
}

// Returns the line in the open question with the name of the golfer, or "none" if no question is
// open.
std::string GolferShown() {
  for (const wxWindow* window : wxTopLevelWindows) {
    const auto* box = dynamic_cast<const wxMessageDialogBase*>(window);
    if (box != nullptr) return box->GetExtendedMessage().utf8_string();
  }
  if (Operator::Find("Message") == nullptr) return "none";
  const wxWindow* const line = Operator::Find("Golfer");
  return line == nullptr ? "" : line->GetLabel().utf8_string();
}

// A question that comes for the third time in a run offers the same answer for the rest of the run,
// and a stop that drops the changes.
TEST_F(DesktopTest, RepeatedQuestionsCanBeAnsweredAtOnceOrStopTheRun) {
  std::string answers;
  const auto run = [&](bool tip) {
    user.Do([&, tip] {
      host.Operate([&] {
        RunTransfer(host.Load("TransferMenu"), state(), host, RunEnding::kCommit, [&] {
          ScreenRun asking(state(), host, {}, {.command = "golfers-kv-to-qb", .about = "Club"});
          state().files.gate().Delete(state().KVDataPath + "kvcrs.dat");
          for (int i = 1; i <= 5; ++i) {
            const std::string text = "Golfer " + std::to_string(i);
            asking.Group(i % 2 == 0 ? text : "Ann");  // a text that names him needs no line
            const Box box{.title = "Again?",
                          .text = text,
                          .buttons = {BoxButton::kYes, BoxButton::kNo},
                          .default_button = 1};
            const bool yes =
                tip ? asking.AskAgain("Again?", text, "") : asking.Ask(box) == BoxButton::kYes;
            answers += yes ? 'Y' : 'N';
          }
          asking.Commit({}, nullptr);
        });
      });
      answers += '.';
    });
  };
  const auto await_golfer = [&](const std::string& text) {
    user.Await("the golfer of " + text, [is_named = text == "Golfer 2"] {
      return GolferShown() == (is_named ? "" : "Golfer: Ann");
    });
  };
  for (const bool tip : {false, true}) {
    for (const bool stops : {true, false}) {
      run(tip);
      for (const char* text : {"Golfer 1", "Golfer 2"}) {
        if (tip) {
          user.Await(text, [text] {
            const auto* message = dynamic_cast<wxTextCtrl*>(Operator::Find("Message"));
            return message != nullptr && message->GetValue() == text;
          });
          await_golfer(text);
          user.Press("YesButton");
        } else {
          await_golfer(text);
          user.Answer("Again?", text, 'Y', wxMOD_ALT);
        }
      }
      await_golfer("Golfer 3");
      user.PressInBox("Again?", "Golfer 3",
                      stops ? "&Stop: nothing will have been changed"
                            : "Same &answer for the rest of this run");
      if (stops) {
        user.AwaitEndOfBox("Again?");
        user.Answer("Golf Transfer", "The transfer was stopped. Nothing has been changed.");
        user.Await("the end of the run", [&] { return answers.ends_with("YY."); });
        user.Next([&] { EXPECT_TRUE(install.folder.Exists("kvdata/kvcrs.dat")); });
      } else {
        user.Answer("Again?", "Golfer 3", WXK_ESCAPE);
      }
    }
    user.Await("the end of the run", [&] { return answers.ends_with("YYNNN."); });
    user.Next([&] {
      EXPECT_FALSE(install.folder.Exists("kvdata/kvcrs.dat"));
      install.folder.Write("kvdata/kvcrs.dat", "");
    });
  }
  user.RunToExit();
  EXPECT_EQ(answers, "YY.YYNNN.YY.YYNNN.");
}

template <class Event>
void Send(wxWindow& widget, Event event) {
  event.SetEventObject(&widget);
  widget.HandleWindowEvent(event);
}

// The screen handles a new focus after the toolkit has finished with it, but before the next event
// of the operator.
TEST(FocusTest, WhatWaitsGoesBeforeWhatComesLater) {
  Demo<BoxlessHost> demo;
  wxTopLevelWindow& window = demo.Show("CourseTee");
  auto& tee = dynamic_cast<CourseTee&>(demo.host.Load("CourseTee"));
  std::string heard;
  tee.FTeeName.on_leave = [&] { heard += "left,"; };
  tee.FTeeNameAbv.on_change = [&] { heard += "typed,"; };
  tee.OKButton.on_click = [&] { heard += "pressed,"; };
  const auto go_on_to = [&](const char* name) {
    tee.MoveFocus(&tee.FTeeName);
    demo.host.PaintNow();
    heard.clear();
    wxWindow& widget = *wxWindow::FindWindowByName(name, &window);
    Send(widget, wxFocusEvent(wxEVT_SET_FOCUS));
    EXPECT_EQ(heard, "");
    return &widget;
  };
  Send(*go_on_to("OKButton"), wxCommandEvent(wxEVT_BUTTON));
  EXPECT_EQ(heard, "left,pressed,");
  Send(*go_on_to("FTeeNameAbv"), wxCommandEvent(wxEVT_TEXT));
  EXPECT_EQ(heard, "left,typed,");
  go_on_to("FTeeNameAbv");
  Send(window, wxKeyEvent(wxEVT_CHAR_HOOK));
  EXPECT_EQ(heard, "left,");
}

TEST(FocusTest, ALostFocusGoesToAControlOnWhichEnterHasTheLeastEffect) {
  Demo<BoxlessHost> demo;
  demo.Show("LoadRoster");
  auto& picker = dynamic_cast<LoadRoster&>(demo.host.Load("LoadRoster"));
  const auto focus_after_hiding = [&](std::initializer_list<Control*> hidden) {
    Control* const focused = *hidden.begin();
    focused->SetVisible(true);
    picker.NewRosterFrame.SetVisible(true);
    picker.MoveFocus(focused);
    for (Control* control : hidden) control->SetVisible(false);
    demo.host.PaintNow();
    wxTheApp->ProcessPendingEvents();
    return picker.focus()->name();
  };
  TextBox& name = picker.NewRosterName;
  EXPECT_EQ(focus_after_hiding({&name}), "grid1");  // not the button that leaves
  EXPECT_EQ(focus_after_hiding({&name, &picker.grid1}), "DeleteButton");
  EXPECT_EQ(focus_after_hiding({&name, &picker.NewRosterFrame, &picker.DeleteButton,
                                &picker.NewButton, &picker.LoadButton}),
            "CancelButton");
}

// Posts the scores of a league, and then presses the keys that started the run once more.
TEST(FocusTest, KeysAfterATransferPostNothingAgain) {
  Demo<DesktopHost> demo;
  DesktopHost& host = demo.host;
  Operator user;
  host.Show(host.Load("TransferMenu"));
  user.Press("ZDtoKVButton");
  user.Press("SourceButton");
  for (const int key : {WXK_END, WXK_RETURN}) user.Type("LeagueList", key);  // Saturday Eighteen
  user.Press("DestButton");
  PickKelvaneRoster(user, host);
  user.Await("the roster", [&] { return !host.IsShown("LoadRoster"); });
  user.Press("TransferButton");
  user.Answer("Notice", "Transfer Complete...2 scores transfered.");
  const auto scores = [&] {
    const TempFolder& folder = demo.install.folder;
    return folder.Read("kvdata/CLUB18.kvs") + folder.Read("kvdata/CLUB18.kvg");
  };
  std::string posted;
  user.When(
      "the focus in the log", [&] { return host.Load("ZDtoKV").focus()->name() == "Message"; },
      [&] {
        posted = scores();
        for (int i = 0; i < 3; ++i) {
          user.TypeNow(WXK_RETURN);
          user.TypeNow(WXK_SPACE);
        }
      });
  user.Press("ExitButton");
  user.Await("the menu", [&] { return !host.IsShown("ZDtoKV"); });
  user.RunToExit();
  EXPECT_EQ(posted == scores(), true);
}

TEST(DesktopHostTest, AScreenWithoutAViewIsAnErrorToTell) {
  TestInstall install;
  install.host.reset();
  DesktopHost host(install.state(), Application::Screens(), {});
  EXPECT_FALSE(host.HasScreen("TipBox"));
  EXPECT_EQ(ErrorOf([&] { host.Load("TipBox"); }), 5);
}

TEST(InvocationTest, TakesAFolderAndOneWord) {
  const struct {
    const wchar_t* words;
    const char* install;
    const char* word;
    const char* answer;     // its beginning
    const char* complaint;  // its beginning
  } kCases[] = {
      {L"", "", "", "", ""},
      {L"zd", "", "zd", "", ""},
      {L"/x", "", "/x", "", ""},
      {L"..", "", "..", "", ""},
      {L"../", "../", "", "", ""},
      {L"--install Gr\u00FCn/\u4E2D \u00E9", "Gr\xC3\xBCn/\xE4\xB8\xAD", "\xE9", "", ""},
      {L"QB \"--install=a b\"", "a b", "QB", "", ""},
      {L"--version", "", "", "Golf Transfer ", ""},
      {L"--help", "", "", "Usage: ", ""},
      {L"ZD QB", "", "", "", "Unexpected parameter 'QB'"},
      {L"--install", "", "", "", "Option 'install' requires a value."},
  };
  for (const auto& c : kCases) {
    wxCmdLineParser parser{wxString(c.words)};
    const Invocation invocation = ParseInvocation(parser);
    SCOPED_TRACE(invocation.answer + invocation.complaint);
    EXPECT_TRUE(invocation.answer.starts_with(c.answer) &&
                invocation.complaint.starts_with(c.complaint));
    if (!invocation.complaint.empty()) continue;
    EXPECT_EQ(invocation.install, c.install);
    EXPECT_EQ(invocation.word, c.word);
  }
}

}  // namespace
}  // namespace golf
