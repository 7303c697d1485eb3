#include "cli/course_command.h"
#include "cli/list_command.h"
#include "cli/plain_text.h"
#include "core/text.h"
#include "stores/course/course_library.h"

namespace golf {
namespace {

std::vector<std::string> CourseRow(const CourseClass& course, std::int32_t number) {
  std::string tees;
  for (const TeeKey& tee : ActiveTeesOf(course)) {
    tees += (tees.empty() ? "" : ", ") + std::to_string(tee.number) + " " + tee.name;
  }
  const int link = course.KVCourseNum();
  return {std::to_string(number), PlainCell(course.Name()), HolesText(course.HoleNumFlag()),
          link == 0 ? "-" : std::to_string(link), PlainCell(tees)};
}

}  // namespace

CourseClass& OpenNamedLibrary(SharedState& state, const std::string& library) {
  OpenCourseLibrary(state, *FindCourseLibrary(library));
  return state.Course();
}

std::vector<TeeKey> ActiveTeesOf(const CourseClass& course) {
  std::vector<TeeKey> tees;
  for (int i = 1; i <= course.TeeNumberofTees(); ++i) {
    const int tee = course.TeeAllTees(i).back() - '0';
    const std::string letter = course.TeeNameAbv(int{tee});
    tees.push_back({tee, course.TeeName(int{tee}), std::string(Trim(letter))});
  }
  return tees;
}

Json CourseKeys(const CourseClass& course, std::int32_t number) {
  return {{"number", number},
          {"name", JsonText(course.Name())},
          {"holes", HolesText(course.HoleNumFlag())},
          {"link", course.KVCourseNum()}};
}

Json TeeKeys(const TeeKey& tee) {
  return {{"number", tee.number},
          {"name", JsonText(tee.name)},
          {"abbreviation", JsonText(tee.abbreviation)}};
}

void ListCourses(SharedState& state, const ListRequest& request, ListWriter& out) {
  CourseClass& course = OpenNamedLibrary(state, request.library);
  out.SetHeadings({"No.", "Course", "Holes", "Kelvane", "Tees"});
  for (std::int32_t number = 1; number <= course.CourseFileLength(); ++number) {
    course.GetRecord(number);
    if (course.activeflag() == 0) continue;
    Json object = CourseKeys(course, number);
    object["tees"] = Json::array();
    for (const TeeKey& tee : ActiveTeesOf(course)) object["tees"].push_back(TeeKeys(tee));
    out.Add(object, CourseRow(course, number));
  }
}

}  // namespace golf
