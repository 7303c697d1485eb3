#include <unistd.h>

#include "cli/console.h"

namespace golf {

void PrepareConsole() {}

bool ErrorOutputIsTerminal() { return isatty(STDERR_FILENO) != 0; }

std::vector<std::string> Utf8Arguments(int argc, const char* const* argv) {
  return {argv + 1, argv + argc};
}

}  // namespace golf
