#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Converts a text from code page 1252 to UTF-8 for people. Line ends become line feeds, and the
// last ones are removed. Each other control character, which a terminal might obey, becomes "?".
std::string PlainText(std::string_view text);
// Does the same for one line: line ends become "?", too.
std::string PlainCell(std::string_view text);

// Writes a table to standard output: headings and rows in columns as wide as needed, with numbers
// aligned to the right. Each row has a cell for each heading.
void WriteTable(const std::vector<std::string>& headings,
                const std::vector<std::vector<std::string>>& rows);

}  // namespace golf
