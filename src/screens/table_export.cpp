#include "screens/table_export.h"

#include <algorithm>
#include <numeric>

#include "core/change_gate.h"
#include "core/file_name.h"
#include "core/text.h"
#include "history/transactions.h"

namespace golf {

std::vector<std::vector<std::string>> GridLines(const Grid& grid) {
  std::vector<int> rows(static_cast<std::size_t>(grid.rows()));
  std::iota(rows.begin(), rows.end(), 1);
  return GridLines(grid, rows);
}

std::vector<std::vector<std::string>> GridLines(const Grid& grid, const std::vector<int>& rows) {
  std::vector<std::vector<std::string>> lines(rows.size() + 1);
  for (int column = 1; column <= grid.columns(); ++column) {
    if (grid.IsHidden(column)) continue;
    lines[0].push_back(ReplaceText(grid.heading(column), "\n", " ", ReplaceMode::kExact));
    for (std::size_t i = 0; i < rows.size(); ++i) {
      lines[i + 1].push_back(grid.text(column, rows[i]));
    }
  }
  return lines;
}

void CopyLines(ScreenHost& host, const std::vector<std::vector<std::string>>& lines) {
  std::string text;
  for (const auto& line : lines) {
    for (std::size_t i = 0; i < line.size(); ++i) text += (i > 0 ? "\t" : "") + line[i];
    text += "\r\n";
  }
  host.CopyText(text);
}

std::string CsvText(const std::vector<std::vector<std::string>>& lines) {
  std::string text;
  for (const auto& line : lines) text += CsvLine(line) + "\r\n";
  return text;
}

void SaveText(SharedState& state, ScreenHost& host, const SavedText& saved,
              const std::string& text) {
  std::string name =
      host.Ask(InputBox{.title = saved.box_title,
                        .text = "Name of the file, in the folder " + state.ProgramPath,
                        .default_answer = saved.default_name});
  if (name.empty()) return;
  const std::string fault = FileNameFault(name);
  if (!fault.empty()) {
    host.Ask(Box{.title = "Notice", .text = "A file name " + fault});
    return;
  }
  const std::size_t stem = name.size() - std::min(name.size(), saved.ending.size());
  if (!EqualIgnoringCase(name.substr(stem), saved.ending)) name += saved.ending;
  const std::string path = state.ProgramPath + name;
  if (state.files.FileExists(path)) {
    const BoxButton answer = host.Ask(Box{.title = "Replace file?",
                                          .text = name + " already exists.  Do you want to "
                                                         "replace it?",
                                          .icon = BoxIcon::kQuestion,
                                          .buttons = {BoxButton::kYes, BoxButton::kNo},
                                          .default_button = 1});
    if (answer != BoxButton::kYes) return;
  }
  ChangeGate(state.transactions->held().real()).ReplaceText(path, text);
  host.Ask(Box{
      .title = "Notice", .text = saved.what + " saved as " + path, .icon = BoxIcon::kInformation});
}

}  // namespace golf
