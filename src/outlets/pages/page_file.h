#pragma once

#include <string>

#include "core/new_target.h"

namespace golf {

// Returns a sentence, in UTF-8, if a page must not be written to the target, for example because it
// is in a folder of golf data or does not have the extension of a web page. Returns an empty text
// otherwise.
std::string RefusalOfPage(const NewTarget& target);

// Writes a page to the target. An existing page stays complete until the new one replaces it.
// Raises the errors of NewTarget and NewFile.
void WritePageFile(NewTarget& target, const std::string& html);

// Writes a page to a new file in the user's folder for temporary files. Its name is the stem, a
// number and the extension. Returns its path in UTF-8. Raises the errors of TemporaryPath,
// NewTarget and NewFile.
std::string WriteTemporaryPage(const std::string& stem, const std::string& html);
// Does the same for the file of this name, which is replaced if it exists. Raises error 75 also if
// the name is that of a folder or a link.
std::string ReplaceTemporaryPage(const std::string& name, const std::string& html);

}  // namespace golf
