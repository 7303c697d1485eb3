#pragma once

#include <string>
#include <vector>

#include "cli/json_text.h"
#include "core/shared_state.h"
#include "stores/course/course_class.h"

namespace golf {

// Opens the library that --library names, "kv", "qb" or "zd", and gives its Course object.
CourseClass& OpenNamedLibrary(SharedState& state, const std::string& library);

// What tells a tee from the others of its course.
struct TeeKey {
  int number = 0;
  std::string name;
  std::string abbreviation;
};

// The active tees of the current course.
std::vector<TeeKey> ActiveTeesOf(const CourseClass& course);

// The keys by which a course and a tee are known.
Json CourseKeys(const CourseClass& course, std::int32_t number);
Json TeeKeys(const TeeKey& tee);

}  // namespace golf
