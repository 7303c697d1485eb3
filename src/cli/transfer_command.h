#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "cli/exit_code.h"
#include "cli/options.h"
#include "forms/headless_host.h"

namespace golf {

// A question of a run, and the answer that cancels it. A command that is not told otherwise gives
// that answer by itself.
struct CancellingAnswer {
  std::string_view title;
  BoxButton answer;
  std::string_view option;  // by which the command is told otherwise
};

// A transfer run as a command.
struct TransferCommand {
  std::string name;    // of the command
  std::string screen;  // that does the transfer
  // Presses the buttons that the operator would press on a screen that has opened, on this one and
  // on those that it opens.
  std::function<void(HeadlessHost&, Screen&)> work;
  bool carries_on = false;  // over faults, which are then counted
  std::string log{};        // the text box that holds the run's report; empty with none
  std::optional<CancellingAnswer> cancelled_by{};
};

// Opens the screen as the menu does, works it, and prints its report: refusals and errors on
// standard error, anything else on standard output.
ExitCode RunTransferCommand(const Options& options, const TransferCommand& command);

}  // namespace golf
