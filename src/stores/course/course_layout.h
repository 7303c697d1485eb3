#pragma once

#include <array>
#include <cstddef>

#include "core/record.h"

namespace golf {

// This header describes the record of a course, which is the same in the libraries of all three
// programs. A course has six tees, and tee 6 is never shown. Group 0 is the men, and group 1 is the
// ladies. Ratings and pars are in strokes. Lengths are in yards, or in metres if YardsOrMeters is
// 1.

inline constexpr std::size_t kCourseRecordLength = 3226;
inline constexpr int kTeeSlots = 6;
inline constexpr int kShownTees = 5;
inline constexpr int kCourseHoles = 18;

namespace course_fields {

inline constexpr Dimension kTees{1, kTeeSlots, "tee"};
inline constexpr Dimension kHoles{1, kCourseHoles, "hole"};
inline constexpr Dimension kStrokes{1, kCourseHoles, "stroke"};
inline constexpr Dimension kGroups{0, 2, "group"};

inline constexpr auto kShared = std::to_array<Field>({
    Int16Field("activeflag", 0)
        .Means("0: a deleted course, which is ignored everywhere; any other value: in use"),
    Int16Field("HoleNumFlag", 2).Means("18: 18 holes; 9: a front nine; -9: a back nine"),
    TextField("Name", 4, 30),
    TextField("Address1", 34, 30),
    TextField("Address2", 64, 30),
    TextField("City", 94, 17),
    TextField("State", 111, 2),
    TextField("Zipcode", 113, 10),
    TextField("GolfPro", 123, 20),
    TextField("Phone", 143, 15),
    ByteField("ActiveTees", 158)
        .By(kTees)
        .Means("255: active; 0: not active; tee 6 is never shown"),
    Int16Field("ParsFlag", 164).Means("bit t is set if tee t has a par on its first hole"),
    Int16Field("HandicapFlag", 166)
        .Means("bit t is set if tee t has a `HoleHandicap` on its first hole"),
    TextField("TeeName", 168, 7).By(kTees),
    TextField("TeeNameAbv", 210, 1).By(kTees).Means("one letter"),
    SingleField("Rating", 216)
        .By(kTees, kGroups)
        .Means("course rating in strokes; group 0: men, 1: ladies"),
    Int16Field("slope", 264).By(kTees, kGroups).Means("slope rating; group 0: men, 1: ladies"),
    Int16Field("HoleYard", 288).By(kTees, kHoles).Means("length in the unit of `YardsOrMeters`"),
    Int16Field("YardOut", 504).By(kTees).Means("length of the front nine"),
    Int16Field("YardIn", 516).By(kTees).Means("length of the back nine"),
    Int16Field("YardTotal", 528).By(kTees).Means("length of all holes"),
    Int16Field("HolePar", 540).By(kTees, kHoles).Means("strokes"),
    Int16Field("ParOut", 756).By(kTees).Means("strokes of the front nine"),
    Int16Field("ParIn", 768).By(kTees).Means("strokes of the back nine"),
    Int16Field("ParTotal", 780).By(kTees).Means("strokes of all holes"),
    Int16Field("HoleHandicap", 792).By(kTees, kHoles).Means("1 (hardest) to 18; 0: none"),
    Int16Field("StrkSqnc", 1008)
        .By(kTees, kStrokes)
        .Means("the hole that gets this handicap stroke"),
    Int16Field("KVCourseNum", 1224)
        .Means("in Quenby: the Kelvane course that this one was copied from; 0: none"),
    Int16Field("HoleNumber", 1226).By(kTees, kHoles).Means("printed number, 1 to 72"),
});

inline constexpr auto kQuenbyTail = std::to_array<Field>({
    ByteField("YardsOrMeters", 1442).Means("1: meters; any other value: yards"),
    KeptBytes(1443, 1783),
});

inline constexpr auto kKelvaneTail = std::to_array<Field>({KeptBytes(1442, 1784)});

template <std::size_t kTailSize>
constexpr auto WithTail(const std::array<Field, kTailSize>& tail) {
  std::array<Field, kShared.size() + kTailSize> fields{};
  for (std::size_t i = 0; i < kShared.size(); ++i) fields[i] = kShared[i];
  for (std::size_t i = 0; i < kTailSize; ++i) fields[kShared.size() + i] = tail[i];
  return fields;
}

}  // namespace course_fields

// Describes the layout that all code uses, except the course transfer.
struct CourseLayout {
  static constexpr std::string_view kName = "course";
  static constexpr std::size_t kLength = kCourseRecordLength;
  static constexpr auto kFields = course_fields::WithTail(course_fields::kQuenbyTail);
};

// Describes Kelvane's own layout. It has the same bytes, but no YardsOrMeters.
struct KelvaneCourseLayout {
  static constexpr std::string_view kName = "kelvane course";
  static constexpr std::size_t kLength = kCourseRecordLength;
  static constexpr auto kFields = course_fields::WithTail(course_fields::kKelvaneTail);
};

// Describes a course index. Record 1 contains the number of entries. The next records contain the
// course numbers in display order. Any records after them are left over from a longer list and have
// no meaning.
struct CourseIndexLayout {
  static constexpr std::string_view kName = "course index";
  static constexpr std::size_t kLength = 2;
  static constexpr auto kFields = std::to_array<Field>(
      {Int16Field("Index", 0)
           .Means("record 1: the number of entries; other records: a course number")});
};

}  // namespace golf
