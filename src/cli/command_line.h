#pragma once

namespace golf {

// Reads the arguments, runs the command they name and tells its problems on standard error. Gives
// the exit code of the process.
int RunCommandLine(int argc, const char* const* argv);

}  // namespace golf
