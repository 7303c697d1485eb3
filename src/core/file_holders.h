#pragma once

#include <string>
#include <vector>

namespace golf {

// Returns the names of the other programs on this computer that have a file open, in code page
// 1252. Returns none if the system does not tell. Only Windows has this function. `path` is as the
// system writes it.
std::vector<std::string> ProgramsHolding(const std::wstring& path);

}  // namespace golf
