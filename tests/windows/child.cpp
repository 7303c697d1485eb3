// The tests start this program.
//
//   golf_child forms        shows how this system writes dates and times
//   golf_child lock FOLDER  locks a folder for a run and ends without releasing the lock
//
// If it has any other name or any other arguments, it replaces one of the other golf programs in a
// test. It then writes a file next to itself that contains the first argument and the number of
// arguments.

#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "core/platform.h"

namespace {

namespace fs = std::filesystem;

int ShowForms() {
  const golf::RegionalForms regional = golf::MakePlatform("")->Regional();
  const auto dates = golf::DetectDateForms(regional, golf::DateFromCivil({2026, 11, 7}));
  const auto times = golf::DetectTimeForms(regional);
  std::printf("%s %s %s", dates.format.c_str(), dates.mask.c_str(), times.mask.c_str());
  return 0;
}

int LockAndDie(const std::string& folder) {
  const auto lock = golf::MakePlatform(folder)->LockRun(folder);
  return TerminateProcess(GetCurrentProcess(), lock == nullptr ? 1 : 7);
}

int LeaveFile(const std::string& program, const std::string& first, int count) {
  std::FILE* file = std::fopen((program + ".new").c_str(), "w");
  if (file == nullptr) return 1;
  std::fprintf(file, "%s,%d", first.c_str(), count);
  std::fclose(file);
  fs::rename(program + ".new", program + ".out");  // the file is complete as soon as it exists
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string first = argc > 1 ? argv[1] : "";
  if (first == "forms") return ShowForms();
  if (first == "lock" && argc > 2) return LockAndDie(argv[2]);
  return LeaveFile(argv[0], first, argc - 1);
}
