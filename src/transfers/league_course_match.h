#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "core/shared_state.h"

namespace golf {

// Contains the course and tee of a league score for Kelvane's history.
struct KelvaneTee {
  std::int16_t course_number = 0;  // in Kelvane's library; 0 if no course there matches
  std::uint8_t tee_number = 0;     // of that course, or the tee for scores without a course
  float rating = 0;                // of the league's course, in strokes
  int slope = 0;                   // of the league's course
};

// Finds the tees of league courses in Kelvane's library. The shared Course must have that library
// open, and the shared SpareCourse must have Zandel's library open. Each tee is searched for once.
// Each Kelvane course is read once for its name.
class LeagueCourseMatch {
 public:
  LeagueCourseMatch(SharedState& state, std::uint8_t tee_without_course)
      : state_(state), tee_without_course_(tee_without_course) {}

  // Returns the Kelvane tee for a tee of a league course. `league_course` is a number in Zandel's
  // library, `tee` is 1 to 5, and `sex` is 0 for men and 1 for ladies. Raises error 9 for any other
  // sex. Also raises the errors of FileTable.
  const KelvaneTee& Find(std::int32_t league_course, int tee, int sex);

 private:
  KelvaneTee Match(std::int32_t league_course, int tee, int sex);
  void FindInKelvane(const std::string& course, const std::string& tee, int sex,
                     KelvaneTee& played);
  // Returns the numbers of the courses with this name, without regard to case, in ascending order.
  const std::vector<std::int32_t>& KelvaneCoursesNamed(const std::string& name);

  SharedState& state_;
  std::uint8_t tee_without_course_;
  std::map<std::tuple<std::int32_t, int, int>, KelvaneTee> found_;
  std::optional<std::unordered_map<std::string, std::vector<std::int32_t>>> by_name_;
};

}  // namespace golf
