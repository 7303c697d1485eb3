#pragma once

#include <string>
#include <string_view>

namespace golf {

// What is wrong with a name, in code page 1252, as that of a file: the end of a sentence such as "A
// report name cannot ...", without its full stop. Empty for a name that a file may have on every
// system that we know, in the folder where it is looked for. The rule holds for names that an
// operator enters and for those that come from a file.
std::string FileNameFault(std::string_view name);

inline bool FitsFileName(std::string_view name) { return FileNameFault(name).empty(); }

}  // namespace golf
