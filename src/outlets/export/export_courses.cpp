#include <utility>

#include "outlets/export/exporters.h"
#include "outlets/free_records.h"
#include "stores/course/course_library.h"

namespace golf {
namespace {

// Exports a course library. `kelvane` are the courses that KVCourseNum refers to, or null.
class LibraryExport {
 public:
  LibraryExport(ExportRun& run, const CourseLibrary& library, const std::string& name,
                const ExportedCourses* kelvane)
      : run_(run), library_(library), name_(name), kelvane_(kelvane) {}

  ExportedCourses Run() {
    const std::string file = NameOf(CourseFileName(library_.program));
    run_.ForEach<CourseLayout>(file, [&](std::int64_t number, const auto& course) {
      if (run_.IsWanted(IsFree(course), course.Bytes())) Add(number, course);
    });
    AddList("9CRS", "9");
    AddList("18CRS", "18");
    AddList("ALLCRS", "all");
    return std::move(courses_);
  }

 private:
  std::string NameOf(const std::string& file) const {
    return run_.files().NameOf(run_.state().*library_.folder, file);
  }

  void Add(std::int64_t number, const Record<CourseLayout>& course) {
    const std::int64_t id = run_.NextId(TableId::kCourses);
    courses_.Add(number, id);
    run_.Add(TableId::kCourses, {id, name_, number, IsFree(course)},
             {kelvane_ == nullptr ? 0 : kelvane_->CourseId(course.Get<"KVCourseNum">())},
             course.Bytes());
    const auto own_of = [&](std::span<const int> indexes) {
      const std::int64_t tee = run_.NextId(TableId::kTees);
      courses_.AddTee(number, indexes[0], tee);
      return std::vector<OwnValue>{tee, id};
    };
    run_.AddElements(TableId::kTees, own_of, course.Bytes());
    const auto links_of = [&](std::span<const int> indexes) {
      return std::vector{courses_.TeeId(number, indexes[0])};
    };
    run_.AddElements(TableId::kTeeHoles, id, course.Bytes(), links_of);
  }

  // The first record of an index is the number of entries. The records after them have no meaning.
  void AddList(const std::string& list, const std::string& name) {
    std::int64_t entries = 0;
    run_.ForEach<CourseIndexLayout>(NameOf(list + std::string(library_.program) + ".INX"),
                                    [&](std::int64_t number, const auto& index) {
                                      const int value = index.template Get<"Index">();
                                      if (number == 1) {
                                        entries = value;
                                      } else if (number - 1 <= entries) {
                                        run_.Add(TableId::kCourseLists, {name_, name, number - 1},
                                                 {courses_.CourseId(value)}, index.Bytes());
                                      }
                                    });
  }

  ExportRun& run_;
  const CourseLibrary& library_;
  std::string name_;
  ExportedCourses courses_;
  const ExportedCourses* kelvane_;
};

}  // namespace

ExportedLibraries ExportCourses(ExportRun& run) {
  ExportedLibraries libraries;
  libraries.kelvane = LibraryExport(run, kKelvaneCourses, "kelvane", nullptr).Run();
  libraries.quenby = LibraryExport(run, kQuenbyCourses, "quenby", &libraries.kelvane).Run();
  libraries.zandel = LibraryExport(run, kZandelCourses, "zandel", nullptr).Run();
  return libraries;
}

}  // namespace golf
