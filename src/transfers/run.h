#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "core/box.h"
#include "core/left_out.h"
#include "core/numbered_error.h"
#include "core/progress.h"
#include "core/resume_next.h"
#include "transfers/left_out_reasons.h"

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

struct RunReport {
  RunEnd end = RunEnd::kRefused;
  std::string log;  // lines that end in CR LF
  LeftOut left_out;
};

// Increases a counter by one. Raises error 6 if it would exceed 32767.
void CountUp(std::int16_t& counter);

// Contains the name of a golfer or of a record in two forms.
struct Who {
  std::string title;  // for a list, such as "Smith, Ann"
  std::string name;   // for a sentence, such as "Ann Smith"

  explicit Who(const std::string& both) : title(both), name(both) {}
  Who(std::string in_list, std::string in_sentence)
      : title(std::move(in_list)), name(std::move(in_sentence)) {}
};

// Returns the reason for an entry that an error has stopped.
std::string StoppedBy(const NumberedError& error);

// Records that `who` was left out because a record cannot be read. Adds an entry to the report, and
// reports the fault with the name to the host.
void LeaveOut(RunHost& host, RunReport& report, const Who& who, const NumberedError& why);

// Runs a statement that reads. Leaves out `who()` and returns false if the statement raises a
// ReadError. Passes any other error to the caller.
template <class Statement, class WhoFunction>
bool ReadOrLeaveOut(RunHost& host, RunReport& report, Statement&& statement, WhoFunction&& who) {
  try {
    std::forward<Statement>(statement)();
    return true;
  } catch (const ReadError& error) {
    LeaveOut(host, report, std::forward<WhoFunction>(who)(), error);
    return false;
  }
}

// Returns the title of a record that a run did not transfer, or an empty text if the record is not
// in use. Reads the record, so it may raise a NumberedError.
using TitleOfRest = std::function<std::string(std::int64_t)>;

// Adds the records `first` to `last` to the report, all for the same reason. If one cannot be read,
// adds one entry for it and all later ones.
void LeaveOutRest(RunReport& report, std::int64_t first, std::int64_t last,
                  const TitleOfRest& title, std::string_view reason = left_out::kNotReached);
// Adds a record to the report because an error has stopped its transfer.
void LeaveOutStopped(RunReport& report, std::int64_t record, const NumberedError& error,
                     const TitleOfRest& title);

// Calls `take` with the numbers 1 to `count` of records in order, until it returns false. Adds the
// later records to the report then. If `take` raises a NumberedError, also adds the record
// concerned, and raises the error again.
template <class Take>
void TakeInOrder(RunReport& report, std::int64_t count, Take&& take, const TitleOfRest& title) {
  for (std::int64_t record = 1; record <= count; ++record) {
    bool goes_on = false;
    try {
      goes_on = take(record);
    } catch (const NumberedError& error) {
      LeaveOutStopped(report, record, error, title);
      LeaveOutRest(report, record + 1, count, title);
      throw;
    }
    if (!goes_on) return LeaveOutRest(report, record + 1, count, title);
  }
}

inline constexpr std::string_view kReportLineEnd = "\r\n";

// Returns the last lines of a report on golfers: the numbers of updated and of added golfers, and a
// line of "=".
std::string GolferCountLines(std::int32_t updated, std::int32_t added);

}  // namespace golf
