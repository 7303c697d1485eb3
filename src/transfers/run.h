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

// All transfers have the same form. A request contains the options as plain values. `Run(state,
// host, request, report)` makes the transfer and asks the operator through the RunHost. The run
// fills the report as it proceeds, so the report is also valid after an error that ends the run. A
// run does not depend on controls or screens.

// Provides the services that a run uses.
class RunHost {
 public:
  virtual ~RunHost() = default;

  // The run calls this when all checks have passed and before it copies anything. It may still open
  // files afterwards.
  virtual void Begin() = 0;
  virtual void Report(const Progress& progress) = 0;
  // Reports a fault after which the run continues.
  virtual void NoteFault(const NumberedError& fault) = 0;
  // Sets the title of the golfer, course or roster to which the following changes belong. They
  // belong to the run as a whole if the title is empty.
  virtual void Group(std::string_view title) = 0;
  virtual BoxButton Ask(const Box& box) = 0;
  // Asks a question that may be asked many times, for example once for each score. Returns true for
  // Yes. `log` is the log of the report so far.
  virtual bool AskAgain(const std::string& title, const std::string& text,
                        const std::string& log) = 0;
  virtual void Beep() = 0;
};

enum class RunEnd {
  kRefused,   // a box gave the reason, or the operator answered no
  kNoRoster,  // the Kelvane roster cannot be opened
  kDone,
};

// Names a golfer or record that was left out, and the reason.
struct LeftOutEntry {
  std::string title;  // such as "Smith, Ann" or "Record 7 of the league's players"
  std::string reason;
};

struct RunReport {
  RunEnd end = RunEnd::kRefused;
  std::string log;  // lines that end in CR LF
  std::vector<LeftOutEntry> left_out;
};

// Increases a counter by one. Raises error 6 if it would exceed 32767.
void CountUp(std::int16_t& counter);

// Records that `who` was left out because a record cannot be read. Adds an entry to the report, and
// reports the fault with the name to the host.
void LeaveOut(RunHost& host, RunReport& report, const std::string& who, const NumberedError& why);

// Runs a statement that reads. Leaves out `who()` and returns false if the statement raises a
// ReadError. Passes any other error to the caller.
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

// Returns the last lines of a report on golfers: the numbers of updated and of added golfers, and a
// line of "=".
std::string GolferCountLines(std::int32_t updated, std::int32_t added);

}  // namespace golf
