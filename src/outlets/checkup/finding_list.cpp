#include "outlets/checkup/finding_list.h"

#include <algorithm>

#include "core/text.h"
#include "outlets/checkup/checkup.h"

namespace golf {

std::vector<Finding> FindingsByFile(SharedState& state, const ReportProgress& report) {
  std::vector<Finding> findings;
  CheckInstall(
      state, [&](const Finding& finding) { findings.push_back(finding); }, report);
  std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
    return CompareIgnoringCase(a.file, b.file) < 0;
  });
  return findings;
}

void SortByKind(std::vector<Finding>& findings) {
  std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
    const Severity of_a = KindOf(a.code).severity;
    const Severity of_b = KindOf(b.code).severity;
    return of_a != of_b ? of_a > of_b : a.code < b.code;
  });
}

FindingCounts::FindingCounts(std::span<const Finding> findings) {
  for (const Finding& finding : findings) {
    ++counts_[static_cast<std::size_t>(KindOf(finding.code).severity)];
  }
}

bool FindingCounts::HasWarning() const { return counts_[1] + counts_[2] > 0; }

std::string FindingCounts::Text() const {
  std::string text;
  for (std::size_t i = counts_.size(); i-- > 0;) {
    if (counts_[i] == 0) continue;
    if (!text.empty()) text += ", ";
    text += std::to_string(counts_[i]) + " " + std::string(NameOf(static_cast<Severity>(i))) +
            (counts_[i] == 1 ? "" : "s");
  }
  return text;
}

std::string PlaceInFile(const Finding& finding) {
  std::string place = finding.record > 0 ? "Record " + std::to_string(finding.record) : "";
  if (!finding.title.empty()) place += (place.empty() ? "" : ", ") + finding.title;
  return place;
}

}  // namespace golf
