#include "outlets/checkup/check_courses.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <utility>

#include "core/text.h"
#include "outlets/checkup/known_golfer.h"
#include "stores/course/course_library.h"
#include "stores/course/tee_rules.h"

namespace golf {
namespace {

// The text of a fault ends with advice for the course form, which follows a carriage return.
std::string FaultText(const Record<CourseLayout>& course, int tee, const TeeFault& fault) {
  std::string text = "Tee " + std::to_string(tee);
  const std::string name = WithoutPadding(course.Get<"TeeName">(tee));
  if (!name.empty()) text += " (" + name + ")";
  if (fault.hole > 0) text += ", hole " + std::to_string(fault.hole);
  if (fault.field == TeeField::kRating || fault.field == TeeField::kSlope) {
    text += fault.group == 0 ? ", men" : ", ladies";
  }
  return text + ": " + fault.text.substr(0, fault.text.find('\r'));
}

class LibraryCheck {
 public:
  LibraryCheck(FileScan& scan, const CourseLibrary& library)
      : scan_(scan),
        library_(library),
        folder_(scan.state().*library.folder),
        file_(scan.NameOf(folder_, CourseFileName(library.program))) {}

  KnownCourses Run() {
    if (!scan_.HasFolder(folder_)) return {};
    const auto count = scan_.ForEach<CourseLayout>(
        file_, true, [&](std::int64_t number, const auto& course) { Add(number, course); });
    known_.is_read = count.has_value() && !scan_.IsDamaged(file_);
    if (!known_.is_read) return std::move(known_);
    for (const auto& [list, holes] : {std::pair("9CRS", 9), {"18CRS", 18}, {"ALLCRS", 0}}) {
      CheckIndex(list, holes);
    }
    return std::move(known_);
  }

  const std::string& file() const { return file_; }

 private:
  void Add(std::int64_t number, const Record<CourseLayout>& course) {
    KnownCourse known{.is_active = course.Get<"activeflag">() != 0,
                      .hole_num_flag = course.Get<"HoleNumFlag">(),
                      .kelvane_course = course.Get<"KVCourseNum">(),
                      .name = WithoutPadding(course.Get<"Name">())};
    known.sorted_name = UpperCase(course.Get<"Name">());
    for (int tee = 1; tee <= kTeeSlots; ++tee) {
      if (course.Get<"ActiveTees">(tee) == 0) continue;
      known.tees = static_cast<std::uint8_t>(known.tees | (1 << tee));
    }
    if (known.is_active) CheckCourse(number, course, known);
    known_.courses.push_back(std::move(known));
  }

  void CheckCourse(std::int64_t number, const Record<CourseLayout>& course,
                   const KnownCourse& known) {
    const auto [same, is_new] =
        numbers_.emplace(std::pair(UpperCase(known.name), known.hole_num_flag), number);
    if (!is_new && !known.name.empty()) {
      scan_.Add(FindingCode::kCourseTwice, file_, number, known.name,
                "Course " + std::to_string(same->second) + " has the same name and holes.");
    }
    for (int tee = 1; tee < kTeeSlots; ++tee) {  // the last tee is never shown
      if (!known.HasTee(tee)) continue;
      for (const TeeFault& fault : FaultsOfTee(course, tee)) {
        scan_.Add(FindingCode::kTeeRule, file_, number, known.name, FaultText(course, tee, fault));
      }
    }
  }

  // `holes` is 9 or 18, or 0 for the list of all courses.
  void CheckIndex(const std::string& list, int holes) {
    const std::string file = scan_.NameOf(folder_, list + std::string(library_.program) + ".INX");
    std::vector<int> values;
    const std::size_t wanted = CountIn(holes);
    // A library without courses needs no index.
    const auto count = scan_.ForEach<CourseIndexLayout>(
        file, false,
        [&](std::int64_t, const auto& entry) { values.push_back(entry.template Get<"Index">()); });
    if (!count || scan_.IsDamaged(file)) {
      if (wanted > 0 && !scan_.IsDamaged(file)) {
        scan_.Add(FindingCode::kIndexMissing, file, 0, "", "The index does not exist.");
      }
      return;
    }
    const int entries = values.empty() ? 0 : values.front();
    if (entries < 0 || entries > std::ssize(values) - (values.empty() ? 0 : 1)) {
      scan_.Add(FindingCode::kIndexCount, file, 1, "",
                "The count is " + std::to_string(entries) + ", but the file has " +
                    std::to_string(std::max<std::ptrdiff_t>(std::ssize(values) - 1, 0)) +
                    " entries.");
      return;
    }
    CheckEntries(file,
                 {values.begin() + (values.empty() ? 0 : 1),
                  values.begin() + (values.empty() ? 0 : 1 + entries)},
                 holes, wanted);
  }

  void CheckEntries(const std::string& file, const std::vector<int>& entries, int holes,
                    std::size_t wanted) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
      const KnownCourse* const course = known_.Find(entries[i]);
      if (course != nullptr && course->is_active) continue;
      scan_.Add(FindingCode::kIndexNowhere, file, static_cast<std::int64_t>(i) + 2, "",
                "The entry is course " + std::to_string(entries[i]) +
                    (course == nullptr ? ", which does not exist." : ", which was deleted."));
      return;
    }
    const std::string fault = FaultOf(entries, holes, wanted);
    if (!fault.empty()) scan_.Add(FindingCode::kIndexStale, file, 0, "", fault);
  }

  // Returns why a list of active courses is wrong, as a sentence, or an empty text.
  std::string FaultOf(const std::vector<int>& entries, int holes, std::size_t wanted) const {
    std::set<int> listed;
    for (const int number : entries) {
      const std::string name = "Course " + std::to_string(number);
      if (!listed.insert(number).second) return name + " is listed twice.";
      if (!IsIn(*known_.Find(number), holes)) return name + " does not belong to the list.";
    }
    if (entries.size() != wanted) {
      return "The index lists " + std::to_string(entries.size()) + " courses, but " +
             std::to_string(wanted) + " belong to it.";
    }
    const bool is_sorted = std::is_sorted(entries.begin(), entries.end(), [&](int a, int b) {
      return known_.Find(a)->sorted_name < known_.Find(b)->sorted_name;
    });
    return is_sorted ? "" : "The courses are not sorted by name.";
  }

  static bool IsIn(const KnownCourse& course, int holes) {
    return course.is_active && (holes == 0 || std::abs(course.hole_num_flag) == holes);
  }

  std::size_t CountIn(int holes) const {
    return static_cast<std::size_t>(
        std::count_if(known_.courses.begin(), known_.courses.end(),
                      [&](const KnownCourse& course) { return IsIn(course, holes); }));
  }

  FileScan& scan_;
  const CourseLibrary& library_;
  std::string folder_;
  std::string file_;
  KnownCourses known_;
  std::map<std::pair<std::string, int>, std::int64_t> numbers_;  // by name and holes
};

// Checks the links of Quenby's courses to Kelvane's.
void CheckLinks(FileScan& scan, const std::string& file, const KnownLibraries& known) {
  std::int64_t number = 0;
  for (const KnownCourse& course : known.quenby.courses) {
    ++number;
    if (!course.is_active || course.kelvane_course == 0) continue;
    const std::string link = "Kelvane's course " + std::to_string(course.kelvane_course);
    const KnownCourse* const linked = known.kelvane.Find(course.kelvane_course);
    if (linked == nullptr) {
      scan.Add(FindingCode::kCourseLinkNowhere, file, number, course.name,
               "The course is linked to " + link + ", which does not exist.");
    } else if (!EqualIgnoringCase(linked->name, course.name) ||
               linked->hole_num_flag != course.hole_num_flag) {
      scan.Add(FindingCode::kCourseLinkWrong, file, number, course.name,
               "The course is linked to " + link + ", which is \"" + linked->name + "\", " +
                   HolesText(linked->hole_num_flag) + " holes.");
    }
  }
}

// Finds courses whose names are spelled differently in Kelvane. `is_matched_by_name` says whether a
// transfer matches a course by its name.
template <class IsMatchedByName>
void CheckNames(FileScan& scan, const std::string& file, const KnownCourses& courses,
                const KnownCourses& kelvane, const IsMatchedByName& is_matched_by_name) {
  std::map<std::string, const KnownCourse*> folded;
  std::set<std::string> names;
  for (const KnownCourse& course : kelvane.courses) {
    if (!course.is_active) continue;
    folded.emplace(FoldedName(course.name), &course);
    names.insert(UpperCase(course.name));
  }
  std::int64_t number = 0;
  for (const KnownCourse& course : courses.courses) {
    ++number;
    if (!course.is_active || !is_matched_by_name(course)) continue;
    if (names.contains(UpperCase(course.name))) continue;
    const auto similar = folded.find(FoldedName(course.name));
    if (similar == folded.end()) continue;
    scan.Add(FindingCode::kNameSpelling, file, number, course.name,
             "Kelvane spells the name \"" + similar->second->name + "\".");
  }
}

}  // namespace

KnownLibraries CheckCourses(FileScan& scan) {
  KnownLibraries known;
  known.kelvane = LibraryCheck(scan, kKelvaneCourses).Run();
  LibraryCheck quenby(scan, kQuenbyCourses);
  known.quenby = quenby.Run();
  LibraryCheck zandel(scan, kZandelCourses);
  known.zandel = zandel.Run();
  if (!known.kelvane.is_read) return known;
  CheckLinks(scan, quenby.file(), known);
  CheckNames(scan, quenby.file(), known.quenby, known.kelvane,
             [](const KnownCourse& course) { return course.kelvane_course == 0; });
  CheckNames(scan, zandel.file(), known.zandel, known.kelvane,
             [](const KnownCourse&) { return true; });
  return known;
}

}  // namespace golf
