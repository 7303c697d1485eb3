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

struct Column {
  std::size_t width = 0;
  bool of_numbers = false;
};

// True for a number and for "-", which is shown for a missing number.
bool IsNumber(std::string_view cell) {
  return cell.find_first_not_of("+-.0123456789") == std::string_view::npos;
}

bool HoldsNumbers(const std::vector<std::vector<std::string>>& rows, std::size_t column) {
  const auto has_digit = [column](const auto& row) {
    return row[column].find_first_of("0123456789") != std::string::npos;
  };
  return std::any_of(rows.begin(), rows.end(), has_digit) &&
         std::all_of(rows.begin(), rows.end(),
                     [column](const auto& row) { return IsNumber(row[column]); });
}

// Writes a row. Numbers are aligned to the right.
void WriteRow(const std::vector<std::string>& cells, const std::vector<Column>& columns) {
  std::string line;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const std::string padding(columns[i].width - Width(cells[i]), ' ');
    line += columns[i].of_numbers ? padding + cells[i] : cells[i] + padding;
    line += "  ";
  }
  std::cout << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
}

// Returns "?" for a control character and any other character unchanged. Undefined bytes of the
// code page count as control characters, since they would become such in UTF-8.
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
    if (pair || text[i] == '\0') continue;  // a field that was never filled contains NULs
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
  std::vector<Column> columns;
  for (std::size_t i = 0; i < headings.size(); ++i) {
    Column column{Width(headings[i]), HoldsNumbers(rows, i)};
    for (const auto& row : rows) column.width = std::max(column.width, Width(row[i]));
    columns.push_back(column);
  }
  WriteRow(headings, columns);
  for (const auto& row : rows) WriteRow(row, columns);
}

}  // namespace golf
