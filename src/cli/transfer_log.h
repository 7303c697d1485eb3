#pragma once

#include <fstream>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"

namespace golf {

// The file to which a transfer appends its report. Every run leaves an entry, whatever its end.
class TransferLog {
 public:
  // Opens the file of the options, if they name one. Raises Refusal if it cannot be written.
  TransferLog(const Options& options, const std::string& command);

  // Appends texts in UTF-8.
  void Add(const std::string& text);
  // Appends how the run ended, and its running number in the history; 0 for none.
  void End(ExitCode code, std::int32_t history);

 private:
  std::ofstream file_;
};

}  // namespace golf
