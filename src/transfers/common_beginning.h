#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace golf {

// The place from 0 of the item that has the longest beginning in common with a name, in any case:
// the last of several, and the first item where none has any.
int ItemWithLongestCommonBeginning(const std::vector<std::string>& items, std::string_view name);

}  // namespace golf
