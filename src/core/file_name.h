#pragma once

#include <string>
#include <string_view>

namespace golf {

// Returns a description of the fault if `name` is not a valid file name on every supported system,
// and an empty text otherwise. `name` has no folder and is in code page 1252. The description
// completes a sentence such as "A report name cannot ..." and has no full stop. The same rule
// applies to names that an operator enters and to names read from a file.
std::string FileNameFault(std::string_view name);

inline bool FitsFileName(std::string_view name) { return FileNameFault(name).empty(); }

}  // namespace golf
