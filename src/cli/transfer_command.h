#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "cli/exit_code.h"
#include "cli/options.h"
#include "forms/headless_host.h"

namespace golf {

// A question of a run and the answer that cancels the run. The command gives this answer unless an
// option says otherwise.
struct CancellingAnswer {
  std::string_view title;
  BoxButton answer;
  std::string_view option;  // the option that answers otherwise
};

// A transfer as a command.
struct TransferCommand {
  std::string name;    // the command's name
  std::string screen;  // the screen of the transfer
  // Works a screen that has opened, the transfer's own or a picker, as the operator would.
  std::function<void(HeadlessHost&, Screen&)> work;
  bool carries_on = false;  // true: the run goes on over faults, and the result counts them
  std::string log{};        // the text box with the run's report; empty if there is none
  std::optional<CancellingAnswer> cancelled_by{};
};

// Opens the screen as the menu does, works it, and prints its report. Refusals and errors go to
// standard error, everything else to standard output.
ExitCode RunTransferCommand(const Options& options, const TransferCommand& command);

}  // namespace golf
