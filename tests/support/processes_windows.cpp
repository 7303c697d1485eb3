#define NOMINMAX
#include "support/processes_windows.h"

#include <windows.h>

#include <filesystem>
#include <stdexcept>

#include "support/processes.h"

namespace golf {
namespace {

namespace fs = std::filesystem;

std::wstring Wide(const std::string& utf8) {
  return fs::path(std::u8string(utf8.begin(), utf8.end())).wstring();
}

HANDLE OpenStream(const TempFolder& folder, const char* name, DWORD access) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  return CreateFileW(Wide(folder.Path(name)).c_str(), access, FILE_SHARE_READ, &inherited,
                     access == GENERIC_READ ? OPEN_EXISTING : CREATE_ALWAYS, 0, nullptr);
}

}  // namespace

HeldFile::HeldFile(const std::string& utf8_path)
    : system_(CreateFileW(Wide(utf8_path).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                          OPEN_EXISTING, 0, nullptr)),
      held_(system_ != INVALID_HANDLE_VALUE) {}

HeldFile::~HeldFile() {
  if (held_) CloseHandle(system_);
}

PROCESS_INFORMATION StartProgramIn(const TempFolder& folder, const std::string& program,
                                   const std::string& words, const std::string& input,
                                   DWORD flags) {
  folder.Write("in", input);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = OpenStream(folder, "in", GENERIC_READ);
  start.hStdOutput = OpenStream(folder, "out", GENERIC_WRITE);
  start.hStdError = OpenStream(folder, "problems", GENERIC_WRITE);
  std::wstring line = L"\"" + fs::absolute(program).wstring() + L"\" " + Wide(words);
  PROCESS_INFORMATION process{};
  const BOOL started = CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, flags, nullptr,
                                      Wide(folder.Path()).c_str(), &start, &process);
  const DWORD failure = GetLastError();
  for (const HANDLE stream : {start.hStdInput, start.hStdOutput, start.hStdError}) {
    CloseHandle(stream);
  }
  if (!started) {
    throw std::runtime_error("cannot start " + program + ": error " + std::to_string(failure));
  }
  return process;
}

Ended EndOf(const TempFolder& folder, const PROCESS_INFORMATION& process) {
  DWORD code = 0;
  WaitForSingleObject(process.hProcess, INFINITE);
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return {static_cast<int>(code), folder.Read("out"), folder.Read("problems")};
}

LPTHREAD_START_ROUTINE ConsoleEventRoutine() {
  return reinterpret_cast<LPTHREAD_START_ROUTINE>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernelbase"), "CtrlRoutine")));
}

Ended RunProgram(const TempFolder& folder, const std::string& program, const std::string& words,
                 const std::string& input) {
  return EndOf(folder, StartProgramIn(folder, program, words, input, 0));
}

}  // namespace golf
