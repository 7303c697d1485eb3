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

// Returns the name of the league to which `file` belongs, from the control file, which has the
// extension .ZL8. Returns the file name without extension if the control file cannot be read.
std::string LeagueTitle(InstallReader& reader, std::string_view file);

// Returns the name of a record. Returns an empty text if the record is free or if records of this
// file have no names.
std::string TitleOfRecord(InstallReader& reader, std::string_view file, std::int64_t record,
                          std::string_view bytes);

// Returns the name in a record, also if the record is free. A free record may contain the name of
// a deleted golfer, course or roster.
std::string NameInRecord(InstallReader& reader, std::string_view file, std::int64_t record,
                         std::string_view bytes);

}  // namespace golf
