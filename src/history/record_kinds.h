#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/field.h"

namespace golf {

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
  // Returns the source file from which a file can be rebuilt, such as the library of a course
  // index. Returns an empty string for any other file. Both paths are relative to the install
  // folder.
  std::function<std::string(std::string_view file)> derived_from;
  // True if a free record with the bytes `remains` belonged to the golfer, course or roster that is
  // now in `bytes`. The run has then restored the record and not added it, so references to the
  // record may be older than the run.
  std::function<bool(std::string_view file, std::string_view remains, std::string_view bytes)>
      is_same;
  // Returns a record that refers to this one, such as "Tournament \"Club Championship\"". Returns
  // an empty string if there is none.
  using ReferredBy = std::function<std::string(std::string_view file, std::int64_t record)>;
  // Returns a function that reads the files at its first call, including their held changes.
  std::function<ReferredBy()> references;
};

}  // namespace golf
