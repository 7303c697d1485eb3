#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

// A script that cannot be followed.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The words of a line, in code page 1252: parted by blanks; one with blanks in it stands in double
// quotes, with a double quote inside doubled. None for a blank line or one that starts with "#".
// ScriptError where a quote is not closed.
std::vector<std::string> WordsOf(std::string_view utf8_line);

}  // namespace golf
