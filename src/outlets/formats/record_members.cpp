#include "outlets/formats/record_members.h"

#include <algorithm>
#include <cctype>

namespace golf {
namespace {

bool IsUpper(char c) { return std::isupper(static_cast<unsigned char>(c)) != 0; }

std::string IdOf(const Field& field) {
  return field.name.empty() ? "unnamed_" + std::to_string(field.offset) : SnakeCase(field.name);
}

// Returns true if bytes of other fields lie between the values of a table.
bool Alternates(const Field& field) {
  if (field.rank == 0) return false;
  const std::size_t slowest = FastestFirst(field).back();
  const auto count = static_cast<std::size_t>(field.dimensions[slowest].count);
  return field.strides[slowest] * count != field.Size();
}

Field WithoutIndex(Field field, std::size_t index) {
  for (std::size_t i = index; i + 1 < field.rank; ++i) {
    field.dimensions[i] = field.dimensions[i + 1];
    field.strides[i] = field.strides[i + 1];
  }
  --field.rank;
  return field;
}

// Names the repeated entries and their types. The offset follows a name that is used twice.
void NameEntries(std::vector<Member>& members) {
  const std::vector<Member> all = members;
  for (Member& member : members) {
    if (member.type.empty()) continue;
    const bool is_only = std::ranges::count(all, member.type, &Member::type) == 1;
    const std::string suffix = is_only ? "" : "_" + std::to_string(member.fields.front().offset);
    member.id = member.type + 's' + suffix;
    member.type += suffix;
  }
}

}  // namespace

std::string NameOf(const Dimension& dimension) {
  return dimension.name.empty() ? "index" : std::string(dimension.name);
}

std::string SnakeCase(std::string_view name) {
  std::string id;
  for (std::size_t i = 0; i < name.size(); ++i) {
    const bool ends_word = i > 0 && std::isalnum(static_cast<unsigned char>(name[i - 1])) != 0 &&
                           !IsUpper(name[i - 1]);
    const bool begins_word =
        i > 0 && i + 1 < name.size() && IsUpper(name[i - 1]) && std::islower(name[i + 1]) != 0;
    if (IsUpper(name[i]) && (ends_word || begins_word)) id += '_';
    id += name[i] == ' ' ? '_' : static_cast<char>(std::tolower(name[i]));
  }
  return id;
}

std::vector<std::size_t> FastestFirst(const Field& field) {
  std::vector<std::size_t> indexes(field.rank);
  for (std::size_t i = 0; i < field.rank; ++i) indexes[i] = i;
  std::ranges::stable_sort(indexes, {}, [&](std::size_t i) { return field.strides[i]; });
  return indexes;
}

std::vector<Member> MembersOf(std::vector<Field> fields) {
  std::ranges::stable_sort(fields, {}, &Field::offset);
  std::vector<Member> members;
  std::size_t end_of_entry = 0;
  for (const Field& field : fields) {
    if (!Alternates(field)) {
      members.push_back({IdOf(field), {field}});
      continue;
    }
    const std::size_t index = FastestFirst(field).back();
    if (field.offset >= end_of_entry) {
      members.push_back(
          {"", {}, field.dimensions[index], SnakeCase(NameOf(field.dimensions[index]))});
      end_of_entry = field.offset + field.strides[index];
    }
    members.back().fields.push_back(WithoutIndex(field, index));
  }
  NameEntries(members);
  return members;
}

}  // namespace golf
