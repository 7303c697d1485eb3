#pragma once

#include <string>
#include <vector>

namespace golf {

// These functions access the terminal and the arguments of the process.

// Makes the standard streams pass UTF-8 and line ends unchanged to files and pipes. A console
// receives whole characters, and shows them under every code page.
void PrepareConsole();
// True if standard error is a terminal that can erase a line.
bool ErrorOutputIsTerminal();
// Returns the arguments of the process in UTF-8, without the program's name.
std::vector<std::string> Utf8Arguments(int argc, const char* const* argv);

}  // namespace golf
