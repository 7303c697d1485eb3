#pragma once

#include <wx/cmdline.h>

#include <string>

namespace golf {

// Holds the arguments that started the program.
struct Invocation {
  std::string install;    // a folder, UTF-8; empty for the program's own folder
  std::string word;       // the word of the sibling that started the program, as given
  std::string answer;     // text to show instead of starting, such as the help
  std::string complaint;  // why the arguments are wrong; empty if they are not
};

// Parses the arguments that `parser` contains.
Invocation ParseInvocation(wxCmdLineParser& parser);

}  // namespace golf
