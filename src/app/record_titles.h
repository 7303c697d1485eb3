#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "app/install_reader.h"

namespace golf {

// "Last, First", or "Golfer #12" for a golfer without a name.
std::string GolferTitleLF(std::string_view first, std::string_view last, std::int64_t id);

// The name of the tournament whose control file is beside one of its files.
std::string TournamentTitle(InstallReader& reader, std::string_view file);

// What a record is called. Empty where nobody lives in it, and for a file whose records have no
// names.
std::string TitleOfRecord(InstallReader& reader, std::string_view file, std::int64_t record,
                          std::string_view bytes);

}  // namespace golf
