#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/field.h"

namespace golf {

// Describes a member of a type: one field, or the fields of an entry that is repeated.
struct Member {
  std::string id;
  std::vector<Field> fields;  // in the order of their offsets
  Dimension entries{};        // of a repeated entry
  std::string type{};         // of a repeated entry; empty for one field
};

// Returns the members of a type that consists of these fields. Fields that alternate with the same
// distance from entry to entry become one repeated entry.
std::vector<Member> MembersOf(std::vector<Field> fields);

// Returns the indexes of a table by number. The one that varies fastest in the file is the first.
std::vector<std::size_t> FastestFirst(const Field& field);

// Returns what an index counts, such as "tee", or "index" if it has no name.
std::string NameOf(const Dimension& dimension);

// Returns a name such as "KVCourseNum" as "kv_course_num".
std::string SnakeCase(std::string_view name);

}  // namespace golf
