#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>
#include <cstdlib>

#include "cli/console.h"
#include "cli/utf8_path.h"

namespace golf {
namespace {

UINT output_page_before = 0;

}  // namespace

void PrepareConsole() {
  for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  output_page_before = GetConsoleOutputCP();
  if (output_page_before == 0) return;  // there is no console
  SetConsoleOutputCP(CP_UTF8);
  // The console exists longer than this program, so its code page is restored.
  std::atexit([] { SetConsoleOutputCP(output_page_before); });
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
