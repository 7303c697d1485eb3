#pragma once

#include <string>
#include <vector>

#include "cli/json_text.h"
#include "core/shared_state.h"
#include "stores/course/course_class.h"

namespace golf {

// Opens the library named by --library, "kv", "qb" or "zd", and returns its Course object.
CourseClass& OpenNamedLibrary(SharedState& state, const std::string& library);

// Identifies a tee among the others of its course.
struct TeeKey {
  int number = 0;
  std::string name;
  std::string abbreviation;
};

// Returns the active tees of the current course.
std::vector<TeeKey> ActiveTeesOf(const CourseClass& course);

// These return the JSON keys that identify a course and a tee.
Json CourseKeys(const CourseClass& course, std::int32_t number);
Json TeeKeys(const TeeKey& tee);

}  // namespace golf
