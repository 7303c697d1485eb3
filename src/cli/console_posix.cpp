#include <unistd.h>

#include <csignal>

#include "cli/console.h"

namespace golf {

// Ignores SIGPIPE, so that a run does not end halfway when the reader of the output ends.
// CheckOutput reports the lost output.
void PrepareConsole() { std::signal(SIGPIPE, SIG_IGN); }

bool ErrorOutputIsTerminal() { return isatty(STDERR_FILENO) != 0; }

std::vector<std::string> Utf8Arguments(int argc, const char* const* argv) {
  return {argv + 1, argv + argc};
}

}  // namespace golf
