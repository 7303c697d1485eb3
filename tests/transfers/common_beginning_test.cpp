#include "transfers/common_beginning.h"

#include <gtest/gtest.h>

namespace golf {
namespace {

TEST(CommonBeginningTest, TheLastOfTheLongest) {
  const struct {
    std::vector<std::string> items;
    const char* name;
    int chosen;
  } kCases[] = {
      {{"Away", "Elm", "Elm Hill", "Oak"}, "elm hills", 2},
      {{"Away", "ELM", "Elm Hill", "Oak"}, "Elm", 2},  // both have the same length: the last item
      {{"Away", "Elm Hill", "Elk", "Oak"}, "Elm", 1},
      {{"Away", "Elm", "Oak"}, "Ohio", 2},  // one letter is enough
      {{"Away", "Elm", "Oak"}, "Pine", 0},  // no item begins like this: the first item
      {{"Oak", "Elm", ""}, "", 0},
      {{}, "Elm", 0},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(ItemWithLongestCommonBeginning(c.items, c.name), c.chosen) << c.name;
  }
}

}  // namespace
}  // namespace golf
