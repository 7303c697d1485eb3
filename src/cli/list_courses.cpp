#include <map>

#include "cli/list_command.h"
#include "cli/plain_text.h"
#include "core/text.h"
#include "stores/course/course_class.h"

namespace golf {
namespace {

struct Library {
  const char* program;
  std::string SharedState::*folder;
};

const std::map<std::string, Library> kLibraries = {{"kv", {"KV", &SharedState::KVDataPath}},
                                                   {"qb", {"QB", &SharedState::QBDataPath}},
                                                   {"zd", {"ZD", &SharedState::ZDDataPath}}};

std::string HolesText(const CourseClass& course) {
  const int holes = course.HoleNumFlag();
  return std::to_string(holes < 0 ? -holes : holes) + (holes == 9 ? "F" : holes == -9 ? "B" : "");
}

struct ListedTee {
  int number;
  std::string name;
  std::string abbreviation;
};

std::vector<ListedTee> TeesOf(const CourseClass& course) {
  std::vector<ListedTee> tees;
  for (int i = 1; i <= course.TeeNumberofTees(); ++i) {
    const int tee = course.TeeAllTees(i).back() - '0';
    const std::string letter = course.TeeNameAbv(int{tee});
    tees.push_back({tee, course.TeeName(int{tee}), std::string(Trim(letter))});
  }
  return tees;
}

Json CourseObject(const CourseClass& course, std::int32_t number) {
  Json tees = Json::array();
  for (const ListedTee& tee : TeesOf(course)) {
    tees.push_back({{"number", tee.number},
                    {"name", JsonText(tee.name)},
                    {"abbreviation", JsonText(tee.abbreviation)}});
  }
  return {{"number", number},
          {"name", JsonText(course.Name())},
          {"holes", HolesText(course)},
          {"link", course.KVCourseNum()},
          {"tees", tees}};
}

std::vector<std::string> CourseRow(const CourseClass& course, std::int32_t number) {
  std::string tees;
  for (const ListedTee& tee : TeesOf(course)) {
    tees += (tees.empty() ? "" : ", ") + std::to_string(tee.number) + " " + tee.name;
  }
  const int link = course.KVCourseNum();
  return {std::to_string(number), PlainCell(course.Name()), HolesText(course),
          link == 0 ? "-" : std::to_string(link), PlainCell(tees)};
}

}  // namespace

void ListCourses(SharedState& state, const ListRequest& request, ListWriter& out) {
  const Library& chosen = kLibraries.at(request.library);
  state.CourseDataPath = state.*chosen.folder;
  CourseClass& course = state.Course();
  course.SetActiveProgram(chosen.program);
  course.OpenCourseFile();
  out.SetHeadings({"No.", "Course", "Holes", "Kelvane", "Tees"});
  for (std::int32_t number = 1; number <= course.CourseFileLength(); ++number) {
    course.GetRecord(number);
    if (course.activeflag() == 0) continue;
    out.Add(CourseObject(course, number), CourseRow(course, number));
  }
}

}  // namespace golf
