#include "cli/problems.h"

#include <iostream>
#include <string>

#include "cli/plain_text.h"

namespace golf {

void NoteProblem(std::string_view text) { std::cerr << PlainText(text) << std::endl; }

std::optional<NumberedError> CloseFiles(FileTable& files) {
  try {
    files.CloseAll();
    return std::nullopt;
  } catch (const NumberedError& error) {
    NoteProblem(error.Report());
    return error;
  }
}

void NoteFaultCount(std::size_t count) {
  if (count == 0) return;
  NoteProblem(std::to_string(count) + (count == 1 ? " fault." : " faults."));
}

}  // namespace golf
