#include "transfers/run.h"

#include "core/number_text.h"

namespace golf {

void CountUp(std::int16_t& counter) { counter = CheckedInt16(counter + 1); }

void LeaveOut(RunHost& host, RunReport& report, const std::string& who, const NumberedError& why) {
  report.left_out.push_back({who, why.description()});
  host.NoteFault(
      {static_cast<ErrorNumber>(why.number()), who + " was left out: " + why.description()});
}

std::string GolferCountLines(std::int32_t updated, std::int32_t added) {
  std::string lines = std::to_string(updated) + " golfers updated.";
  lines.append(kReportLineEnd);
  lines.append(std::to_string(added) + " new golfers added.").append(kReportLineEnd);
  return lines.append(30, '=').append(kReportLineEnd);
}

}  // namespace golf
