#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "core/file_table.h"
#include "core/numbered_error.h"

namespace golf {

// Writes a line to standard error. The text is in code page 1252 and may contain line ends.
void NoteProblem(std::string_view text);

// Closes all files. It must be called before the process ends. Reports and returns an error, which
// means that changes may be lost.
std::optional<NumberedError> CloseFiles(FileTable& files);

// Writes the number of faults to standard error. Writes nothing if it is 0.
void NoteFaultCount(std::size_t count);

}  // namespace golf
