#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "stores/course/course_class.h"

namespace golf {

// These functions check and format the values of a tee. The course screens and the command that
// checks a library share them. The operator sees the texts of the faults.

enum class TeeField { kName, kRating, kSlope, kPar, kHandicap };

struct TeeFault {
  TeeField field;
  int group = 0;  // the group of a rating or slope: 0 men, 1 ladies
  int hole = 0;   // the hole of a par or handicap: 1 to 18
  std::string title;
  std::string text;
};

// Describes a range of holes of a course, including `first` and `last`.
struct HoleRange {
  int first = 1;
  int last = kCourseHoles;
};
// Returns the holes for the HoleNumFlag of a course: the front nine for 9, the back nine for -9,
// and all 18 for any other value.
HoleRange HolesPlayed(int hole_num_flag);
// Returns the number of holes for which a course is rated, 9 or 18.
int HolesRated(int hole_num_flag);

// Contains the values entered for the 18 holes, starting with hole 1.
using HoleValues = std::array<double, kCourseHoles>;

// Returns a rating in strokes as it is shown and stored: rounded to four decimals, limited to 0 to
// 99.9, and formatted with the pattern.
std::string RatingText(double value, std::string_view pattern);
// Returns a slope as it is shown and stored: rounded to a whole number, half to even, and limited
// to 155.
int SlopeShown(double value);

// NameFault, RatingFault and SlopeFault return no value if there is no fault.

// Returns a fault if the name or the abbreviation is blank.
std::optional<TeeFault> NameFault(std::string_view name, std::string_view abbreviation);
// Returns a fault unless a rating is 25 to 45 strokes for 9 `holes`, or 45 to 80 strokes for 18.
std::optional<TeeFault> RatingFault(double rating, int holes, int group);
// Returns a fault unless a slope is 55 to 155.
std::optional<TeeFault> SlopeFault(double slope, int group = 0);
// Returns the faults of all holes in the order of the holes. A par must be 1 to 6 strokes if pars
// are required. A hole handicap must be 1 to 18 and occur only once. A 0 means no handicap, and is
// valid if handicaps are not required.
std::vector<TeeFault> HoleFaults(const HoleValues& pars, const HoleValues& handicaps,
                                 HoleRange holes, bool require_pars, bool require_handicaps);

// Returns all faults of a tee (1 to 6) of the current course, in the order in which the screen
// finds them. The settings of the course object determine which values are required.
std::vector<TeeFault> FaultsOfTee(const CourseClass& course, int tee);
// Returns the same for a course record. Requires the pars of all holes if the tee has any par, and
// all hole handicaps if it has any.
std::vector<TeeFault> FaultsOfTee(const Record<CourseLayout>& course, int tee);

// Describes faults in one line, each kind once with its holes. Returns an empty text if there are
// none.
std::string DescribeFaults(const std::vector<TeeFault>& faults);

// Returns the holes in ascending order of their handicaps. Holes with the same handicap keep their
// order.
std::vector<int> StrokeSequence(const HoleValues& handicaps, HoleRange holes);

}  // namespace golf
