#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/field.h"
#include "history/record_reference.h"

namespace golf {

// Is called with the referring record and the number of the record to which it refers.
using EachReference = std::function<void(std::string_view from_file, std::int64_t from_record,
                                         std::int64_t to_record)>;

// Contains what the history must know about the records. The program supplies it, since src/history
// does not include the stores. A record is free if it contains no golfer, course or roster. A free
// record may still contain the bytes of a deleted one.
struct RecordKinds {
  // Returns the layout of a file by its name without the folder. Returns nothing for a text file.
  std::function<std::optional<LayoutInfo>(std::string_view file_name)> layout_of;
  // Returns the title of a record, such as "Smith, Ann". Returns an empty string if the record is
  // free. `file` is relative to the install folder, with "/". `record` counts from 1. `bytes` is
  // the whole record.
  std::function<std::string(std::string_view file, std::int64_t record, std::string_view bytes)>
      title_of;
  // Returns the name in a record, also if the record is free.
  std::function<std::string(std::string_view file, std::int64_t record, std::string_view bytes)>
      name_in;
  // Returns the source file from which a file can be rebuilt, such as the library of a course
  // index. Returns an empty string for any other file. Both paths are relative to the install
  // folder.
  std::function<std::string(std::string_view file)> derived_from;
  // Calls `each` for each reference to a record of `file`. Reads held changes, too.
  std::function<void(std::string_view file, const EachReference& each)> for_each_reference;
  // Returns the name of a record that refers to another one, such as "Tournament \"Autumn Medal\"".
  // Returns an empty string if the record is free.
  std::function<std::string(const RecordId& from)> referrer_name;
};

}  // namespace golf
