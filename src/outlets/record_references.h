#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "history/record_kinds.h"
#include "history/record_reference.h"
#include "outlets/install_reader.h"

namespace golf {

// Calls `each` for each reference to a record of `file`, which is relative to the install folder.
// A golfer can be referred to by tournament entries, a roster by golfers, and a course by
// tournaments, leagues or scores. Ignores files that cannot be read.
void ForEachReference(InstallReader& reader, std::string_view file, const EachReference& each);

// Returns a name such as "Tournament \"Autumn Medal\"". Returns an empty string if the record is
// free.
std::string NameOfReferrer(InstallReader& reader, const RecordId& from);

// Returns the references to those of the records that are free on the disk, where held changes do
// not count. `records` must be sorted.
std::vector<RecordReference> ReferencesToFreeRecords(SharedState& state, std::string_view file,
                                                     const std::vector<std::int64_t>& records);

}  // namespace golf
