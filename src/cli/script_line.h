#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Is raised for a script that contains a wrong line.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Returns the words of a line in code page 1252. Blanks separate words. A word with blanks is
// enclosed in double quotes, and a double quote inside it is doubled. A blank line and a line that
// starts with "#" have no words. Raises ScriptError if a quote is not closed.
std::vector<std::string> WordsOf(std::string_view utf8_line);

}  // namespace golf
