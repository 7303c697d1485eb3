#pragma once

#include <fstream>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"

namespace golf {

// Appends the report of a transfer to a file. Every run adds an entry, also if it fails.
class TransferLog {
 public:
  // Opens the file that the options name, if any. Raises Refusal if it cannot be written.
  TransferLog(const Options& options, const std::string& command);

  // Appends a text in UTF-8.
  void Add(const std::string& text);
  // Appends how the run ended and its number in the history, which is 0 if it is not in the
  // history.
  void End(ExitCode code, std::int32_t history);

 private:
  std::ofstream file_;
};

}  // namespace golf
