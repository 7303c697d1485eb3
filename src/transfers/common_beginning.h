#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Returns the index of the item with the longest common beginning with `name`, without regard to
// case. Returns the last of several such items. Returns 0 if no item has the same first character.
int ItemWithLongestCommonBeginning(const std::vector<std::string>& items, std::string_view name);

}  // namespace golf
