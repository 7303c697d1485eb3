#pragma once

#include <string>

#include "core/new_target.h"

namespace golf {

// Returns a sentence, in UTF-8, if the program must not write the target, which is a file or a
// folder. The target must have a name, and its folder must exist. Neither the target nor a folder
// that contains it may have the name of a folder of golf data. A file must not have the name of a
// file of golf data. Returns an empty text otherwise.
std::string RefusalOfPlace(const NewTarget& target, bool is_file);

}  // namespace golf
