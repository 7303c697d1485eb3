#include "transfers/kv_courses_to_qb.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/number_text.h"
#include "stores/course/course_class.h"
#include "stores/course/course_library.h"
#include "transfers/transfer_run.h"

namespace golf {
namespace {

constexpr int kSource = 10;
constexpr int kDestination = 11;

// The Quenby records that carry a Kelvane number, as the file stood before the run. A search for a
// number gives all of them in file order, as a walk over the whole file would, at the cost of a
// look-up.
class CourseLinks {
 public:
  using Link = std::pair<std::int16_t, std::int64_t>;  // Kelvane number, Quenby record

  void Read(FileTable& files, int number, std::int64_t count) {
    Record<KelvaneCourseLayout> course;
    for (std::int64_t record = 1; record <= count; ++record) {
      files.Read(number, record, course);
      const std::int16_t kelvane_number = course.Get<"KVCourseNum">();
      if (kelvane_number > 0)
        links_.emplace_back(kelvane_number, record);  // the others link to none
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

}  // namespace

KVCoursestoQB::KVCoursestoQB(const ScreenContext& context) : Screen("KVCoursestoQB", context) {
  SetCaption("Transfer COURSES from Kelvane to Quenby");
  Add({&Label1, &TransferLabel, &TransferCourses, &CancelButton});
  TransferCourses.SetDefault(true);
  CancelButton.SetCancel(true);
  TransferCourses.on_click = [this] {
    RunTransfer(*this, state(), host(), [this] { Transfer(); });
  };
  CancelButton.on_click = [this] { host().Unload(*this); };
}

void KVCoursestoQB::OnLoad() {
  Label1.SetCaption(
      "Click the button below to copy (update) courses from the Kelvane's course library to the "
      "Quenby's course library.");
}

void KVCoursestoQB::Transfer() {
  const JoinedWrites joined(state().files);
  const Counts counts = CopyCourses();
  TransferLabel.SetCaption("");
  host().RepaintNow(TransferLabel);
  state().InitSharedObjects();
  TellCounts(counts);
  RebuildIndexes();
  state().InitSharedObjects();
  host().Unload(*this);
}

KVCoursestoQB::Counts KVCoursestoQB::CopyCourses() {
  constexpr std::size_t kLength = KelvaneCourseLayout::kLength;
  FileTable& files = state().files;
  const std::string quenby_library = state().QBDataPath + "qbcrs.dat";

  files.Open(kSource, quenby_library, kLength);
  const std::int64_t quenby_count = files.CountRounded(kSource, kLength);
  CourseLinks links;
  links.Read(files, kSource, quenby_count);
  files.Close(kSource);

  files.Open(kSource, state().KVDataPath + "kvcrs.dat", kLength);
  files.Open(kDestination, quenby_library, kLength);
  const std::int64_t kelvane_count = files.CountRounded(kSource, kLength);
  Counts counts;
  Record<KelvaneCourseLayout> course;
  for (std::int64_t source = 1; source <= kelvane_count; ++source) {
    files.Read(kSource, source, course);
    const std::int16_t kelvane_number = CheckedInt16(source);
    course.Set<"KVCourseNum">(kelvane_number);
    // A course that is not present is copied as well, so that numbers stay linked, but it is
    // neither shown nor counted as an update.
    const bool present = (course.Get<"activeflag">() & 1) != 0;
    if (present) {
      TransferLabel.SetCaption(course.Get<"Name">());
      host().RepaintNow(TransferLabel);
    }
    host().Tell({source, kelvane_count, TransferLabel.caption()});
    const auto [first, last] = links.Find(kelvane_number);
    for (auto link = first; link != last; ++link) {
      if (present) CountUp(counts.updated);
      files.Write(kDestination, link->second, course);
    }
    if (first == last) {
      CountUp(counts.added);
      files.Write(kDestination, quenby_count + counts.added, course);
    }
  }
  return counts;
}

void KVCoursestoQB::TellCounts(const Counts& counts) {
  host().TellCount("added", counts.added);
  host().TellCount("updated", counts.updated);
  host().Ask(Box{.title = "Course transfer complete.",
                 .text = "Number of courses ADDED:" + NumberText(counts.added) +
                         "\rNumber of courses UPDATED:" + NumberText(counts.updated) + "\r",
                 .icon = BoxIcon::kInformation});
}

void KVCoursestoQB::RebuildIndexes() {
  OpenCourseLibrary(state(), *FindCourseLibrary("QB"));
  CourseClass& course = state().Course();
  course.RebuildCourseIndexes(course.ActiveCoursesByName());
}

}  // namespace golf
