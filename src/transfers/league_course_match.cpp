#include "transfers/league_course_match.h"

#include "core/number_text.h"
#include "core/text.h"
#include "stores/course/course_class.h"

namespace golf {
namespace {

// Return the rating and slope of a tee of the current record, read from the text that a library
// shows. The values of two libraries are equal if the shown texts are equal.
float RatingOf(const CourseClass& course, int tee, int sex) {
  return CheckedSingle(LeadingNumber(course.Rating(tee, sex)));
}

int SlopeOf(const CourseClass& course, int tee, int sex) {
  return RoundToInt16(LeadingNumber(course.slope(tee, sex)));
}

// Returns true if the course has a tee in use. Only such a course can match.
bool HasTee(const Record<CourseLayout>& course) {
  for (int tee = 1; tee <= kShownTees; ++tee) {
    if (course.Get<"ActiveTees">(tee) != 0) return true;
  }
  return false;
}

}  // namespace

const KelvaneTee& LeagueCourseMatch::Find(std::int32_t league_course, int tee, int sex) {
  const std::tuple key(league_course, tee, sex);
  const auto found = found_.find(key);
  if (found != found_.end()) return found->second;
  return found_.emplace(key, Match(league_course, tee, sex)).first->second;
}

KelvaneTee LeagueCourseMatch::Match(std::int32_t league_course, int tee, int sex) {
  CourseClass& league = state_.SpareCourse();
  league.GetRecord(league_course);
  KelvaneTee played{0, tee_without_course_, RatingOf(league, tee, sex), SlopeOf(league, tee, sex)};
  FindInKelvane(league.Name(), league.TeeName(tee), sex, played);
  return played;
}

// Finds the course and tee with the same names, rating and slope. The last of several matches
// counts.
void LeagueCourseMatch::FindInKelvane(const std::string& course, const std::string& tee, int sex,
                                      KelvaneTee& played) {
  CourseClass& kelvane = state_.Course();
  for (const std::int32_t number : KelvaneCoursesNamed(course)) {
    kelvane.GetRecord(number);
    for (int candidate = 1; candidate <= kShownTees; ++candidate) {
      if (!kelvane.ActiveTees(candidate)) continue;
      if (!EqualIgnoringCase(kelvane.TeeName(candidate), tee)) continue;
      if (RatingOf(kelvane, candidate, sex) != played.rating) continue;
      if (SlopeOf(kelvane, candidate, sex) != played.slope) continue;
      played.course_number = CheckedInt16(number);
      played.tee_number = static_cast<std::uint8_t>(candidate);
    }
  }
}

const std::vector<std::int32_t>& LeagueCourseMatch::KelvaneCoursesNamed(const std::string& name) {
  if (!by_name_) {
    std::unordered_map<std::string, std::vector<std::int32_t>> by_name;
    CourseClass& kelvane = state_.Course();
    Record<CourseLayout> course;
    const std::int32_t length = kelvane.CourseFileLength();
    for (std::int32_t number = 1; number <= length; ++number) {
      state_.files.Read(kelvane.CourseFileNumber(), number, course);
      if (HasTee(course)) by_name[UpperCase(Trim(course.Get<"Name">()))].push_back(number);
    }
    by_name_ = std::move(by_name);
  }
  return (*by_name_)[UpperCase(name)];
}

}  // namespace golf
