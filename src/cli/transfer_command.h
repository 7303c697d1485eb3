#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "cli/exit_code.h"
#include "cli/options.h"
#include "forms/headless_host.h"

namespace golf {

// Describes a question of a run and the answer that cancels the run. The command gives this answer
// unless the operator uses the option.
struct CancellingAnswer {
  std::string_view title;
  BoxButton answer;
  std::string_view option;  // the option that gives the other answer
};

// Describes a command that runs a transfer.
struct TransferCommand {
  std::string name;    // the command's name
  std::string screen;  // the screen of the transfer
  // Operates an open screen, which is the transfer's screen or a picker.
  std::function<void(HeadlessHost&, Screen&)> work;
  bool carries_on = false;  // true if the run continues after faults, which the result counts
  std::string log{};        // the text box with the run's report; empty if there is none
  std::optional<CancellingAnswer> cancelled_by{};
};

// Opens the screen like the menu, operates it, and prints its report. Refusals and errors go to
// standard error, everything else to standard output.
ExitCode RunTransferCommand(const Options& options, const TransferCommand& command);

}  // namespace golf
