#include <unistd.h>

#include "cli/console.h"

namespace golf {

void PrepareConsole() {}

bool ErrorOutputIsTerminal() { return isatty(STDERR_FILENO) != 0; }

}  // namespace golf
