#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "support/test_host.h"

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

// Makes each read fail once in a run on the files of `install`. `run` works as the operator does.
// Checks that each record has its bytes of before or after the run, that the operator is not shown
// the events of a complete run if some record has its old bytes, and that the next run changes the
// rest. A run changes the records of the same numbers in all files of `together`. Returns the
// number of runs that reported a fault and went on.
int WalkReadFaults(TestInstall& install, const std::function<void()>& run,
                   const std::vector<std::string>& together = {});

}  // namespace golf
