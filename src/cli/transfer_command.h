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
  // Presses the buttons that the operator would press on it.
  std::function<void(HeadlessHost&, Screen&)> work;
};

// Opens the screen as the menu does, works it, and prints its report: refusals and errors on
// standard error, anything else on standard output.
ExitCode RunTransferCommand(const Options& options, const TransferCommand& command);

}  // namespace golf
