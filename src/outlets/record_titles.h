#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "outlets/install_reader.h"

namespace golf {

// Returns the name of the tournament to which `file` belongs. Its control file has the same name
// with the extension .Q9C. Returns the file name without its extension if the control file cannot
// be read.
std::string TournamentTitle(InstallReader& reader, std::string_view file);

// Returns the name of a record. Returns an empty text if the record is unused or if records of this
// file have no names.
std::string TitleOfRecord(InstallReader& reader, std::string_view file, std::int64_t record,
                          std::string_view bytes);

}  // namespace golf
