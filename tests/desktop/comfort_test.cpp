// Works with the keyboard as an operator does, on the demonstration install.

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/clipbrd.h>
#include <wx/ctrlsub.h>
#include <wx/gauge.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "desktop/demo_desktop.h"
#include "desktop/operator.h"
#include "screens/courses/course_form.h"
#include "screens/courses/course_tee.h"
#include "screens/results/results_screen.h"
#include "screens/rosters/load_rosters.h"
#include "screens/transfers/kv_to_qb.h"
#include "screens/transfers/qb_to_kv.h"
#include "stores/course/course_layout.h"
#include "support/bytes.h"

namespace golf {
namespace {

class ComfortTest : public testing::Test {
 protected:
  ComfortTest() { host.Show(host.Load("TransferMenu")); }

  static bool HasFocus(const std::string& name) {
    const wxWindow* widget = Operator::Find(name);
    return widget != nullptr && widget->IsDescendant(wxWindow::FindFocus());
  }
  void AwaitFocus(const std::string& name) {
    user.Await("the focus on " + name, [name] { return HasFocus(name); });
  }
  // Types keys one after the other. Each widget must have the focus before its key.
  struct Key {
    const char* focus;
    int key;
  };
  void TypeAll(std::initializer_list<Key> keys) {
    for (const Key& key : keys) {
      AwaitFocus(key.focus);
      user.Type(key.focus, key.key);
    }
  }
  void Leave(const char* button) {
    user.Press(button);
    user.Press("ExitButton");
    user.RunProgram();
  }
  // Makes another program hold the files of a roster.
  void Hold(const std::string& roster) {
    demo.install.platform->Fail({.error = ErrorNumber::kPermissionDenied,
                                 .only = Operation::kOpen,
                                 .name = roster + ".kv5",
                                 .stays = true});
  }

  Demo<DesktopHost> demo;
  DesktopHost& host = demo.host;
  Operator user;
};

TEST_F(ComfortTest, LeaguePickersWorkWithTheKeyboard) {
  const struct {
    const char* menu;
    const char* finder;
    const char* leave;
  } kScreens[] = {{"KVtoZDButton", "FindZDButton", "CancelButton"},
                  {"ZDtoQBButton", "SourceButton", "CancelButton"},
                  {"ZDtoKVButton", "SourceButton", "ExitButton"}};
  user.Press("ZDtoQBButton");
  user.Press("TransferButton");
  user.Answer("Message", "First select the source league");
  AwaitFocus("SourceButton");
  user.Press("CancelButton");
  for (const auto& screen : kScreens) {
    user.Press(screen.menu);
    user.Press(screen.finder);
    TypeAll({{"LeagueList", WXK_DOWN},
             {"LeagueList", WXK_TAB},
             {"CancelLeague", WXK_TAB},
             {"OKLEague", WXK_TAB},
             {"LeagueList", WXK_ESCAPE}});
    AwaitFocus(screen.finder);
    user.Press(screen.finder);
    TypeAll({{"LeagueList", WXK_RETURN}});
    user.Await("the league", [] { return Operator::Find("LeagueList") == nullptr; });
    user.Press(screen.leave);
  }
  user.Type("KVtoQBButton", WXK_ESCAPE);
  user.Press("ExitButton");
  user.RunProgram();
}

TEST_F(ComfortTest, ASavedRosterIsActiveAndCancelKeepsTheText) {
  auto& screen = dynamic_cast<KVtoQB&>(host.Load("KVtoQB"));
  const auto row_is = [this](const char* name) {
    if (!host.IsShown("LoadRosters") || !HasFocus("grid1")) return false;
    const Grid& list = dynamic_cast<LoadRosters&>(host.Load("LoadRosters")).grid1;
    return list.text(1, list.active_row()) == name;
  };
  user.Press("KVtoQBButton");
  user.Press("DestButton");
  user.Await("no roster", [=] { return row_is("(Show ALL Rosters)"); });
  user.Press("NewButton");
  user.Answer("New Roster", "Start a new roster?", 'Y', wxMOD_ALT);
  TypeAll({{"Text1", 'z'}, {"Text1", WXK_RETURN}});
  user.Await("the new roster", [=] { return row_is("z"); });
  user.Press("EditButton");
  TypeAll({{"Text1", WXK_END}, {"Text1", 'y'}, {"Text1", WXK_RETURN}});
  user.Await("the edited roster", [=] { return row_is("zy"); });
  user.Type("grid1", WXK_RETURN);
  user.Await("the text", [&] { return screen.TournamentRoster.text().starts_with("zy   "); });
  user.Press("DestButton");
  user.Await("the roster of the box", [=] { return row_is("zy"); });
  user.Type("grid1", WXK_ESCAPE);
  user.When(
      "the screen", [&] { return !host.IsShown("LoadRosters"); },
      [&] {
        EXPECT_TRUE(screen.TournamentRoster.text().starts_with("zy   "));
        screen.TournamentRoster.SetText("Somebody   007");
      });
  user.Press("DestButton");
  user.Type("grid1", WXK_ESCAPE);
  user.When(
      "the screen", [&] { return !host.IsShown("LoadRosters"); },
      [&] { EXPECT_EQ(screen.TournamentRoster.text(), "Somebody   007"); });
  user.Press("ExitButton");
  user.Press("ExitButton");
  user.RunProgram();
}

TEST_F(ComfortTest, AHeldRosterIsNamedAndAnotherCanBeChosen) {
  const std::string reason =
      "Another program has the roster CLUB18 open. Close Kelvane, or choose another roster.";
  demo.install.folder.Write("qbdata/KVtoQB.DAT", "0\r\n0\r\n\"Larkfield 001\"\r\n\"CLUB18\"\r\n");
  demo.install.folder.Write("qbdata/QBtoKV.DAT", "\"NO\"\r\n\"CLUB18\"\r\n");
  user.Next([this] { Hold("club18"); });
  user.Press("KVtoQBButton");
  user.Answer("Golf Transfer", reason);
  user.Press("SourceButton");
  user.Await("the picker", [this] { return host.IsShown("LoadRoster"); });
  TypeAll({{"grid1", WXK_DOWN}, {"grid1", WXK_RETURN}});
  user.When(
      "the other roster", [this] { return !host.IsShown("LoadRoster"); },
      [this] {
        EXPECT_EQ(dynamic_cast<KVtoQB&>(host.Load("KVtoQB")).HandicapRoster.text(), "NINE9");
      });
  user.Press("ExitButton");
  user.Press("QBtoKVButton");
  user.When(
      "the reason", [] { return Operator::Find("HandicapRosterNote") != nullptr; },
      [=] {
        wxString shown = Operator::Find("HandicapRosterNote")->GetLabel();
        shown.Replace("\n", " ");
        EXPECT_EQ(shown.utf8_string(), reason);
      });
  user.Next([this] { demo.install.platform->Heal(); });
  Leave("ExitButton");
}

// Covers the line below the holes, the decimal comma and Cancel.
TEST_F(ComfortTest, TheTeeEditorShowsWhatIsOddAndAsksOnlyAfterAChange) {
  user.Do([this] {
    host.Operate([this] { OpenScreen(demo.install.state(), host, "CourseTable", "KV"); });
  });
  user.Press("EditCourseButton");
  user.Press("EditTeeButton");
  auto& tee = dynamic_cast<CourseTee&>(host.Load("CourseTee"));
  demo.install.state().decimal_comma = true;
  const auto odd = [] { return Operator::Find("Odd")->GetLabel().utf8_string(); };
  AwaitFocus("OKButton");
  user.Type("FPar", WXK_ESCAPE);
  user.Await("the form", [this] { return !host.IsShown("CourseTee"); });
  user.PressCell("grid1", 0, 0);
  user.Type("grid1", WXK_RETURN);
  AwaitFocus("OKButton");
  user.Press("FPar");
  TypeAll({{"FPar", '5'}});
  user.Type("FPar", WXK_ESCAPE);
  user.Answer("Cancel", "Cancel changes?");  // Enter means No
  user.Press("FMensRating");
  AwaitFocus("FMensRating");
  for (const int key : {int{WXK_HOME}, int{WXK_DELETE}, int{WXK_DELETE}, int{WXK_DELETE},
                        int{WXK_DELETE}, int{'7'}, int{'1'}, int{','}, int{'5'}}) {
    user.Type("FMensRating", key);
  }
  user.When(
      "the point", [&] { return tee.FMensRating.text() == "71.5"; },
      [&] {
        tee.FPar[0].Enter("42");
        tee.FPar[3].Enter("0");
        tee.FPar[4].Enter("0");
        tee.FHandicap[8].Enter("0");
      });
  user.When(
      "the odd entries", [=] { return odd().find("par") != std::string::npos; },
      [=] {
        wxString shown = Operator::Find("Odd")->GetLabel();
        shown.Replace("\n", " ");
        EXPECT_EQ(
            shown,
            "Check: ladies' 18 hole Rating must be between 45 and 80; par must be between 1 and "
            "6 on hole 1, 4-5; handicap is missing or repeated on hole 9");
      });
  user.Type("FPar", WXK_ESCAPE);
  user.Answer("Cancel", "Cancel changes?", 'Y', wxMOD_ALT);
  user.Await("the form", [this] { return !host.IsShown("CourseTee"); });
  user.Type("CancelButton", WXK_ESCAPE);
  user.Await("the table", [this] { return !host.IsShown("CourseForm"); });
  Leave("CloseButton");
}

// Covers the gauge, the focus after a run, the name of a remembered league, and the kept size.
TEST_F(ComfortTest, ARunEndsWithAFullGaugeAndAWindowKeepsItsSize) {
  const wxSize grown(60, 40);
  wxSize size;
  user.Press("ZDtoKVButton");
  user.Press("SourceButton");
  TypeAll({{"LeagueList", WXK_END}, {"LeagueList", WXK_RETURN}});
  user.Press("DestButton");
  user.Await("the picker", [this] { return host.IsShown("LoadRoster"); });
  TypeAll({{"grid1", WXK_DOWN}, {"grid1", WXK_RETURN}});
  user.Await("the roster", [this] { return !host.IsShown("LoadRoster"); });
  user.Press("TransferButton");
  user.Await("the full gauge", [] {
    const auto* gauge = dynamic_cast<wxGauge*>(Operator::Find("Progress"));
    return gauge != nullptr && gauge->GetValue() == gauge->GetRange();
  });
  user.Answer("Notice", "Transfer Complete...2 scores transfered.");
  user.Await("the log", [] { return HasFocus("Message"); });
  user.Next([&] {
    wxWindow& window = *wxGetTopLevelParent(Operator::Find("Message"));
    size = window.GetClientSize() + grown;
    window.SetClientSize(size);
  });
  user.Press("ExitButton");
  user.Press("ZDtoKVButton");
  user.When(
      "the screen again", [] { return Operator::Find("LeagueRoster") != nullptr; },
      [&] {
        EXPECT_EQ(wxGetTopLevelParent(Operator::Find("Message"))->GetClientSize(), size);
        Operator::Find("LeagueRoster")->SetFocus();
      });
  user.When(
      "the league's name", [] { return HasFocus("LeagueRoster"); },
      [] {
        auto& box = dynamic_cast<wxTextCtrl&>(*Operator::Find("LeagueRoster"));
        EXPECT_EQ(box.GetInsertionPoint(), 0);
        EXPECT_EQ(box.GetStringSelection(), "");
      });
  Leave("ExitButton");
}

TEST_F(ComfortTest, AListIsUsedWithTheKeyboard) {
  const auto clipboard = [] {
    wxTextDataObject text;
    const wxClipboardLocker locker;
    wxTheClipboard->GetData(text);
    return text.GetText().utf8_string();
  };
  user.Do([this] { host.Operate([&] { OpenScreen(demo.install.state(), host, "Results", ""); }); });
  const auto await_row = [this](int row) {
    user.Await("row " + std::to_string(row), [this, row] {
      const Grid& list = dynamic_cast<Results&>(host.Load("Results")).tables.grid1;
      return list.active_row() == row && list.text(2, row).starts_with("E");
    });
  };
  user.When(
      "the list", [] { return Operator::Find("grid1") != nullptr; },
      [] { Operator::Find("grid1")->SetFocus(); });
  TypeAll({{"grid1", 'e'}});
  await_row(4);
  user.Next([this] { user.TypeNow('C', wxMOD_CONTROL); });
  user.Await("one row", [=] {
    return clipboard().find("Eames, Walt\t21\tC") != std::string::npos &&
           clipboard().find("Idris") == std::string::npos;
  });
  user.Next([this] { user.TypeNow('A', wxMOD_CONTROL); });
  user.Next([this] { user.TypeNow('C', wxMOD_CONTROL); });
  user.Await("all rows", [=] {
    const std::string text = clipboard();
    return text.starts_with("Place\tName\tHandicap") &&
           std::count(text.begin(), text.end(), '\n') == 13;
  });
  user.Type("grid1", WXK_ESCAPE);
  user.Await("the menu", [this] { return !host.IsShown("Results"); });
  user.RunToExit();
}

TEST_F(ComfortTest, ALongListOfCoursesIsShownWhole) {
  static constexpr int kCourses = 2000;
  std::string courses = demo.install.folder.Read("kvdata/kvcrs.dat");
  Record<CourseLayout> course;
  course.Set<"activeflag">(1);
  course.Set<"HoleNumFlag">(18);
  for (int i = 0; i < kCourses; ++i) {
    course.Set<"Name">("Course " + std::to_string(i));
    courses += course.Bytes();
  }
  demo.install.folder.Write("kvdata/kvcrs.dat", courses);
  std::string index = demo.install.folder.Read("kvdata/ALLCRSKV.INX");
  const int first = static_cast<int>(courses.size() / kCourseRecordLength) - kCourses + 1;
  std::size_t end = index.size();
  index.resize(end + 2 * kCourses);
  for (int i = 0; i < kCourses; ++i, end += 2) Put16(index, end, {first + i});
  Put16(index, 0, {static_cast<int>(index.size() / 2) - 1});
  demo.install.folder.Write("kvdata/ALLCRSKV.INX", index);
  demo.install.state().InitSharedObjects();
  user.Press("QBtoKVButton");
  user.When(
      "the courses", [] { return Operator::Find("CourseCombo") != nullptr; },
      [] {
        auto& list = dynamic_cast<wxControlWithItems&>(*Operator::Find("CourseCombo"));
        EXPECT_GT(static_cast<int>(list.GetCount()), kCourses);
        EXPECT_EQ(list.GetStringSelection(), "Larkfield Golf Club");
        list.SetFocus();
      });
  const auto chosen = [this] {
    return dynamic_cast<QBtoKV&>(host.Load("QBtoKV")).CourseCombo.index();
  };
  int before = 0;
  user.Next([&, chosen] { before = chosen(); });
  TypeAll({{"CourseCombo", WXK_DOWN}});
  user.Await("the next course", [&, chosen] { return chosen() == before + 1; });
  Leave("ExitButton");
}

}  // namespace
}  // namespace golf
