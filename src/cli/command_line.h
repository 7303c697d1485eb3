#pragma once

namespace golf {

// Reads the arguments, runs the command that they name, and writes its problems to standard error.
// Returns the exit code of the process.
int RunCommandLine(int argc, const char* const* argv);

}  // namespace golf
