// Compares docs/formats with the descriptions that the program writes, and the fields of these
// descriptions with the layouts.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include "outlets/field_values.h"
#include "outlets/formats/format_notes.h"
#include "outlets/formats/kaitai.h"

namespace golf {
namespace {

std::string Page(const std::string& name) {
  std::ifstream file(GOLF_DOCS "/formats/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Returns the row of the index page.
std::string RowOf(const KaitaiDescription& description) {
  std::string files;
  for (const std::string_view file : description.files) {
    files.append(files.empty() ? "`" : ", `").append(file).append("`");
  }
  const FormatNote& note = NoteOfLayout(description.layout.name);
  const std::string link = '[' + description.FileName() + "](" + description.FileName() + ')';
  return "\n| " + files + " | " + std::string(note.title) + " | " + link + " | " +
         std::string(note.contents) + " |\n";
}

TEST(FormatsTest, TheFolderHasTheDescriptionsOfTheCode) {
  const std::string index = Page("README.md");
  for (const KaitaiDescription& description : KaitaiDescriptions()) {
    EXPECT_EQ(Page(description.FileName()), description.text) << description.FileName();
    EXPECT_NE(index.find(RowOf(description)), std::string::npos) << RowOf(description);
  }
  const std::filesystem::directory_iterator files(GOLF_DOCS "/formats");
  EXPECT_EQ(static_cast<std::size_t>(std::distance(begin(files), end(files))),
            KaitaiDescriptions().size() + 1);
}

// Reads the members of the types of a description.
struct ReadMember {
  std::string orig_id;
  std::string type;
  std::size_t width = 0;
  std::size_t count = 1;
};
using ReadTypes = std::map<std::string, std::vector<ReadMember>>;

ReadTypes TypesOf(const std::string& text) {
  const std::map<std::string, std::size_t> kWidths = {{"u1", 1}, {"s2", 2}, {"s4", 4},
                                                      {"s8", 8}, {"f4", 4}, {"f8", 8}};
  ReadTypes types;
  std::vector<ReadMember>* members = nullptr;
  std::istringstream lines(text.substr(text.find("\ntypes:\n") + 8));
  for (std::string line; std::getline(lines, line);) {
    const std::size_t colon = line.find(':');
    const std::size_t key = line.find_first_not_of(" ");
    const std::string name = line.substr(key, colon - key);
    const std::string value = colon + 2 < line.size() ? line.substr(colon + 2) : "";
    if (key == 2) members = &types[name];
    if (name == "- id") members->emplace_back();
    if (key != 8 || members == nullptr || members->empty()) continue;
    ReadMember& member = members->back();
    if (name == "-orig-id") member.orig_id = value;
    if (name == "type") member.type = value;
    if (name == "type" && kWidths.contains(value)) member.width = kWidths.at(value);
    if (name == "size") member.width = std::stoul(value);
    if (name == "repeat-expr") member.count = std::stoul(value);
  }
  return types;
}

// Marks the bytes of a type that begins at `at`, and adds the offset of each value to `offsets`
// under the name of its field. Returns the end of the type.
std::size_t Mark(const ReadTypes& types, const std::string& type, std::size_t at,
                 std::map<std::string, std::vector<std::size_t>>& offsets) {
  for (const ReadMember& member : types.at(type)) {
    for (std::size_t n = 0; n < member.count; ++n) {
      if (member.orig_id.empty()) {
        at = Mark(types, member.type, at, offsets);
      } else {
        offsets[member.orig_id].push_back(at);
        at += member.width;
      }
    }
  }
  return at;
}

TEST(FormatsTest, TheTypesCoverEveryByteOfARecordOnce) {
  for (const KaitaiDescription& description : KaitaiDescriptions()) {
    std::map<std::string, std::vector<std::size_t>> offsets;
    EXPECT_EQ(Mark(TypesOf(description.text), "record", 0, offsets), description.layout.length);
    for (const Field& field : description.layout.fields) {
      std::vector<std::size_t> expected;
      for (std::size_t n = 0; n < field.Count(); ++n) expected.push_back(field.OffsetOfNth(n));
      std::ranges::sort(expected);
      EXPECT_EQ(offsets[FieldLabel(field)], expected) << description.id << ' ' << field.name;
    }
    EXPECT_EQ(offsets.size(), description.layout.fields.size()) << description.id;
  }
}

}  // namespace
}  // namespace golf
