// The tests start this program.
//
//   golf_child forms        shows how this system writes dates and times
//   golf_child lock FOLDER  locks a folder for a run and ends without releasing the lock
//   golf_child console PAGE PROGRAM WORDS
//                           gives its console this code page, runs a program with these arguments,
//                           and writes the code page afterwards and what the console shows, in
//                           UTF-8, to the file "screen"
//
// If it has any other name or any other arguments, it replaces one of the other golf programs in a
// test. It then writes a file next to itself that contains the first argument and the number of
// arguments.

#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
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

constexpr SHORT kWidth = 120, kHeight = 60;  // of the console, in characters

// Runs a program with a new screen of the console as its output, and returns this screen.
HANDLE RunOnNewScreen(const std::wstring& program, const std::wstring& words) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  const HANDLE screen =
      CreateConsoleScreenBuffer(GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                &inherited, CONSOLE_TEXTMODE_BUFFER, nullptr);
  SetConsoleScreenBufferSize(screen, {kWidth, kHeight});
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  start.hStdOutput = start.hStdError = screen;
  std::wstring line = L"\"" + program + L"\" " + words;
  PROCESS_INFORMATION process{};
  CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                 &process);
  WaitForSingleObject(process.hProcess, INFINITE);
  return screen;
}

int ShowConsole(int count, wchar_t** words) {
  if (count != 5) return 2;
  const auto page = static_cast<UINT>(std::stoul(words[2]));
  if (!SetConsoleOutputCP(page) || !SetConsoleCP(page)) return 3;
  const HANDLE screen = RunOnNewScreen(words[3], words[4]);
  std::ofstream file("screen", std::ios::binary);
  file << GetConsoleOutputCP() << '\n';
  for (SHORT row = 0; row < kHeight; ++row) {
    std::wstring line(kWidth, L' ');
    DWORD read = 0;
    ReadConsoleOutputCharacterW(screen, line.data(), kWidth, {0, row}, &read);
    line.erase(line.find_last_not_of(L' ') + 1);
    const std::u8string utf8 = fs::path(line).u8string();
    file << std::string(utf8.begin(), utf8.end()) << '\n';
  }
  return 0;
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
  if (first == "console") {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    return ShowConsole(count, words);
  }
  return LeaveFile(argv[0], first, argc - 1);
}
