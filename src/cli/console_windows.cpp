#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <array>
#include <cstdio>
#include <iostream>

#include "cli/console.h"
#include "cli/console_text.h"
#include "cli/utf8_path.h"

namespace golf {
namespace {

bool IsConsole(HANDLE stream) {
  DWORD mode = 0;
  return GetConsoleMode(stream, &mode) != FALSE;
}

// Writes to the console in UTF-16, which it shows whatever its code page is.
bool WriteToConsole(HANDLE console, std::u16string_view text) {
  const std::wstring wide(text.begin(), text.end());
  DWORD done = 0;
  for (DWORD at = 0; at < wide.size(); at += done) {
    const auto rest = static_cast<DWORD>(wide.size()) - at;
    if (!WriteConsoleW(console, wide.data() + at, rest, &done, nullptr) || done == 0) return false;
  }
  return true;
}

std::u16string ReadFromConsole(HANDLE console) {
  std::array<wchar_t, 4096> buffer{};
  DWORD count = 0;
  if (!ReadConsoleW(console, buffer.data(), buffer.size(), &count, nullptr)) return {};
  return {buffer.begin(), buffer.begin() + count};
}

// The stream uses its buffer until the process ends, so the buffer is never deleted.
void ConnectToConsole(std::ostream& stream, DWORD name) {
  const HANDLE console = GetStdHandle(name);
  if (!IsConsole(console)) return;
  stream.rdbuf(new ConsoleOutput(
      [console](std::u16string_view text) { return WriteToConsole(console, text); }));
}

}  // namespace

void PrepareConsole() {
  for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  ConnectToConsole(std::cout, STD_OUTPUT_HANDLE);
  ConnectToConsole(std::cerr, STD_ERROR_HANDLE);
  const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
  if (IsConsole(input)) {
    std::cin.rdbuf(new ConsoleInput([input] { return ReadFromConsole(input); }));
  }
}

bool ErrorOutputIsTerminal() {
  const HANDLE output = GetStdHandle(STD_ERROR_HANDLE);
  DWORD mode = 0;
  return GetConsoleMode(output, &mode) &&
         SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

// Reads the arguments from the system, since those of main are in the system's code page, which
// does not have every character.
std::vector<std::string> Utf8Arguments(int, const char* const*) {
  std::vector<std::string> arguments;
  int count = 0;
  wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; i < count; ++i) arguments.push_back(Utf8FromPath(words[i]));
  LocalFree(words);
  return arguments;
}

}  // namespace golf
