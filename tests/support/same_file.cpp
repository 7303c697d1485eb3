#include "support/same_file.h"

#include <algorithm>
#include <sstream>
#include <vector>

#include "app/file_kinds.h"
#include "support/bytes.h"

namespace golf {
namespace {

constexpr int kMostShown = 8;

std::string Shown(const Field& field, std::string_view record, std::size_t offset) {
  std::ostringstream text;
  const FieldValue value = ReadFieldValue(field, record, offset);
  if (const auto* bytes = std::get_if<std::string>(&value)) {
    text << '"';
    for (const char c : *bytes) {
      if (c >= ' ' && c <= '~') {
        text << c;
      } else {
        text << "\\x" << std::hex << int{static_cast<unsigned char>(c)} << std::dec;
      }
    }
    text << '"';
  } else {
    std::visit(
        [&](const auto& number) {
          if constexpr (!std::is_same_v<std::decay_t<decltype(number)>, std::string>) {
            text << number;
          }
        },
        value);
  }
  return text.str();
}

// Adds a line for each differing field of a record.
void AddDifferingFields(const LayoutInfo& layout, std::size_t number, const std::string& record,
                        const std::string& expected, std::vector<std::string>& lines) {
  for (const Field& field : layout.fields) {
    for (std::size_t at = field.offset; at < field.offset + field.Size(); at += field.width) {
      if (record.compare(at, field.width, expected, at, field.width) == 0) continue;
      lines.push_back("record " + std::to_string(number) + ", " +
                      (field.name.empty() ? "bytes" : std::string(field.name)) + " at " +
                      std::to_string(at) + ": " + Shown(field, record, at) + ", expected " +
                      Shown(field, expected, at));
    }
  }
}

}  // namespace

testing::AssertionResult SameFile(std::string_view file_name, const std::string& bytes,
                                  const std::string& expected) {
  if (bytes == expected) return testing::AssertionSuccess();
  auto failure = testing::AssertionFailure() << file_name;
  if (bytes.size() != expected.size()) {
    failure << " has " << bytes.size() << " bytes, expected " << expected.size() << ".";
  }
  const auto layout = LayoutOfFile(file_name.substr(file_name.find_last_of('/') + 1));
  if (!layout) return failure << " differs, and it has no layout to tell where.";
  std::vector<std::string> lines;
  const std::size_t records =
      (std::max(bytes.size(), expected.size()) + layout->length - 1) / layout->length;
  for (std::size_t number = 1; number <= records; ++number) {
    AddDifferingFields(*layout, number, RecordAt(bytes, number, layout->length),
                       RecordAt(expected, number, layout->length), lines);
  }
  for (std::size_t i = 0; i < std::min<std::size_t>(lines.size(), kMostShown); ++i) {
    failure << "\n  " << lines[i];
  }
  if (lines.size() > kMostShown) failure << "\n  and " << lines.size() - kMostShown << " more";
  return failure;
}

testing::AssertionResult Holds(const TempFolder& folder, const std::string& file_name,
                               const std::string& expected) {
  return SameFile(file_name, folder.Read(file_name), expected);
}

}  // namespace golf
