#include "cli/plain_text.h"

#include <algorithm>
#include <iostream>

#include "core/code_page.h"

namespace golf {
namespace {

std::size_t Width(std::string_view utf8) {  // in characters
  return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

void WriteRow(const std::vector<std::string>& cells, const std::vector<std::size_t>& widths) {
  std::string line;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    line += cells[i];
    if (i + 1 < cells.size()) line.append(widths[i] - Width(cells[i]) + 2, ' ');
  }
  std::cout << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
}

// The undefined bytes of the code page are control characters in UTF-8.
char Harmless(char c) {
  constexpr std::string_view kUndefined = "\x81\x8D\x8F\x90\x9D";
  const auto code = static_cast<unsigned char>(c);
  const bool control = code < 0x20 || code == 0x7F || kUndefined.find(c) != std::string_view::npos;
  return control ? '?' : c;
}

}  // namespace

std::string PlainText(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool pair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    if (pair || text[i] == '\0') continue;  // a field that was never filled holds NULs
    const bool line_end = text[i] == '\r' || text[i] == '\n';
    plain += line_end ? '\n' : Harmless(text[i]);
  }
  plain.erase(plain.find_last_not_of('\n') + 1);
  return Utf8FromText(plain);
}

std::string PlainCell(std::string_view text) {
  std::string cell(text);
  std::erase(cell, '\0');
  std::transform(cell.begin(), cell.end(), cell.begin(), Harmless);
  return Utf8FromText(cell);
}

void WriteTable(const std::vector<std::string>& headings,
                const std::vector<std::vector<std::string>>& rows) {
  std::vector<std::size_t> widths;
  for (const std::string& heading : headings) widths.push_back(Width(heading));
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], Width(row[i]));
  }
  WriteRow(headings, widths);
  for (const auto& row : rows) WriteRow(row, widths);
}

std::string CsvValue(std::string_view utf8) {
  if (utf8.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(utf8);
  std::string quoted = "\"";
  for (const char c : utf8) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

}  // namespace golf
