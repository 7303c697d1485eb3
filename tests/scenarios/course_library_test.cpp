// Tests what the screens of a course library refuse and what they leave in the files.

#include "app/tools.h"
#include "screens/courses/course_form.h"
#include "screens/courses/course_table.h"
#include "screens/courses/course_tee.h"
#include "support/bytes.h"
#include "support/file_checks.h"

namespace golf {
namespace {

constexpr std::size_t kLength = 3226;

// Returns an active course of 18 holes with one valid tee, Blue, in slot 2.
std::string Course(const std::string& name) {
  std::string bytes = Pattern(kLength);
  bytes.replace(216, 1010, 1010, '\0');  // from the ratings to the link
  Put16(bytes, 0, {1, 18});
  PutText(bytes, 4, 30, name);
  bytes.replace(158, 6, std::string("\0\xFF\0\0\0\0", 6));
  Put16(bytes, 164, {4, 4});
  bytes.replace(168, 48, "NoName Blue   NoName NoName NoName NoName  B    ");
  for (const std::size_t rating : {220u, 244u}) Put(bytes, rating, {71.5f});
  for (std::size_t slope = 264; slope < 288; slope += 2) Put16(bytes, slope, {113});
  for (int hole = 1; hole <= 18; ++hole) {
    const std::size_t row = 12 * static_cast<std::size_t>(hole) - 12;
    PutCells(bytes, {{row + 290, 100 + hole}, {row + 542, 4}});
    PutCells(bytes, {{row + 794, 19 - hole}, {row + 1010, 19 - hole}});
    Put16(bytes, 1226 + row, {hole, hole, hole, hole, hole, hole});
  }
  PutCells(bytes, {{506, 945}, {518, 1026}, {530, 1971}, {758, 36}, {770, 36}, {782, 72}});
  bytes[1442] = 0;
  return bytes;
}

class CourseLibraryTest : public testing::Test {
 protected:
  template <class AnyScreen>
  using Work = std::function<void(AnyScreen&)>;

  // Opens Quenby's table and works each screen that opens.
  void Run(const Work<CourseTable>& table, const Work<CourseForm>& form = {},
           const Work<CourseTee>& tee = {}) {
    const auto work = [=](Screen& screen) {
      for (Control* control : screen.controls()) {
        const auto* timer = dynamic_cast<Timer*>(control);
        if (timer != nullptr && timer->IsRunning()) timer->on_timer();
      }
      if (auto* shown = dynamic_cast<CourseTable*>(&screen)) return table(*shown);
      if (auto* shown = dynamic_cast<CourseForm*>(&screen)) return form(*shown);
      tee(dynamic_cast<CourseTee&>(screen));
    };
    install.Open("CourseTable", work, "qb");
  }
  HeadlessHost& host() { return *install.host; }
  Work<Screen> Presses(const char* button) {
    return [=, this](Screen& screen) { host().Press(screen, button); };
  }
  // Enters a text as the operator does by pasting.
  void Set(Screen& screen, const char* name, const std::string& text) {
    auto* box = dynamic_cast<TextBox*>(screen.FindControl(name));
    ASSERT_NE(box, nullptr) << name;
    screen.MoveFocus(box);
    box->Enter(text);
    screen.MoveFocus(nullptr);
  }
  void Write(const std::string& courses) { install.folder.Write("qbdata/qbcrs.dat", courses); }
  std::string Read(const char* file) { return install.folder.Read(std::string("qbdata/") + file); }
  // Returns the boxes since the last call, without the screens.
  std::string Told() {
    std::string told;
    for (const std::string& event : install.events()) {
      if (event.starts_with("message") || event.starts_with("input")) told += event + "\n";
    }
    install.events().clear();
    return told;
  }

  TestInstall install;
};

TEST_F(CourseLibraryTest, EveryRuleOfATeeIsTold) {
  const std::string rating =
      "message [Need a correct rating] 18 hole Rating must be between 45 and "
      "80\rIf men do not have a rating for this tee, enter the ladies' "
      "rating.\r\rIf your course is not rated enter par. -> OK\n"
      "message [Enter rating?] Do you want to enter the rating? -> Yes\n";
  std::string ladies = rating;
  ladies.replace(ladies.find("If men"), ladies.find("\r\r") - ladies.find("If men"),
                 "If ladies do not have a rating for this tee, enter the men's rating.");
  const std::string slope =
      "message [Need a correct slope] Slope must be between 55 and 155\rIf "
      "your course is not sloped type in 113. -> OK\n";
  const std::string name =
      "message [Enter a tee name.] Tee name and abreviation are required. -> OK\n";
  const auto handicap = [](int hole) {
    return "message [You have entered an incorrect value.] Handicap Holes must be entered. "
           "Handicap hole numbers are between 1 and 18.  Each hole must have a different number.  "
           "Handicap hole #" +
           std::to_string(hole) + " is a repeat number or zero. -> OK\n";
  };
  const std::string par =
      "message [You have entered an incorrect value.] Par must be between 1 and 6 -> OK\n";
  const struct {
    const char *control, *text, *shown;
    std::string told;  // empty: the tee is accepted
    bool required = false;
  } kCases[] = {
      {"FTeeNameAbv", " ", " ", name},
      {"FMensRating", "44.94", "44.9", rating},
      {"FMensRating", "44.96", "45.0", ""},
      {"FMensRating", "80.1", "80.1", rating},
      {"FMensRating", "72,5", "72.0", ""},
      {"FMensRating", "72.5.9", "72.5", ""},
      {"FMensRating", "par", "0.0", rating},
      {"FMensRating", "-3", "0.0", rating},
      {"FMensRating", "99.95", "99.9", rating},
      {"FLadiesRating", "1e9", "99.9", ladies},
      {"FLadiesRating", "0", "0.0", ladies.substr(0, ladies.find('\n') + 1), true},
      {"FMensSlope", "54", "54", slope},
      {"FMensSlope", "54.5", "54", slope},
      {"FLadiesSlope", "156", "155", ""},
      {"FLadiesSlope", "-9999999999", "-32768", slope},
      {"FPar(3)", "0", "0", ""},
      {"FPar(3)", "0", "0", par, true},
      {"FPar(3)", "6.5", "6.5", par, true},
      {"FHandicap(5)", "12", "12", handicap(7)},
      {"FHandicap(5)", "-1", "-1", handicap(6)},
      {"FHandicap(5)", "99999999999", "99999999999", handicap(6)},
      {"FHandicap(5)", "0.4", "0.4", handicap(6)},
      {"FHandicap(5)", "0", "0", ""},
      {"FHandicap(5)", "0", "0", handicap(6), true},
  };
  Write(Course("Dunes"));
  for (const auto& c : kCases) {
    SCOPED_TRACE(std::string(c.control) + " " + c.text);
    Run(
        Presses("EditCourseButton"),
        [&](CourseForm& form) {
          CourseClass& course = install.state().Course();
          course.RequirePars = course.RequireHoleHandicaps = course.RequireRatingandSlope =
              c.required;
          form.grid1.SetActiveRow(2);
          host().Press(form, "EditTeeButton");
        },
        [&](CourseTee& tee) {
          auto& box = dynamic_cast<TextBox&>(*tee.FindControl(c.control));
          const std::string correct = box.text();
          for (const std::string text : {c.text, correct.c_str(), c.text}) {
            Set(tee, c.control, text);
            // A handicap that occurs twice is noted at the other hole.
            const bool is_noted = text == c.text && !c.told.empty() && text != "12";
            EXPECT_EQ(box.note().empty(), !is_noted) << text;
          }
          EXPECT_EQ(box.text(), c.shown);
          install.events().clear();
          host().Press(tee, "OKButton");
          EXPECT_EQ(Told(), c.told);
          EXPECT_EQ(host().IsShown(tee), !c.told.empty());
          EXPECT_TRUE(c.told.empty() || !tee.focus()->note().empty());
        });
    EXPECT_TRUE(
        SameFile("qbcrs.dat", Read("qbcrs.dat"), Course("Dunes")));  // Cancel left it unchanged
  }
}

TEST_F(CourseLibraryTest, ANewBackNineIsStoredTwice) {
  Write("torn");
  Run(
      Presses("AddCourseButton"),
      [&](CourseForm& form) {
        host().Press(form, "OKButton");
        Set(form, "FCourseName", "\xC9toile");
        form.FHoleNum[2].Choose(true);
        host().Press(form, "OKButton");
        EXPECT_EQ(Told(),
                  "message [Need more info.] Course name required! -> OK\n"
                  "message [Notice] At least one tee must be active before the course can be saved."
                  " Edit at least one teebox and activate it.  OR click CANCEL to not save the "
                  "course. -> OK\n");
        host().Press(form, "EditTeeButton");
        EXPECT_FALSE(form.HolesFrame.enabled());
        host().Press(form, "OKButton");
      },
      [&](CourseTee& tee) {
        EXPECT_FALSE(tee.FPar[9].IsUsable() || tee.FPar[0].IsShown() || tee.FYardTotal.IsShown());
        tee.ActiveTee.Choose(true);
        Set(tee, "FTeeName", "Emerald Green");
        EXPECT_EQ(tee.FTeeName.text() + tee.FTeeNameAbv.text(), "EmeraldE");
        for (const char* box : {"FMensRating", "FLadiesRating"}) Set(tee, box, "35.5");
        tee.BackHoleNumber.Select(18);
        tee.MoveFocus(&tee.FYardage[9]);
        for (const char key : std::string("123456789")) {
          dynamic_cast<TextBox*>(tee.focus())->TypeKey(key);  // three holes; the focus moves on
        }
        tee.MoveFocus(&tee.FPar[9]);
        for (const char key : std::string("435")) {
          dynamic_cast<TextBox*>(tee.focus())->TypeKey(key);
        }
        EXPECT_EQ(tee.focus(), &tee.FPar[12]);
        for (const int rank : {3, 1, 2}) {
          const auto at = static_cast<std::size_t>(8 + rank);
          tee.FHandicap[at].Enter(std::to_string(rank * 2));
        }
        host().Press(tee, "OKButton");
      });
  std::string expected(1443, '\0');
  expected.resize(kLength, ' ');
  Put16(expected, 0, {1, -9});
  PutText(expected, 4, 154, "\xC9toile");
  expected[158] = '\xFF';
  Put16(expected, 164, {2, 2});
  expected.replace(168, 48, "EmeraldNoName NoName NoName NoName NoName E     ");
  for (const std::size_t rating : {216u, 240u}) Put(expected, rating, {35.5f});
  for (std::size_t slope = 264; slope < 288; slope += 2) Put16(expected, slope, {113});
  for (int hole = 1; hole <= 18; ++hole) {
    Put16(expected, 1214 + 12 * static_cast<std::size_t>(hole),
          {19 + (hole - 1) % 9, hole, hole, hole, hole, hole});
  }
  for (const std::size_t nine : {0u, 108u}) {
    PutCells(expected, {{nine + 288, 123}, {nine + 300, 456}, {nine + 312, 789}});
    PutCells(expected, {{nine + 540, 4}, {nine + 552, 3}, {nine + 564, 5}});
    PutCells(expected, {{nine + 792, 2}, {nine + 804, 4}, {nine + 816, 6}});
  }
  // Holes without a handicap come first. The totals are those of the nine that was entered.
  for (std::size_t at = 1008; const int hole : {13, 14, 15, 16, 17, 18, 10, 11, 12}) {
    Put16(expected, std::exchange(at, at + 12), {hole});
  }
  PutCells(expected, {{516, 1368}, {528, 1368}, {768, 12}, {780, 12}});
  EXPECT_TRUE(SameFile("qbcrs.dat", Read("qbcrs.dat"), expected));
  EXPECT_EQ(Read("9CRSQB.INX") + Read("18CRSQB.INX") + Read("ALLCRSQB.INX"),
            Index({1, 1}) + Index({0}) + Index({1, 1}));
}

TEST_F(CourseLibraryTest, CoursesOfKelvaneAreWarnedOfAndKeepTheirBytes) {
  install.folder.Write("KVM.EXE", "");
  std::string courses[] = {Course("zebra"), Course("Alder"), Course("Mill")};
  Put16(courses[1], 1224, {7});
  Put16(courses[2], 0, {0});
  const auto written = [&] { return courses[0] + courses[1] + courses[2]; };
  Write(written());
  const char* warned =
      "message [Notice] Note: This course was transferred from the Kelvane.  It is recommended "
      "that you 'edit' this course in the Kelvane and retransfer the new 'edited' course to the "
      "Quenby.\r\rClick OK to continue anyway. -> ";
  host().QueueAnswer("Change tee name?", "yes");
  bool edited = false;
  Run(
      [&](CourseTable& table) {
        host().Press(table, "EditCourseButton");
        EXPECT_EQ(Told(), warned + std::string("Cancel\n"));
        host().QueueAnswer("Notice", "OK", true);
        host().Press(table, "EditCourseButton");
        EXPECT_EQ(Told(), warned + std::string("OK\n") +
                              "input [Change tee name?] Type YES if you want to change the name of "
                              "this tee from Blue to Gold. -> yes\n");
        EXPECT_EQ(table.CourseGrid.text(0, 1) + table.CourseGrid.text(3, 1), "2Yes");
        EXPECT_TRUE(table.CourseGrid.on_key("Delete"));
        EXPECT_EQ(table.CourseGrid.rows(), 2);  // the answer was NO
        table.CourseGrid.SetActiveRow(2);
        host().QueueAnswer("DELETE COURSE?", "yup");
        install.events().clear();
        host().Press(table, "DeleteCourseButton");
        EXPECT_EQ(Told(),
                  "input [DELETE COURSE?] Type 'YES' if you want to\rdelete course: zebra -> "
                  "yup\n");
        host().Press(table, "CloseButton");
      },
      [&](CourseForm& form) {
        if (std::exchange(edited, true)) return;
        form.grid1.SetActiveRow(2);
        host().Press(form, "EditTeeButton");
        Set(form, "FCity", "Elm");
        host().Press(form, "OKButton");
      },
      [&](CourseTee& tee) {
        Set(tee, "FTeeName", "Gold");
        for (const auto& [from, to] :
             {std::pair<TextBox*, Control*>{&tee.FPar[8], &tee.FHandicap[0]},
              {&tee.FPar[17], &tee.FPar[17]}}) {
          tee.MoveFocus(from);
          from->TypeKey('4');
          EXPECT_EQ(tee.focus(), to);
        }
        host().Press(tee, "OKButton");
      });
  PutText(courses[1], 94, 17, "Elm");
  PutText(courses[1], 175, 7, "Gold");
  Put16(courses[0], 0, {0});
  EXPECT_TRUE(SameFile("qbcrs.dat", Read("qbcrs.dat"), written()));
  EXPECT_EQ(Read("18CRSQB.INX") + Read("ALLCRSQB.INX"), Index({1, 2}) + Index({1, 2}));
}

TEST_F(CourseLibraryTest, AFlatLadiesSlopeEndsTheClickAndLosesNothing) {
  std::string course = Course("Dunes");
  Put(course, 240 + 4 * 3, {0.5f});  // any rating above 0 counts
  Put16(course, 276 + 2 * 3, {50});
  Write(course);
  Run(Presses("EditCourseButton"), [&](CourseForm& form) {
    Set(form, "FCity", "Elm");
    EXPECT_EQ(ClickErrorOf([&] { host().Press(form, "OKButton"); }), 9);
    EXPECT_TRUE(host().IsShown(form));
    EXPECT_EQ(form.FCity.text(), "Elm");
  });
  EXPECT_TRUE(SameFile("qbcrs.dat", Read("qbcrs.dat"), course));
}

TEST_F(CourseLibraryTest, TheFormShowsTheHolesOfTheCourse) {
  for (const auto& [holes, option] : {std::pair{18, 0}, {9, 1}, {-9, 2}}) {
    std::string course = Course("Dunes");
    Put16(course, 2, {holes});
    Write(course);
    Run(Presses("EditCourseButton"), [&, option = option](CourseForm& form) {
      int i = 0;
      for (const OptionButton& button : form.FHoleNum) EXPECT_EQ(button.value(), i++ == option);
    });
  }
}

TEST_F(CourseLibraryTest, ANumberWithoutRoomLeavesTheRecordAndTheEntriesAsTheyAre) {
  Write(Course("Dunes"));
  bool mended = false;
  Run(
      [&](CourseTable& table) {
        host().Press(table, "EditCourseButton");
        host().Press(table, "CloseButton");
      },
      [&](CourseForm& form) {
        form.grid1.SetActiveRow(2);
        EXPECT_EQ(ClickErrorOf([&] { host().Press(form, "EditTeeButton"); }), 6);
        EXPECT_EQ(install.state().Course().HolePar(2, 1), "4");
        mended = true;
        host().Press(form, "EditTeeButton");
        host().Press(form, "OKButton");
      },
      [&](CourseTee& tee) {
        EXPECT_EQ(tee.FPar[0].text(), mended ? "5" : "4");
        Set(tee, "FPar(0)", "5");
        Set(tee, "FYardage(2)", mended ? "100.5" : "32768");
        host().Press(tee, "OKButton");
      });
  std::string expected = Course("Dunes");
  PutCells(expected, {{314, 100}, {542, 5}, {758, 37}, {782, 73}});
  PutCells(expected, {{506, 942}, {530, 1968}});  // 942.5 and 1968.5 round to even
  EXPECT_TRUE(SameFile("qbcrs.dat", Read("qbcrs.dat"), expected));
}

TEST_F(CourseLibraryTest, ASiblingsOwnLibraryIsOpenedOnRequestUnlessItIsHeld) {
  install.folder.Write("kvdata/kvcrs.dat", Course("Dunes"));
  const std::vector<MenuEntry> tools = Tools(install.state());
  const auto tool = std::find_if(tools.begin(), tools.end(), [](const MenuEntry& entry) {
    return entry.caption == "Course library of &Kelvane...";
  });
  ASSERT_NE(tool, tools.end());
  const auto open = [&] { host().Operate([&] { tool->open(install.state(), host()); }); };
  open();  // the answer was No
  install.platform->Fail({.error = ErrorNumber::kPermissionDenied, .only = Operation::kOpen});
  host().QueueAnswer("Course library", "Yes");
  open();
  EXPECT_FALSE(install.folder.Exists("kvdata/ALLCRSKV.INX"));
  const std::string path = install.state().KVDataPath + "kvcrs.dat";
  const std::string asked =
      "message [Course library] This is Kelvane's own course library:\r" + path +
      "\r\rWhat you change in it is changed for Kelvane as well. Close Kelvane "
      "before you go on.\r\rOpen it? -> ";
  EXPECT_EQ(Told(), asked + "No\n" + asked +
                        "Yes\nmessage [Course library] Kelvane's course library "
                        "is in use:\r" +
                        path + "\r\rClose Kelvane and try again. -> OK\n");
  host().QueueAnswer("Course library", "Yes");
  host().drive = [](Screen& table) {
    EXPECT_EQ(dynamic_cast<CourseTable&>(table).CourseGrid.rows(), 1);
  };
  open();
  EXPECT_EQ(install.folder.Read("kvdata/ALLCRSKV.INX"), Index({1, 1}));
}

TEST_F(CourseLibraryTest, AnEmptyLibraryHasNothingToEditAndGetsEmptyIndexes) {
  Run([&](CourseTable& table) {
    EXPECT_FALSE(table.EditCourseButton.IsShown() || table.DeleteCourseButton.IsShown());
    EXPECT_FALSE(table.CourseGrid.on_key("Delete"));
    host().Press(table, "CloseButton");
  });
  EXPECT_EQ(Read("9CRSQB.INX") + Read("18CRSQB.INX") + Read("ALLCRSQB.INX"),
            Index({0}) + Index({0}) + Index({0}));
}

}  // namespace
}  // namespace golf
