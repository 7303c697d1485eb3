#include "transfers/run.h"

#include "core/number_text.h"

namespace golf {

void CountUp(std::int16_t& counter) { counter = CheckedInt16(counter + 1); }

std::string StoppedBy(const NumberedError& error) {
  return std::string(left_out::kStopped) + error.description();
}

void LeaveOut(RunHost& host, RunReport& report, const Who& who, const NumberedError& why) {
  report.left_out.Add(who.title, StoppedBy(why));
  host.NoteFault(
      {static_cast<ErrorNumber>(why.number()), who.name + " was left out: " + why.description()});
}

void LeaveOutRest(RunReport& report, std::int64_t first, std::int64_t last,
                  const TitleOfRest& title, std::string_view reason) {
  std::int64_t record = first;
  try {
    for (; record <= last; ++record) {
      const std::string name = title(record);
      if (!name.empty()) report.left_out.Add(name, reason);
    }
  } catch (const NumberedError&) {
    report.left_out.Add("Records " + std::to_string(record) + " to " + std::to_string(last),
                        reason);
  }
}

void LeaveOutStopped(RunReport& report, std::int64_t record, const NumberedError& error,
                     const TitleOfRest& title) {
  std::string name = "Record " + std::to_string(record);
  try {
    name = title(record);
  } catch (const NumberedError&) {
    // The record keeps its number as its name.
  }
  if (!name.empty()) report.left_out.Add(name, StoppedBy(error));
}

std::string GolferCountLines(std::int32_t updated, std::int32_t added) {
  std::string lines = std::to_string(updated) + " golfers updated.";
  lines.append(kReportLineEnd);
  lines.append(std::to_string(added) + " new golfers added.").append(kReportLineEnd);
  return lines.append(30, '=').append(kReportLineEnd);
}

}  // namespace golf
