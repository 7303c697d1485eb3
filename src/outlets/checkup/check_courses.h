#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "outlets/checkup/file_scan.h"
#include "stores/course/course_layout.h"

namespace golf {

// Contains what other checks need to know about a course.
struct KnownCourse {
  bool is_active = false;
  int hole_num_flag = 0;      // 18, 9 or -9
  int kelvane_course = 0;     // KVCourseNum
  std::uint8_t tees = 0;      // bit t is set if tee t is active
  std::string name;           // without padding
  std::string sorted_name{};  // the name as the indexes sort it

  bool HasTee(int tee) const { return tee >= 1 && tee <= kTeeSlots && ((tees >> tee) & 1) != 0; }
};

// Contains a course library.
struct KnownCourses {
  bool is_read = false;  // false if the file is missing or unreadable
  std::vector<KnownCourse> courses;

  // Returns null if there is no record of this number.
  const KnownCourse* Find(std::int64_t number) const {
    const bool is_there = number >= 1 && number <= std::ssize(courses);
    return is_there ? &courses[static_cast<std::size_t>(number) - 1] : nullptr;
  }
};

// Contains the libraries of the three programs.
struct KnownLibraries {
  KnownCourses kelvane;
  KnownCourses quenby;
  KnownCourses zandel;
};

// Checks the three course libraries with their indexes, and returns their courses.
KnownLibraries CheckCourses(FileScan& scan);

}  // namespace golf
