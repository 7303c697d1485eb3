// Measures the course transfer as a whole process. The install has a Kelvane library, and a Quenby
// library half as long whose courses are all linked. The benchmark compares the transfer with a
// bare loop that makes one system call for each record. The loop reads the Quenby links once, reads
// and writes each Kelvane record once, and reads the Quenby library again. The benchmark also
// measures a plain copy of the same files.
//
// course_transfer [ROUNDS]            prints medians for 10,000 and for 30,000 courses
// course_transfer --bare-loop DIR     runs the bare loop

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <numeric>
#include <random>
#include <stdexcept>
#include <string>
#include <unordered_map>

#include "core/record.h"
#include "stores/course/course_layout.h"
#include "whole_process.h"

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

using CourseRecord = Record<KelvaneCourseLayout>;

// Returns a course. Every fifth course has nine holes.
CourseRecord MadeUpCourse(int number, int name_number) {
  CourseRecord course;
  course.Set<"activeflag">(1);
  course.Set<"HoleNumFlag">(static_cast<std::int16_t>(number % 5 == 0 ? 9 : 18));
  course.Set<"Name">("Course " + std::to_string(name_number));
  return course;
}

void MakeInstall(const fs::path& folder, int courses) {
  fs::create_directories(folder / "kvdata");
  fs::create_directories(folder / "qbdata");
  std::ofstream kelvane(folder / "kvdata" / "kvcrs.dat", std::ios::binary);
  std::ofstream quenby(folder / "qbdata" / "qbcrs.dat", std::ios::binary);
  std::vector<int> names(static_cast<std::size_t>(courses));
  std::iota(names.begin(), names.end(), 1);
  std::shuffle(names.begin(), names.end(), std::mt19937(1));
  for (int number = 1; number <= courses; ++number) {
    CourseRecord course = MadeUpCourse(number, names[static_cast<std::size_t>(number) - 1]);
    kelvane << course.Bytes();
    course.Set<"KVCourseNum">(static_cast<std::int16_t>(number));
    if (number <= courses / 2) quenby << course.Bytes();
  }
}

void Need(bool worked) {
  if (!worked) throw std::runtime_error("the bare loop failed");
}

int OpenLibrary(const fs::path& path, int flags) {
  const int file = open(path.c_str(), flags);
  Need(file >= 0);
  return file;
}

int CourseCount(int file) {
  return static_cast<int>(lseek(file, 0, SEEK_END) / static_cast<off_t>(kCourseRecordLength));
}

void BareLoop(const fs::path& folder) {
  constexpr auto kLength = static_cast<off_t>(kCourseRecordLength);
  constexpr off_t kLink = FieldOf<KelvaneCourseLayout, "KVCourseNum">().offset;
  const int quenby = OpenLibrary(folder / "qbdata" / "qbcrs.dat", O_RDWR);
  const int kelvane = OpenLibrary(folder / "kvdata" / "kvcrs.dat", O_RDONLY);
  std::unordered_map<int, int> records;
  const int linked = CourseCount(quenby);
  for (int record = 0; record < linked; ++record) {
    std::int16_t link = 0;
    Need(pread(quenby, &link, sizeof link, record * kLength + kLink) == sizeof link);
    records.emplace(link, record);
  }
  CourseRecord course;
  const auto bytes = course.MutableBytes();
  int end = linked;
  const int courses = CourseCount(kelvane);
  for (int record = 0; record < courses; ++record) {
    Need(pread(kelvane, bytes.data(), bytes.size(), record * kLength) == kLength);
    course.Set<"KVCourseNum">(static_cast<std::int16_t>(record + 1));
    const auto found = records.find(record + 1);
    const int to = found == records.end() ? end++ : found->second;
    Need(pwrite(quenby, bytes.data(), bytes.size(), to * kLength) == kLength);
  }
  for (int record = 0; record < end; ++record) {
    Need(pread(quenby, bytes.data(), bytes.size(), record * kLength) == kLength);
  }
  close(quenby);
  close(kelvane);
}

BareLoopRace RaceOver(int courses) {
  return {.title = std::to_string(courses) + " Kelvane courses, " + std::to_string(courses / 2) +
                   " in Quenby, all linked",
          .make_install = [courses](const fs::path& folder) { MakeInstall(folder, courses); },
          .words = {"courses-kv-to-qb"},
          .others = {{"cp --reflink=never",
                      {"sh", "-c", "cd {} && mkdir copy && cp --reflink=never -r *data copy"}}}};
}

}  // namespace
}  // namespace golf::bench

int main(int argc, char** argv) {
  using namespace golf::bench;
  const auto seconds = RaceBareLoop(argc, argv, BareLoop, {RaceOver(10000), RaceOver(30000)});
  if (seconds.empty()) return 0;
  std::printf("Three times the courses take %.2f times as long.\n", seconds[1] / seconds[0]);
}
