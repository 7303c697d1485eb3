#include "support/same_file.h"

#include <algorithm>

#include "outlets/file_kinds.h"
#include "support/bytes.h"

namespace golf {

testing::AssertionResult SameFile(std::string_view file_name, const std::string& bytes,
                                  const std::string& expected) {
  if (bytes == expected) return testing::AssertionSuccess();
  auto failure = testing::AssertionFailure()
                 << file_name << " has " << bytes.size() << " bytes, expected " << expected.size();
  const auto layout = LayoutOfFile(file_name.substr(file_name.find_last_of('/') + 1));
  if (!layout) return failure << "; it has no layout to tell where they differ";
  constexpr int kMostShown = 8;
  int shown = 0;
  for (std::size_t start = 0; start < std::max(bytes.size(), expected.size());
       start += layout->length) {
    const std::size_t number = start / layout->length + 1;
    const std::string left = RecordAt(bytes, number, layout->length);
    const std::string right = RecordAt(expected, number, layout->length);
    for (const Field& field : layout->fields) {
      for (std::size_t at = field.offset; at < field.offset + field.Size(); at += field.width) {
        if (left.compare(at, field.width, right, at, field.width) == 0) continue;
        if (++shown > kMostShown) return failure << "\n  and more";
        failure << "\n  record " << number << ", " << field.name << " at " << at << ": "
                << testing::PrintToString(ReadFieldValue(field, left, at)) << ", expected "
                << testing::PrintToString(ReadFieldValue(field, right, at));
      }
    }
  }
  return failure;
}

}  // namespace golf
