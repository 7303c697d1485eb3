#include "transfers/courses_kv_to_qb.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "core/number_text.h"
#include "core/text.h"
#include "stores/course/course_class.h"
#include "stores/course/course_library.h"

namespace golf {
namespace {

constexpr int kSource = 10;
constexpr int kDestination = 11;

// Finds Quenby's course records by Kelvane number. The index is made before the run changes the
// file. A search returns the records in file order and does not read the file again.
class CourseLinks {
 public:
  using Link = std::pair<std::int16_t, std::int64_t>;  // Kelvane number, Quenby record

  void Read(FileTable& files, int number, std::int64_t count) {
    Record<KelvaneCourseLayout> course;
    for (std::int64_t record = 1; record <= count; ++record) {
      files.Read(number, record, course);
      const std::int16_t kelvane_number = course.Get<"KVCourseNum">();
      if (kelvane_number > 0)
        links_.emplace_back(kelvane_number, record);  // other courses have no link
    }
    std::sort(links_.begin(), links_.end());
  }

  std::pair<std::vector<Link>::const_iterator, std::vector<Link>::const_iterator> Find(
      std::int16_t kelvane_number) const {
    return std::equal_range(links_.begin(), links_.end(), Link(kelvane_number, 0),
                            [](const Link& a, const Link& b) { return a.first < b.first; });
  }

 private:
  std::vector<Link> links_;
};

// Copies the courses between the two open files. The number of records is rounded, so an incomplete
// record counts if the file contains more than half of it.
void CopyCourses(FileTable& files, RunHost& host, const CourseLinks& links,
                 std::int64_t quenby_count, CoursesKvToQbReport& report) {
  const std::int64_t kelvane_count = files.CountRounded(kSource, KelvaneCourseLayout::kLength);
  Record<KelvaneCourseLayout> course;
  const auto is_in_use = [&course] { return (course.Get<"activeflag">() & 1) != 0; };
  const auto copy = [&](std::int64_t source) {
    files.Read(kSource, source, course);
    const std::int16_t kelvane_number = CheckedInt16(source);
    course.Set<"KVCourseNum">(kelvane_number);
    // A course that is not in use is also copied, so that its number stays linked. It is not shown,
    // and an update of it is not counted.
    const bool in_use = is_in_use();
    host.Report({source, kelvane_count, in_use ? course.Get<"Name">() : std::string()});
    host.Group(Trim(course.Get<"Name">()));
    const auto [first, last] = links.Find(kelvane_number);
    for (auto link = first; link != last; ++link) {
      if (in_use) CountUp(report.updated);
      files.Write(kDestination, link->second, course);
    }
    if (first == last) {
      CountUp(report.added);
      files.Write(kDestination, quenby_count + report.added, course);
    }
    return true;
  };
  TakeInOrder(report, kelvane_count, copy, [&](std::int64_t source) {
    files.Read(kSource, source, course);
    return is_in_use() ? std::string(Trim(course.Get<"Name">())) : std::string();
  });
}

void RebuildQuenbyCourseIndexes(SharedState& state) {
  OpenCourseLibrary(state, kQuenbyCourses);
  CourseClass& course = state.Course();
  course.RebuildCourseIndexes(course.ActiveCoursesByName());
  state.InitSharedObjects();
}

}  // namespace

void Run(SharedState& state, RunHost& host, const CoursesKvToQbRequest&,
         CoursesKvToQbReport& report) {
  constexpr std::size_t kLength = KelvaneCourseLayout::kLength;
  FileTable& files = state.files;
  const std::string quenby_library = state.QBDataPath + "qbcrs.dat";

  files.Open(kSource, quenby_library, kLength);
  const std::int64_t quenby_count = files.CountRounded(kSource, kLength);
  CourseLinks links;
  links.Read(files, kSource, quenby_count);
  files.Close(kSource);

  files.Open(kSource, state.KVDataPath + "kvcrs.dat", kLength);
  files.Open(kDestination, quenby_library, kLength);
  host.Begin();
  CopyCourses(files, host, links, quenby_count, report);
  state.InitSharedObjects();
  host.Group("");
  try {
    RebuildQuenbyCourseIndexes(state);
  } catch (const NumberedError& error) {
    report.index_error = error;  // the courses are already copied
  }
  report.log = "Course transfer complete." + std::string(kReportLineEnd) +
               CountsText(report, kReportLineEnd);
  report.end = RunEnd::kDone;
}

std::string CountsText(const CoursesKvToQbReport& report, std::string_view line_end) {
  return std::string("Number of courses ADDED:")
      .append(NumberText(report.added))
      .append(line_end)
      .append("Number of courses UPDATED:")
      .append(NumberText(report.updated))
      .append(line_end);
}

}  // namespace golf
