#include "stores/course/course_class.h"

#include "support/bytes.h"
#include "support/test_host.h"

namespace golf {
namespace {

class CourseTest : public testing::Test {
 protected:
  CourseClass& course() { return install.state().Course(); }

  void OpenQuenby() {
    install.state().CourseDataPath = install.state().QBDataPath;
    course().OpenCourseFile();
  }
  void Append(const std::string& name, int holes, int active = 1) {
    course().BuildBlankRecord();
    course().SetName(name);
    course().SetHoleNumFlag(holes);
    course().Setactiveflag(active);
    course().SaveRecord(course().CourseFileLength() + 1);
  }

  TestInstall install;
};

TEST_F(CourseTest, CoursesWithoutARecord) {
  OpenQuenby();
  Append("Any", 18);
  for (const auto& [number, name, holes] : {std::tuple{0, "(Away course)", 18},
                                            {-1, "(Away course)", 9},
                                            {-2, "**Invalid Course**", 18},
                                            {2, "**Invalid Course**", 18}}) {
    course().GetRecord(number);
    EXPECT_EQ(course().Name(), name) << number;
    EXPECT_EQ(course().HoleNumFlag(), holes) << number;
    EXPECT_EQ(course().CurrentRecord(), 0);
    EXPECT_EQ(course().activeflag(), 0);
    ASSERT_EQ(course().TeeNumberofTees(), 1);
    EXPECT_EQ(course().TeeMensTees(1), "R\\S      00.0/113" + std::string(61, ' ') + "\\1");
    EXPECT_EQ(course().TeeAllTees(1), "R\\S" + std::string(75, ' ') + "\\1");
  }
}

TEST_F(CourseTest, TeeListsHoldTheActiveTeesUpToFive) {
  OpenQuenby();
  course().BuildBlankRecord();
  for (const int tee : {1, 5, 6}) course().SetActiveTees(tee, true);
  course().SetTeeName(5, "Championship");
  course().SetTeeNameAbv(5, "\xE9x");
  course().SetRating(5, 0, 71.25);
  course().Setslope(5, 0, 1250);
  course().SaveRecord(1);
  course().GetRecord(1);
  EXPECT_EQ(course().TeeNumberofTees(), 2);
  EXPECT_EQ(course().TeeMensTees(2), "Champio  71.3/1250" + std::string(61, ' ') + "\xC9");
  EXPECT_EQ(course().TeeLadiesTees(2), "Champio  00.0/113" + std::string(61, ' ') + "\xC9" + "5");
  EXPECT_EQ(course().TeeAllTees(3), std::string(80, ' '));
  EXPECT_EQ(ErrorOf([&] { course().TeeAllTees(6); }), 9);
  course().GetRecord(0);  // the away course
  course().GetRecord(1);  // without a read of the file
  EXPECT_EQ(course().TeeNumberofTees(), 2);
  EXPECT_EQ(course().TeeAllTees(2).substr(0, 7), "Champio");
}

TEST_F(CourseTest, GettersMendAndSettersCut) {
  CourseClass& c = course();
  c.BuildBlankRecord();
  EXPECT_EQ(c.Stored().Get<"YardsOrMeters">(), 0);
  c.SetHoleNumber(1, 1, 70);
  c.SetHoleNumber(1, 10, 0);
  c.SetHoleNumber(1, 2, 70);
  c.SetHoleNumber(1, 3, 73);
  EXPECT_EQ(c.HoleNumber(1, 1), " 1");
  EXPECT_EQ(c.HoleNumber(1, 10), "10");
  EXPECT_EQ(c.HoleNumber(1, 2), "70");
  EXPECT_EQ(c.HoleNumber(1, 3), " 3");
  EXPECT_EQ(c.StrkSqnc(1, 1), 1);
  c.SetYardsOrMeters("METERS");
  EXPECT_EQ(c.YardsOrMeters(), "Meters");
  c.SetName("  Two in front");
  EXPECT_EQ(c.Name(), "Two in front");
  c.SetCity("  A city that is too long for it");
  EXPECT_EQ(c.City(), "A city that is to");
  int tee = 7;
  c.SetTeeName(1, "Gold");
  EXPECT_EQ(c.TeeName(tee), "Gold");
  EXPECT_EQ(tee, 1);
  EXPECT_EQ(ErrorOf([&] { c.Rating(7, 0); }), 9);
  EXPECT_EQ(ErrorOf([&] { c.SetHoleYard(1, 1, 32767.5); }), 6);
  c.SetHoleYard(1, 1, 412.5);
  EXPECT_EQ(c.HoleYard(1, 1), "412");
}

TEST_F(CourseTest, SavesOnlyInOrJustBehindTheFile) {
  OpenQuenby();
  Append("One", 18);
  course().BuildBlankRecord();
  course().SetName("Nowhere");
  for (const int number : {0, -1, 3}) course().SaveRecord(number);
  EXPECT_EQ(course().Name(), "Nowhere");  // no list was read
  EXPECT_EQ(course().CourseFileLength(), 1);
  EXPECT_EQ(ErrorOf([&] {
              course().CloseCourseFile();
              course().GetRecord(1);
            }),
            52);
}

TEST_F(CourseTest, RebuildSortsAndLeavesWhatLiesBehind) {
  install.folder.Write("qbdata/9crsqb.inx", Index({4, 1, 1, 1, 7}));
  OpenQuenby();
  Append("zeta", 18);
  Append("\xE9toile", -9);  // sorts by the code of its capital, after Z
  Append("Alpha", 9);
  Append("gone", 18, 0);
  Append("ALPHA", 18);
  Append("Odd", 12);
  course().RebuildCourseIndexes(course().ActiveCoursesByName());
  EXPECT_EQ(install.folder.Read("qbdata/ALLCRSQB.INX"), Index({5, 3, 5, 6, 1, 2}));
  EXPECT_EQ(install.folder.Read("qbdata/18CRSQB.INX"), Index({2, 5, 1}));
  EXPECT_EQ(install.folder.Read("qbdata/9crsqb.inx"), Index({2, 3, 2, 1, 7}));
  EXPECT_EQ(course().Course9NumberofCourses(), 2);
  EXPECT_EQ(course().CourseALLName(1), "Alpha" + std::string(70, ' ') + "00003");
  EXPECT_EQ(course().Course18Name(0),
            ".(Rating\\Slope)   18 Hole away course" + std::string(38, ' ') + "00000");
  EXPECT_EQ(course().Course9Name(0),
            ".(Rating\\Slope)   9 Hole away course" + std::string(38, ' ') + "00000 ");
  EXPECT_EQ(ErrorOf([&] { course().Course9Name(3); }), 9);
  // The current record and Index are those that the lists read last, from the last entry of the
  // nine-hole list.
  EXPECT_EQ(course().Name(), "\xE9toile");
  EXPECT_EQ(course().Index(), 2);
}

TEST_F(CourseTest, StrayIndexesShowWhatTheyCan) {
  OpenQuenby();
  Append("One", 18);
  Append("Two", 18);
  const std::pair<std::string, std::vector<std::string>> kCases[] = {
      {"", {}},
      {"\x05", {}},
      {Index({-3, 1}), {}},
      {Index({9, 2, 1}), {"Two 2", "One 1"}},
      {Index({1, 2, 1}), {"Two 2"}},
      {Index({3, 7, -1, 2}), {" 7", " 0", "Two 2"}}};
  for (const auto& [index, expected] : kCases) {
    install.folder.Write("qbdata/18CRSQB.INX", index);
    install.state().files.Synchronize();
    course().UpdateAllCourseLists();
    std::vector<std::string> entries;
    for (int i = 1; i <= course().Course18NumberofCourses(); ++i) {
      const std::string& entry = course().Course18Name(i);
      EXPECT_EQ(entry.size(), 80u);
      entries.push_back(std::string(TrimRight(entry.substr(0, 75))) + " " +
                        std::to_string(std::stoi(entry.substr(75))));
    }
    EXPECT_EQ(entries, expected);
  }
}

}  // namespace
}  // namespace golf
