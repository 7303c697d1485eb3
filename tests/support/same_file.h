#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "support/temp_folder.h"

namespace golf {

// Checks that a sibling's file holds exactly the expected bytes. The failure message shows the
// first differences: record, field, actual value and expected value. The file's name determines its
// record layout.
testing::AssertionResult SameFile(std::string_view file_name, const std::string& bytes,
                                  const std::string& expected);

// Does the same for a file in a folder.
inline testing::AssertionResult Holds(const TempFolder& folder, const std::string& file_name,
                                      const std::string& expected) {
  return SameFile(file_name, folder.Read(file_name), expected);
}

}  // namespace golf
