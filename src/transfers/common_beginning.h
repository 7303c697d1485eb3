#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Returns the index of the item with the longest common beginning with `name`, without regard to
// case. Of several it returns the last. If no item shares a character, it returns 0.
int ItemWithLongestCommonBeginning(const std::vector<std::string>& items, std::string_view name);

}  // namespace golf
