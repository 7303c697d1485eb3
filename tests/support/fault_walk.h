#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/test_host.h"

namespace golf {

// Makes each read fail once in a run on the files of `install`, which works as the operator does.
// Checks that each record has its bytes of before or after the run, that the operator is not shown
// the events of a complete run if some record has its old bytes, and that the next run changes the
// rest. A run changes the records of the same numbers in all files of `together`. Returns the
// number of runs that reported a fault and went on.
int WalkReadFaults(TestInstall& install, const std::function<void()>& run,
                   const std::vector<std::string>& together = {});

}  // namespace golf
