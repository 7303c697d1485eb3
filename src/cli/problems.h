#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "core/file_table.h"
#include "core/numbered_error.h"

namespace golf {

// A line on standard error; the text is in code page 1252 and may have line ends of its own.
void NoteProblem(std::string_view text);

// Closes all files before the process ends. An error, which tells that writes may be lost, is a
// line on standard error, and the result.
std::optional<NumberedError> CloseFiles(FileTable& files);

// The last line of a run that carried on over faults; nothing without any.
void NoteFaultCount(std::size_t count);

}  // namespace golf
