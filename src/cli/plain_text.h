#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Converts a text from code page 1252 to UTF-8 for people. Line ends become line feeds, and
// trailing ones are removed. Any other control character becomes "?", since a terminal might
// interpret it.
std::string PlainText(std::string_view text);
// Does the same for one line: line ends become "?", too.
std::string PlainCell(std::string_view text);

// Writes headings and rows to standard output as a table. Each column is as wide as its longest
// cell, and numbers are aligned to the right. Each row must have a cell for each heading.
void WriteTable(const std::vector<std::string>& headings,
                const std::vector<std::vector<std::string>>& rows);

}  // namespace golf
