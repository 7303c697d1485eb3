#pragma once

#include <cstddef>
#include <string_view>

namespace golf {

// A line on standard error; the text is in code page 1252 and may have line ends of its own.
void TellProblem(std::string_view text);

// The last line of a run that carried on over faults; nothing without any.
void TellFaultCount(std::size_t count);

}  // namespace golf
