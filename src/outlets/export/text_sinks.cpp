// Writes an export as text: a folder with one file for each table.

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

#include "core/code_page.h"
#include "core/new_file.h"
#include "core/text.h"
#include "outlets/export/export_sink.h"
#include "outlets/export/sqlite_sink.h"

namespace golf {
namespace {

void AppendNumber(std::string& line, const ExportRow& row, std::size_t i) {
  char digits[32];
  const auto end = row.kind(i) == CellKind::kReal
                       ? std::to_chars(digits, std::end(digits), row.real(i))
                       : std::to_chars(digits, std::end(digits), row.integer(i));
  line.append(digits, end.ptr);
}

// Writes one file for each table. A subclass writes the lines.
class TextSink : public ExportSink {
 public:
  TextSink(std::string folder, std::string_view extension)
      : folder_(std::move(folder)), extension_(extension) {}

  void Create(std::span<const ExportTable> tables) override {
    tables_ = {tables.begin(), tables.end()};
    for (const ExportTable& table : tables_) {
      files_.emplace_back(folder_ + "/" + std::string(table.name) + extension_);
      line_.clear();
      AppendHeading(line_, table);
      files_.back().Append(line_);
    }
  }

  void Add(std::size_t table, const ExportRow& row) override {
    line_.clear();
    AppendRow(line_, tables_[table], row);
    files_[table].Append(line_);
  }

  void Finish() override {
    for (NewFile& file : files_) file.Close();
    SyncOutside(folder_);
  }

 protected:
  void AppendCell(std::string& line, const ExportRow& row, std::size_t i,
                  std::string_view null) const {
    switch (row.kind(i)) {
      case CellKind::kNull:
        line += null;
        break;
      case CellKind::kText:
        AppendText(line, row.text(i));
        break;
      case CellKind::kBoolean:
        line += row.integer(i) != 0 ? "true" : "false";
        break;
      default:
        AppendNumber(line, row, i);
    }
  }

 private:
  virtual void AppendText(std::string& line, std::string_view text) const = 0;
  virtual void AppendHeading(std::string& line, const ExportTable& table) = 0;
  virtual void AppendRow(std::string& line, const ExportTable& table, const ExportRow& row) = 0;

  std::string folder_;
  std::string extension_;
  std::vector<ExportTable> tables_;
  std::vector<NewFile> files_;
  std::string line_;
};

// Writes CSV as RFC 4180 describes it. A null is an empty value, and an empty text is "".
class CsvSink : public TextSink {
 public:
  CsvSink(std::string folder, bool byte_order_mark)
      : TextSink(std::move(folder), ".csv"), byte_order_mark_(byte_order_mark) {}

 private:
  void AppendHeading(std::string& line, const ExportTable& table) override {
    if (byte_order_mark_) line += kByteOrderMark;
    for (const ExportColumn& column : table.columns) {
      if (&column != &table.columns.front()) line += ',';
      line += column.name;
    }
    line += "\r\n";
  }

  void AppendRow(std::string& line, const ExportTable&, const ExportRow& row) override {
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) line += ',';
      AppendCell(line, row, i, "");
    }
    line += "\r\n";
  }

  // Puts an apostrophe before a text that a spreadsheet would read as a formula. White space and
  // apostrophes at the start do not count. A reader restores the text by the same rule.
  void AppendText(std::string& line, std::string_view text) const override {
    if (text.empty()) {
      line += "\"\"";
      return;
    }
    const std::size_t start = std::min(text.find_first_not_of("' \t\r\n"), text.size());
    const bool is_formula = LooksLikeFormula(text.substr(start));
    line += is_formula ? CsvValue("'" + std::string(text)) : CsvValue(text);
  }

  bool byte_order_mark_;
};

class JsonLinesSink : public TextSink {
 public:
  explicit JsonLinesSink(std::string folder) : TextSink(std::move(folder), ".jsonl") {}

 private:
  void AppendHeading(std::string&, const ExportTable&) override {}

  void AppendRow(std::string& line, const ExportTable& table, const ExportRow& row) override {
    line += '{';
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) line += ',';
      line += '"';
      line += table.columns[i].name;
      line += "\":";
      AppendCell(line, row, i, "null");
    }
    line += "}\n";
  }

  void AppendText(std::string& line, std::string_view text) const override {
    constexpr std::string_view kDigits = "0123456789abcdef";
    line += '"';
    for (const char c : text) {
      const auto byte = static_cast<unsigned char>(c);
      if (c == '"' || c == '\\') {
        line.append(1, '\\').append(1, c);
      } else if (byte < ' ') {
        line.append("\\u00").append(1, kDigits[byte >> 4]).append(1, kDigits[byte & 15]);
      } else {
        line += c;
      }
    }
    line += '"';
  }
};

}  // namespace

std::string_view ExtensionOf(ExportFormat format) {
  constexpr std::string_view kExtensions[] = {".sqlite", ".csv", ".jsonl"};
  return kExtensions[static_cast<std::size_t>(format)];
}

std::unique_ptr<ExportSink> MakeExportSink(ExportFormat format, const std::string& utf8_path,
                                           bool byte_order_mark) {
  if (format == ExportFormat::kSqlite) return MakeSqliteSink(utf8_path);
  if (format == ExportFormat::kJsonLines) return std::make_unique<JsonLinesSink>(utf8_path);
  return std::make_unique<CsvSink>(utf8_path, byte_order_mark);
}

}  // namespace golf
