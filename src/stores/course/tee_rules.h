#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "stores/course/course_class.h"

namespace golf {

// What may stand in a tee of a course. The screens that take it in and the command that looks a
// library over share these rules; texts are those that the operator reads.

enum class TeeField { kName, kRating, kSlope, kPar, kHandicap };

struct TeeFault {
  TeeField field;
  int group = 0;  // of a rating or slope: 0 men, 1 ladies
  int hole = 0;   // of a par or handicap: 1 to 18
  std::string title;
  std::string text;
};

// The holes of a course, both included.
struct HoleRange {
  int first = 1;
  int last = kCourseHoles;
};
// By the HoleNumFlag of the course.
HoleRange HolesPlayed(int hole_num_flag);
// For how many holes a course is rated: 9 or 18.
int HolesRated(int hole_num_flag);

// What is entered for the 18 holes, hole 1 first.
using HoleValues = std::array<double, kCourseHoles>;

// A rating as it is shown and stored: with four decimals, from 0 to 99.9, in a format pattern.
std::string RatingText(double value, std::string_view pattern);
// A slope as it is shown and stored: a whole number, half to even, up to 155.
int SlopeShown(double value);

std::optional<TeeFault> NameFault(std::string_view name, std::string_view abbreviation);
// `holes` is 18 or 9: a nine is rated from 25 to 45, eighteen holes from 45 to 80.
std::optional<TeeFault> RatingFault(double rating, int holes, int group);
// From 55 to 155.
std::optional<TeeFault> SlopeFault(double slope, int group = 0);
// Hole by hole. Pars stand from 1 to 6 if they are required. Handicaps stand from 1 to 18, each
// once; a 0 is a hole without one, if they are not required.
std::vector<TeeFault> HoleFaults(const HoleValues& pars, const HoleValues& handicaps,
                                 HoleRange holes, bool require_pars, bool require_handicaps);

// All faults of a tee of the current course, 1 to 6, in the order in which the screen would find
// them. What is required is what the course object says.
std::vector<TeeFault> FaultsOfTee(const CourseClass& course, int tee);

// The holes in rising order of their handicaps; holes of the same handicap in their own order.
std::vector<int> StrokeSequence(const HoleValues& handicaps, HoleRange holes);

}  // namespace golf
