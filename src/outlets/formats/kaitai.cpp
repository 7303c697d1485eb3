#include "outlets/formats/kaitai.h"

#include <algorithm>
#include <string>

#include "core/text.h"
#include "outlets/field_values.h"
#include "outlets/file_kinds.h"
#include "outlets/formats/format_notes.h"
#include "outlets/formats/record_members.h"

namespace golf {
namespace {

std::string RangeOf(const Dimension& dimension) {
  return NameOf(dimension) + ' ' + std::to_string(dimension.base) + " to " +
         std::to_string(dimension.base + dimension.count - 1);
}

// Returns a text such as "by tee 1 to 6 and hole 1 to 18; tee varies fastest".
std::string IndexesText(const Field& field) {
  std::string text = "by ";
  for (std::size_t i = 0; i < field.rank; ++i) {
    if (i > 0) text += i + 1 == field.rank ? " and " : ", ";
    text += RangeOf(field.dimensions[i]);
  }
  const std::vector<std::size_t> order = FastestFirst(field);
  for (std::size_t i = 0; i + 1 < order.size(); ++i) {
    text += i == 0 ? "; " : ", then ";
    text += NameOf(field.dimensions[order[i]]) + (i == 0 ? " varies fastest" : "");
  }
  return text;
}

std::vector<std::string> DocOf(const Field& field) {
  std::vector<std::string> lines;
  if (field.name.empty()) lines.emplace_back("bytes without a meaning");
  if (!field.meaning.empty()) lines.emplace_back(field.meaning);
  if (field.type == FieldType::kDate) {
    lines.emplace_back("days since 30 December 1899; the fraction is the time of day");
  }
  if (field.type == FieldType::kCurrency) lines.emplace_back("the amount times 10000");
  if (field.rank > 0) lines.push_back(IndexesText(field));
  return lines;
}

std::string TypeText(const Field& field) {
  const std::string size = "size: " + std::to_string(field.width);
  if (field.name.empty()) return size;
  if (field.type == FieldType::kText)
    return "type: str\n        " + size + "\n        pad-right: 0x20";
  constexpr std::string_view kTypes[] = {"u1", "s2", "s4", "f4", "f8", "f8", "s8"};
  return "type: " + std::string(kTypes[static_cast<std::size_t>(field.type)]);
}

void AppendMember(std::string& text, const std::string& id, const std::string& attributes,
                  std::size_t count, const std::vector<std::string>& doc) {
  text += "      - id: " + id + "\n        " + attributes + '\n';
  if (count > 0) {
    text += "        repeat: expr\n        repeat-expr: " + std::to_string(count) + '\n';
  }
  if (!doc.empty()) text += "        doc: |\n";
  for (const std::string& line : doc) text += "          " + line + '\n';
}

// Appends a type, and the types of its repeated entries.
void AppendType(std::string& text, const std::string& name, const std::vector<Field>& fields) {
  const std::vector<Member> members = MembersOf(fields);
  text += "  " + name + ":\n    seq:\n";
  for (const Member& member : members) {
    const Field& field = member.fields.front();
    if (member.type.empty()) {
      AppendMember(text, member.id,
                   "-orig-id: " + FieldLabel(field) + "\n        " + TypeText(field),
                   field.rank == 0 ? 0 : field.Count(), DocOf(field));
    } else {
      AppendMember(text, member.id, "type: " + member.type,
                   static_cast<std::size_t>(member.entries.count),
                   {"by " + RangeOf(member.entries)});
    }
  }
  for (const Member& member : members) {
    if (!member.type.empty()) AppendType(text, member.type, member.fields);
  }
}

std::string Joined(const std::vector<std::string_view>& words) {
  std::string text;
  for (const std::string_view word : words) text.append(text.empty() ? "" : ", ").append(word);
  return text;
}

// Returns the endings of the file names in small letters, such as "kvg" or "[zp8, zs8]".
std::string ExtensionsOf(const std::vector<std::string_view>& files) {
  std::vector<std::string> endings;
  for (const std::string_view file : files) {
    const std::string ending = LowerCase(file.substr(file.rfind('.') + 1));
    if (std::ranges::find(endings, ending) == endings.end()) endings.push_back(ending);
  }
  const std::string text = Joined({endings.begin(), endings.end()});
  return endings.size() == 1 ? text : '[' + text + ']';
}

std::string TextOf(const KaitaiDescription& description) {
  const LayoutInfo& layout = description.layout;
  const FormatNote& note = NoteOfLayout(layout.name);
  std::string text = "meta:\n  id: " + description.id + "\n  title: " + std::string(note.title);
  text += "\n  file-extension: " + ExtensionsOf(description.files);
  text += "\n  license: CC0-1.0\n  ks-version: '0.9'\n  endian: le\n  encoding: windows-1252\n";
  text += "doc: |\n  " + Joined(description.files) + "\n  " + std::string(note.contents);
  text += "\nseq:\n  - id: records\n    type: record\n    size: " + std::to_string(layout.length);
  text += "\n    repeat: eos\ntypes:\n";
  AppendType(text, "record", {layout.fields.begin(), layout.fields.end()});
  return text;
}

}  // namespace

std::vector<KaitaiDescription> KaitaiDescriptions() {
  std::vector<KaitaiDescription> descriptions;
  for (const FileKind& kind : FileKinds()) {
    const std::string id = SnakeCase(kind.layout.name);
    const auto same = std::ranges::find(descriptions, id, &KaitaiDescription::id);
    if (same == descriptions.end()) {
      descriptions.push_back({id, kind.layout, {kind.name}, {}});
    } else {
      same->files.push_back(kind.name);
    }
  }
  for (KaitaiDescription& description : descriptions) description.text = TextOf(description);
  return descriptions;
}

}  // namespace golf
