#pragma once

#include <wx/cmdline.h>

#include <string>

namespace golf {

// What the program was started with.
struct Invocation {
  std::string install;    // a folder, UTF-8; empty for the program's own
  std::string word;       // which sibling has called, as it stands
  std::string answer;     // what to say, and do no more
  std::string complaint;  // why it cannot be followed
};

// The parser holds the arguments.
Invocation ParseInvocation(wxCmdLineParser& parser);

}  // namespace golf
