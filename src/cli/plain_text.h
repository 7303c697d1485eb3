#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace golf {

// A text of the system for people: UTF-8, with line feeds for its line ends and none at the end.
// Any other control character, which a terminal might obey, is a "?".
std::string PlainText(std::string_view text);
// The same on one line: line ends are a "?" as well.
std::string PlainCell(std::string_view text);

// Writes rows below headings in columns as wide as they need to be, numbers to the right, to
// standard output. Each row has a cell for each heading.
void WriteTable(const std::vector<std::string>& headings,
                const std::vector<std::vector<std::string>>& rows);

}  // namespace golf
