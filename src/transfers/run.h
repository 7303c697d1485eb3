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

// All transfers have one shape. A request says what is wanted, in plain values. `Run(state, host,
// request, report)` does it, and asks through the RunHost what only an operator can decide. The
// report says what was done; it is filled as the run goes, so that it holds what was done before an
// error that ends the run. A run knows no control and no screen.

// What a run may ask of the world.
class RunHost {
 public:
  virtual ~RunHost() = default;

  // The files are open and nothing is left to refuse: the copying begins.
  virtual void Begin() = 0;
  virtual void Report(const Progress& progress) = 0;
  // A fault that the run carries on over.
  virtual void NoteFault(const NumberedError& fault) = 0;
  virtual BoxButton Ask(const Box& box) = 0;
  // A question that comes again and again, such as one for each score; true for Yes. `log` is what
  // the report says by now.
  virtual bool AskAgain(const std::string& title, const std::string& text,
                        const std::string& log) = 0;
  virtual void Beep() = 0;
};

enum class RunEnd {
  kRefused,   // the operator was told why, or said no
  kNoRoster,  // the Kelvane roster cannot be opened
  kDone,
};

// Who or what was left out, and why.
struct LeftOutEntry {
  std::string title;  // "Smith, Ann"; "Record 7 of the league's players"
  std::string reason;
};

struct RunReport {
  RunEnd end = RunEnd::kRefused;
  std::string log;  // lines with the line ends of the siblings, CR LF
  std::vector<LeftOutEntry> left_out;
};

// Raises a count of 16 bits by one. Error 6 above 32767.
void CountUp(std::int16_t& counter);

// Leaves `who` out since a record cannot be read: the report has the entry, and the host the fault
// with his name.
void LeaveOut(RunHost& host, RunReport& report, const std::string& who, const NumberedError& why);

// Runs a statement that reads. Where the read fails, `who()` is left out, and the result is false.
// Any other error goes on.
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
