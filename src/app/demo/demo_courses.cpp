#include "app/demo/demo_courses.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "stores/course/course_class.h"

namespace golf {
namespace {

constexpr int kMen = 0;
constexpr int kLadies = 1;

struct DemoTee {
  std::string_view name;
  std::string_view letter;
  int percent;  // of the course's lengths
  double mens_rating;
  int mens_slope;
  double ladies_rating;
  int ladies_slope;
};

struct DemoHoles {
  std::array<int, kCourseHoles> pars;
  std::array<int, kCourseHoles> lengths;
};

// Describes a course. A course of nine holes uses the first or the second half of `card` and
// `ranks`.
struct DemoCourse {
  std::string_view name;
  std::string_view city;
  std::string_view state;
  std::string_view pro;
  int holes;  // 18; 9 a front nine; -9 a back nine
  DemoHoles card;
  std::array<int, kCourseHoles> ranks;  // 1 is the hardest hole
  std::vector<DemoTee> tees;
};

const DemoHoles kCardA = {
    {4, 5, 3, 4, 4, 3, 4, 5, 4, 4, 4, 3, 5, 4, 4, 3, 5, 4},
    {392, 521, 168, 405, 378, 182, 411, 534, 366, 401, 385, 157, 512, 421, 398, 201, 546, 415}};
const DemoHoles kCardB = {
    {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 3, 4, 5, 4, 4, 4, 3, 5},
    {372, 418, 151, 498, 389, 402, 176, 355, 507, 399, 164, 371, 525, 408, 381, 424, 190, 515}};
const std::array<int, kCourseHoles> kRanksA = {5, 9,  17, 3,  11, 13, 1,  7, 15,
                                               6, 12, 18, 10, 2,  8,  14, 4, 16};
const std::array<int, kCourseHoles> kRanksB = {8, 2,  18, 10, 6, 4,  14, 16, 12,
                                               7, 17, 11, 9,  3, 13, 1,  15, 5};
const std::vector<DemoTee> kThreeTees = {{"Blue", "B", 100, 72.4, 131, 0, 113},
                                         {"White", "W", 94, 70.6, 126, 75.9, 135},
                                         {"Red", "R", 84, 66.8, 117, 71.2, 124}};
const std::vector<DemoTee> kTwoTees = {{"Yellow", "Y", 96, 35.1, 118, 37.6, 125},
                                       {"Red", "R", 85, 33.2, 110, 35.4, 119}};

const std::vector<DemoCourse>& KelvaneCourses() {
  static const std::vector<DemoCourse> kCourses = {
      {"Larkfield Golf Club", "Larkfield", "OH", "Ann Moss", 18, kCardA, kRanksA, kThreeTees},
      {"Quarry Hollow", "Stonebridge", "OH", "Piet Vos", 18, kCardB, kRanksB, kThreeTees},
      {"Millpond Short Nine", "Larkfield", "OH", "", 9, kCardB, kRanksA, kTwoTees},
      {"Heron Lake - West", "Heron Lake", "MI", "J. Adair", 18, kCardA, kRanksB, kThreeTees},
      {"Heron Lake - Back Nine", "Heron Lake", "MI", "J. Adair", -9, kCardA, kRanksB, kTwoTees},
      {"Old Orchard (closed)", "Larkfield", "OH", "", 18, kCardB, kRanksA, kTwoTees},
      {"Ash Ridge Municipal", "Ash Ridge", "IN", "Lou Prett", 18, kCardB, kRanksB, kThreeTees},
  };
  return kCourses;
}

constexpr std::int32_t kClosedCourse = 6;

// Returns the first and the last hole that the course has.
std::pair<int, int> HolesOf(const DemoCourse& course) {
  return {course.holes == -9 ? 10 : 1, course.holes == 9 ? 9 : kCourseHoles};
}

// Copies holes 10 to 18 to holes 1 to 9. A course with only a back nine stores its holes in both
// nines.
void CopyBackNineToFront(CourseClass& course, int tee) {
  for (int hole = 1; hole <= 9; ++hole) {
    const Record<CourseLayout>& stored = course.Stored();
    course.SetHoleYard(tee, hole, stored.Get<"HoleYard">(tee, hole + 9));
    course.SetHolePar(tee, hole, stored.Get<"HolePar">(tee, hole + 9));
    course.SetHoleHandicap(tee, hole, stored.Get<"HoleHandicap">(tee, hole + 9));
    course.SetHoleNumber(tee, hole, stored.Get<"HoleNumber">(tee, hole + 9));
  }
}

void FillTotals(CourseClass& course, int tee) {
  const auto sum = [&](auto getter, int first, int last) {
    int total = 0;
    for (int hole = first; hole <= last; ++hole) total += std::stoi((course.*getter)(tee, hole));
    return total;
  };
  course.SetYardOut(tee, sum(&CourseClass::HoleYard, 1, 9));
  course.SetYardIn(tee, sum(&CourseClass::HoleYard, 10, 18));
  course.SetYardTotal(tee, course.YardOut(tee) + course.YardIn(tee));
  course.SetParOut(tee, sum(&CourseClass::HolePar, 1, 9));
  course.SetParIn(tee, sum(&CourseClass::HolePar, 10, 18));
  course.SetParTotal(tee, course.ParOut(tee) + course.ParIn(tee));
}

void FillHoles(CourseClass& course, const DemoCourse& demo, int tee, int percent) {
  const auto [first, last] = HolesOf(demo);
  std::vector<std::pair<int, int>> by_rank;
  for (int hole = first; hole <= last; ++hole) {
    const auto at = static_cast<std::size_t>(hole - 1);
    course.SetHolePar(tee, hole, demo.card.pars[at]);
    course.SetHoleYard(tee, hole, demo.card.lengths[at] * percent / 100);
    by_rank.emplace_back(demo.ranks[at], hole);
  }
  // Handicaps are numbered from 1, also on a course of nine holes.
  std::sort(by_rank.begin(), by_rank.end());
  for (std::size_t i = 0; i < by_rank.size(); ++i) {
    course.SetHoleHandicap(tee, by_rank[i].second, static_cast<double>(i + 1));
    course.SetStrkSqnc(tee, static_cast<int>(i) + 1, by_rank[i].second);
  }
  FillTotals(course, tee);
  if (demo.holes == -9) CopyBackNineToFront(course, tee);
}

void FillCourse(CourseClass& course, const DemoCourse& demo) {
  course.BuildBlankRecord();
  course.Setactiveflag(1);
  course.SetHoleNumFlag(demo.holes);
  course.SetName(demo.name);
  course.SetAddress1("1 Club House Lane");
  course.SetCity(demo.city);
  course.SetState(demo.state);
  course.SetGolfPro(demo.pro);
  course.SetPhone("555-0100");
  int tee = 0;
  int flags = 0;
  for (const DemoTee& demo_tee : demo.tees) {
    course.SetActiveTees(++tee, true);
    course.SetTeeName(tee, demo_tee.name);
    course.SetTeeNameAbv(tee, demo_tee.letter);
    course.SetRating(tee, kMen, demo_tee.mens_rating);
    course.Setslope(tee, kMen, demo_tee.mens_slope);
    course.SetRating(tee, kLadies, demo_tee.ladies_rating);
    course.Setslope(tee, kLadies, demo_tee.ladies_slope);
    FillHoles(course, demo, tee, demo_tee.percent);
    flags |= 1 << tee;
  }
  course.SetParsFlag(flags);
  course.SetHandicapFlag(flags);
}

void Append(CourseClass& course) { course.SaveRecord(course.CourseFileLength() + 1); }

CourseClass& OpenLibrary(SharedState& state, const std::string& folder, const char* program) {
  state.CourseDataPath = folder;
  CourseClass& course = state.Course();
  course.SetActiveProgram(program);
  course.OpenCourseFile();
  return course;
}

void MakeKelvaneLibrary(SharedState& state) {
  CourseClass& course = OpenLibrary(state, state.KVDataPath, "KV");
  for (const DemoCourse& demo : KelvaneCourses()) {
    FillCourse(course, demo);
    Append(course);
  }
  course.GetRecord(kClosedCourse);
  course.Setactiveflag(0);
  course.SaveRecord(kClosedCourse);
  course.RebuildCourseIndexes(course.ActiveCoursesByName());
}

// Adds two courses that were transferred from Kelvane some seasons ago, and a course of Quenby's
// own.
void MakeQuenbyLibrary(SharedState& state) {
  CourseClass& course = OpenLibrary(state, state.QBDataPath, "QB");
  for (const int kelvane_number : {2, 1}) {
    FillCourse(course, KelvaneCourses()[static_cast<std::size_t>(kelvane_number) - 1]);
    course.SetKVCourseNum(kelvane_number);
    course.SetRating(1, kMen, 71.9);
    Append(course);
  }
  DemoCourse own = KelvaneCourses()[3];
  own.name = "Dunes at Port Ellery";
  own.city = "Port Ellery";
  FillCourse(course, own);
  Append(course);
  course.RebuildCourseIndexes(course.ActiveCoursesByName());
}

void MakeZandelLibrary(SharedState& state) {
  CourseClass& course = OpenLibrary(state, state.ZDDataPath, "ZD");
  for (const std::size_t i : {0u, 2u}) {
    FillCourse(course, KelvaneCourses()[i]);
    Append(course);
  }
  course.RebuildCourseIndexes(course.ActiveCoursesByName());
}

}  // namespace

void MakeDemoCourses(SharedState& state) {
  MakeKelvaneLibrary(state);
  MakeQuenbyLibrary(state);
  MakeZandelLibrary(state);
  state.InitSharedObjects();
}

}  // namespace golf
