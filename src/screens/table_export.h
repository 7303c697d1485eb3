#pragma once

#include <string>
#include <vector>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Returns the headings and the rows of a grid without its column 0 and its hidden columns.
std::vector<std::vector<std::string>> GridLines(const Grid& grid);

// Returns the headings and these rows only. `rows` are in ascending order.
std::vector<std::vector<std::string>> GridLines(const Grid& grid, const std::vector<int>& rows);

// Copies lines to the clipboard. Tabs separate the cells, so that a spreadsheet can paste them.
void CopyLines(ScreenHost& host, const std::vector<std::vector<std::string>>& lines);

// Returns lines as CSV.
std::string CsvText(const std::vector<std::vector<std::string>>& lines);

// Describes a text file that the operator saves in the install folder.
struct SavedText {
  std::string box_title;     // "Save as CSV"
  std::string default_name;  // with its ending
  std::string ending;        // ".csv"; added to a name without it
  std::string what;          // "The standings were"
};

// Asks for a file name, and whether to replace a file that exists. Then writes the text and shows
// the path. The file is written at once, also while a transaction holds changes.
void SaveText(SharedState& state, ScreenHost& host, const SavedText& saved,
              const std::string& text);

}  // namespace golf
