#include <unistd.h>

#include <csignal>

#include "cli/console.h"

namespace golf {

// A reader that goes away must not kill a run halfway; the failed output is told at the end.
void PrepareConsole() { std::signal(SIGPIPE, SIG_IGN); }

bool ErrorOutputIsTerminal() { return isatty(STDERR_FILENO) != 0; }

std::vector<std::string> Utf8Arguments(int argc, const char* const* argv) {
  return {argv + 1, argv + argc};
}

}  // namespace golf
