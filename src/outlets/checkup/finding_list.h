#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "core/progress.h"
#include "core/shared_state.h"
#include "outlets/checkup/finding.h"

namespace golf {

// Checks all data like CheckInstall. Returns the findings sorted by file.
std::vector<Finding> FindingsByFile(SharedState& state, const ReportProgress& report = {});

// Sorts findings by kind: errors first and notes last, then in the order of the codes. Findings of
// one kind keep their order.
void SortByKind(std::vector<Finding>& findings);

// Counts findings by severity.
class FindingCounts {
 public:
  explicit FindingCounts(std::span<const Finding> findings);

  // True if there is a warning or an error.
  bool HasWarning() const;
  // Returns a text such as "2 errors, 1 warning", or an empty text if there are no findings.
  std::string Text() const;

 private:
  std::array<std::size_t, 3> counts_{};
};

// Returns the record and the title of a finding, such as "Record 1, Bergstrom, Anna". Returns an
// empty text if the finding has neither.
std::string PlaceInFile(const Finding& finding);

}  // namespace golf
