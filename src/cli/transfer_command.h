#pragma once

#include <functional>
#include <string>

#include "cli/exit_code.h"
#include "cli/options.h"
#include "forms/headless_host.h"

namespace golf {

// A transfer run as a command.
struct TransferCommand {
  std::string name;    // of the command
  std::string screen;  // that does the transfer
  // Presses the buttons that the operator would press on a screen that has opened, on this one and
  // on those that it opens.
  std::function<void(HeadlessHost&, Screen&)> work;
  bool carries_on = false;  // over faults, which are then counted
  std::string log{};        // the text box that holds the run's report; empty with none
};

// Opens the screen as the menu does, works it, and prints its report: refusals and errors on
// standard error, anything else on standard output.
ExitCode RunTransferCommand(const Options& options, const TransferCommand& command);

}  // namespace golf
