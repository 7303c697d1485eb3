#pragma once

namespace golf {

// What the command line needs of a terminal.

// Makes the standard streams speak UTF-8 and leave line ends alone.
void PrepareConsole();
bool ErrorOutputIsTerminal();

}  // namespace golf
