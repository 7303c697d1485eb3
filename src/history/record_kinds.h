#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/field.h"

namespace golf {

// What the history knows of the sibling's records. The program hands it over, since the history
// does not know the stores.
struct RecordKinds {
  // The layout of a file by its name without folder; nothing for a text file.
  std::function<std::optional<LayoutInfo>(std::string_view file_name)> layout_of;
  // What a record is called: "Smith, Ann". Empty where nobody lives in it, such as a free place.
  // `file` is the path below the install, with "/"; `bytes` is the whole record.
  std::function<std::string(std::string_view file, std::int64_t record, std::string_view bytes)>
      title_of;
  // The file from which a file is worked out and can be made anew, as a course index from its
  // library. Empty for any other file. Both are paths below the install.
  std::function<std::string(std::string_view file)> derived_from;
  // Whether the remains of a record that nobody lives in are those of the one who lives in it
  // later. He came back then and was not added: others may have referred to him all the time.
  std::function<bool(std::string_view file, std::string_view remains, std::string_view bytes)>
      is_same;
  // Who refers to a record: "Tournament \"Club Championship\""; empty with nobody.
  using ReferredBy = std::function<std::string(std::string_view file, std::int64_t record)>;
  // Answers by the files as they are, with what is held, when it is asked first.
  std::function<ReferredBy()> references;
};

}  // namespace golf
