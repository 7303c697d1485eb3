#include "transfers/common_beginning.h"

#include <algorithm>

#include "core/text.h"

namespace golf {

int ItemWithLongestCommonBeginning(const std::vector<std::string>& items, std::string_view name) {
  const std::string wanted = UpperCase(name);
  int chosen = 0;
  std::ptrdiff_t longest = 1;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const std::string item = UpperCase(items[i]);
    const auto differs = std::mismatch(item.begin(), item.end(), wanted.begin(), wanted.end());
    const std::ptrdiff_t common = differs.first - item.begin();
    if (common < longest) continue;
    longest = common;
    chosen = static_cast<int>(i);
  }
  return chosen;
}

}  // namespace golf
