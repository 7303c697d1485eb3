#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Returns the index of the item with the longest common beginning with `name`, without regard to
// case. Returns the last one if several items match equally well. Returns 0 if no item begins with
// the same character as `name`.
int ItemWithLongestCommonBeginning(const std::vector<std::string>& items, std::string_view name);

}  // namespace golf
