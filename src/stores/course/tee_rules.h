#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "stores/course/course_class.h"

namespace golf {

// The rules for the values of a tee. The course screens and the command that checks a library share
// them. The texts of the faults are for the operator.

enum class TeeField { kName, kRating, kSlope, kPar, kHandicap };

struct TeeFault {
  TeeField field;
  int group = 0;  // of a rating or slope: 0 men, 1 ladies
  int hole = 0;   // of a par or handicap: 1 to 18
  std::string title;
  std::string text;
};

// The holes of a course, `first` and `last` included.
struct HoleRange {
  int first = 1;
  int last = kCourseHoles;
};
// Returns the holes for the HoleNumFlag of a course: 9, -9, or any other value for all 18.
HoleRange HolesPlayed(int hole_num_flag);
// Returns the number of holes for which a course is rated: 9 or 18.
int HolesRated(int hole_num_flag);

// The values entered for the 18 holes, hole 1 first.
using HoleValues = std::array<double, kCourseHoles>;

// Returns a rating in strokes as it is shown and stored: rounded to four decimals, limited to 0 to
// 99.9, in a format pattern.
std::string RatingText(double value, std::string_view pattern);
// Returns a slope as it is shown and stored: rounded to a whole number, half to even, and at most
// 155.
int SlopeShown(double value);

// The next functions return no value if there is no fault.

// A name and an abbreviation are both required.
std::optional<TeeFault> NameFault(std::string_view name, std::string_view abbreviation);
// A rating must be 25 to 45 strokes if `holes` is 9, and 45 to 80 strokes for 18.
std::optional<TeeFault> RatingFault(double rating, int holes, int group);
// A slope must be 55 to 155.
std::optional<TeeFault> SlopeFault(double slope, int group = 0);
// Checks hole by hole. A par must be 1 to 6 strokes if pars are required. A hole handicap must be 1
// to 18 and occur only once. A 0 means no handicap and is valid if handicaps are not required.
std::vector<TeeFault> HoleFaults(const HoleValues& pars, const HoleValues& handicaps,
                                 HoleRange holes, bool require_pars, bool require_handicaps);

// Returns all faults of a tee of the current course, 1 to 6, in the order in which the screen finds
// them. The settings of the course object say which values are required.
std::vector<TeeFault> FaultsOfTee(const CourseClass& course, int tee);

// Returns the holes in ascending order of their handicaps. Holes of the same handicap keep their
// order.
std::vector<int> StrokeSequence(const HoleValues& handicaps, HoleRange holes);

}  // namespace golf
