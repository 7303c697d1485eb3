#pragma once

#include <wx/cmdline.h>

#include <string>

namespace golf {

// The arguments that started the program.
struct Invocation {
  std::string install;    // a folder, UTF-8; empty for the program's own folder
  std::string word;       // the calling sibling, as given
  std::string answer;     // text to show instead of starting, such as the help
  std::string complaint;  // why the arguments are wrong; empty if they are not
};

// Parses the arguments that `parser` holds.
Invocation ParseInvocation(wxCmdLineParser& parser);

}  // namespace golf
