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

// Where a league score was played, as Kelvane is to record it.
struct KelvaneTee {
  std::int16_t course_number = 0;  // in Kelvane's library; 0 where nothing there matches
  std::uint8_t tee_number = 0;     // of that course, or the one for scores without a course
  float rating = 0;                // both of the league's course
  int slope = 0;
};

// Looks for the tees of league courses in Kelvane's library. Course is open on that library and
// SpareCourse on Zandel's. Each tee is looked for once, and each course of Kelvane's is read once
// for its name.
class LeagueCourseMatch {
 public:
  LeagueCourseMatch(SharedState& state, std::uint8_t tee_without_course)
      : state_(state), tee_without_course_(tee_without_course) {}

  // A course number of Zandel's library, a tee 1 to 5 of it, and 0 for men or 1 for ladies; error 9
  // for any other sex. Raises the errors of FileTable too.
  const KelvaneTee& Find(std::int32_t league_course, int tee, int sex);

 private:
  KelvaneTee Match(std::int32_t league_course, int tee, int sex);
  void FindInKelvane(const std::string& course, const std::string& tee, int sex,
                     KelvaneTee& played);
  // Numbers of the courses with this name in any case, ascending.
  const std::vector<std::int32_t>& KelvaneCoursesNamed(const std::string& name);

  SharedState& state_;
  std::uint8_t tee_without_course_;
  std::map<std::tuple<std::int32_t, int, int>, KelvaneTee> found_;
  std::optional<std::unordered_map<std::string, std::vector<std::int32_t>>> by_name_;
};

}  // namespace golf
