#pragma once

#include <string>
#include <string_view>

namespace golf {

// Returns what is wrong with `name` as a file name without a folder. `name` is in code page 1252.
// The result is the end of a sentence such as "A report name cannot ...", without its full stop. It
// is empty for a name that is valid on every supported system. The rule holds for names that an
// operator enters and for names from a file.
std::string FileNameFault(std::string_view name);

inline bool FitsFileName(std::string_view name) { return FileNameFault(name).empty(); }

}  // namespace golf
