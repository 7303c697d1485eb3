#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "core/file_table.h"
#include "core/numbered_error.h"

namespace golf {

// Writes a line to standard error. The text is in code page 1252 and may hold line ends.
void NoteProblem(std::string_view text);

// Closes all files before the process ends. Notes and returns an error, which means that changes
// may be lost.
std::optional<NumberedError> CloseFiles(FileTable& files);

// Notes how many faults a run went on after. Writes nothing if there were none.
void NoteFaultCount(std::size_t count);

}  // namespace golf
