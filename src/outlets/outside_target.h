#pragma once

#include <string>

#include "core/new_target.h"

namespace golf {

// Returns a sentence, in UTF-8, if the program must not write a file or a folder of this name
// there, because it has no name, its folder does not exist, or it is in or named like a folder of
// golf data. A file also must not have the name of golf data. Returns an empty text otherwise.
std::string RefusalOfPlace(const NewTarget& target, bool is_file);

}  // namespace golf
