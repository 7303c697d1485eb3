#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/box.h"
#include "core/numbered_error.h"
#include "core/progress.h"
#include "core/resume_next.h"

namespace golf {

// All transfers have one shape. A request holds the options as plain values. `Run(state, host,
// request, report)` makes the transfer and asks the operator through the RunHost. The report says
// what was done. It is filled during the run, so that it is also valid after an error that ends the
// run. A run knows no control and no screen.

// The services that a run uses.
class RunHost {
 public:
  virtual ~RunHost() = default;

  // Is called when all checks have passed, before the copying begins. A run may still open files
  // after it.
  virtual void Begin() = 0;
  virtual void Report(const Progress& progress) = 0;
  // Reports a fault after which the run continues.
  virtual void NoteFault(const NumberedError& fault) = 0;
  // The changes that follow belong to one golfer, course or roster, by this title; to the run as a
  // whole where it is empty.
  virtual void Group(std::string_view title) = 0;
  virtual BoxButton Ask(const Box& box) = 0;
  // Asks a question that may come many times, such as one for each score. Returns true for Yes.
  // `log` is the log of the report so far.
  virtual bool AskAgain(const std::string& title, const std::string& text,
                        const std::string& log) = 0;
  virtual void Beep() = 0;
};

enum class RunEnd {
  kRefused,   // the operator was told why, or answered no
  kNoRoster,  // the Kelvane roster cannot be opened
  kDone,
};

// A golfer or record that was left out, and the reason.
struct LeftOutEntry {
  std::string title;  // "Smith, Ann"; "Record 7 of the league's players"
  std::string reason;
};

struct RunReport {
  RunEnd end = RunEnd::kRefused;
  std::string log;  // lines that end in CR LF
  std::vector<LeftOutEntry> left_out;
};

// Increases a counter by one. Error 6 above 32767.
void CountUp(std::int16_t& counter);

// Records that `who` was left out because a record cannot be read. Adds an entry to the report and
// notes the fault, with the name, at the host.
void LeaveOut(RunHost& host, RunReport& report, const std::string& who, const NumberedError& why);

// Runs a statement that reads. If it raises a ReadError, leaves out `who()` and returns false. Any
// other error is passed to the caller.
template <class Statement, class Who>
bool ReadOrLeaveOut(RunHost& host, RunReport& report, Statement&& statement, Who&& who) {
  try {
    std::forward<Statement>(statement)();
    return true;
  } catch (const ReadError& error) {
    LeaveOut(host, report, std::forward<Who>(who)(), error);
    return false;
  }
}

inline constexpr std::string_view kReportLineEnd = "\r\n";

// Returns the last lines of a report on golfers: how many were updated, how many were added, a
// rule.
std::string GolferCountLines(std::int32_t updated, std::int32_t added);

}  // namespace golf
