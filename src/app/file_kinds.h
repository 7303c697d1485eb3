#pragma once

#include <optional>
#include <string_view>

#include "core/field.h"

namespace golf {

// The layout of a sibling's file by its name, without folder and in any case; nothing for a name
// that no sibling uses.
std::optional<LayoutInfo> LayoutOfFile(std::string_view file_name);

}  // namespace golf
