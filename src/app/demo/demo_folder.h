#pragma once

#include <string>

#include "core/date_value.h"

namespace golf {

// Creates a folder with a demonstration install, completely or not at all. Nothing exists at the
// path, which is in UTF-8. Raises the errors of NewTarget and of the files.
void CreateDemoFolder(const std::string& utf8_folder, DateValue now);

}  // namespace golf
