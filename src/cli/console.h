#pragma once

#include <string>
#include <vector>

namespace golf {

// What the command line needs of a terminal and of the way it was started.

// Makes the standard streams speak UTF-8 and leave line ends alone.
void PrepareConsole();
// True where it is a terminal that can take a line back.
bool ErrorOutputIsTerminal();
// The arguments of the process in UTF-8, without the program's name.
std::vector<std::string> Utf8Arguments(int argc, const char* const* argv);

}  // namespace golf
