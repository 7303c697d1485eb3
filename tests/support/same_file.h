#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "support/temp_folder.h"

namespace golf {

// Whether a sibling's file holds just these bytes. Where it does not, the failure tells the first
// differences: record, field, what is there and what is expected. The layout goes by the file's
// name.
testing::AssertionResult SameFile(std::string_view file_name, const std::string& bytes,
                                  const std::string& expected);

// The same for a file in a folder.
testing::AssertionResult Holds(const TempFolder& folder, const std::string& file_name,
                               const std::string& expected);

}  // namespace golf
