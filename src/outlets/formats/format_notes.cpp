#include "outlets/formats/format_notes.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace golf {
namespace {

constexpr FormatNote kNotes[] = {
    {"course", "Course library",
     "The file contains one record for each course. The number of a course is its record number. A "
     "deleted course keeps its record. In Kelvane's own file, KVCRS.DAT, YardsOrMeters has no "
     "meaning."},
    {"course index", "Course index",
     "Record 1 is the number of entries. The next records are course numbers in the order of "
     "display. Records after the last entry have no meaning."},
    {"kelvane header", "Header of a Kelvane roster",
     "The file contains one record. Only Kelvane uses the fields whose names contain their offset "
     "in the record, such as Setting153."},
    {"kelvane golfer", "Golfers of a Kelvane roster",
     "Each record contains a golfer or is free. Only Kelvane uses the fields whose names contain "
     "their offset in the record, such as Setting437."},
    {"kelvane history", "Score histories of a Kelvane roster",
     "Each record contains up to 300 scores of a golfer, the newest first. The golfer is in the "
     "record with the same number in the .KVG file."},
    {"kelvane reports", "Report settings of Kelvane",
     "The records belong to all rosters. Golf Transfer opens this file, but never reads or writes "
     "it."},
    {"kelvane system", "System settings of Kelvane", "The file contains one record."},
    {"quenby master", "Settings of Quenby", "The file contains one record."},
    {"quenby roster", "Rosters of Quenby",
     "The file contains one record for each roster. The number of a roster is its record number."},
    {"quenby golfer", "Golfers of Quenby",
     "The file contains one record for each golfer of any roster. Records 1 to 9 are never used "
     "for a golfer. \"Corrected\" means that Golf Transfer replaces an invalid value when it reads "
     "the record."},
    {"tournament", "Control file of a Quenby tournament",
     "The file contains one record. DEFAULT.Q9C contains the defaults of new tournaments. "
     "\"Corrected\" means that Golf Transfer replaces an invalid value when it reads the record."},
    {"tournament player", "Entries of a Quenby tournament",
     "The file contains one record for each golfer who takes part. \"Corrected\" means that Golf "
     "Transfer replaces an invalid value when it reads the record."},
    {"team", "Teams of a Quenby tournament",
     "The file contains one record for each team. The number of a team is its record number. "
     "\"Corrected\" means that Golf Transfer replaces an invalid value when it reads the record."},
    {"league control", "Control file of a Zandel division", "The file contains one record."},
    {"league player", "Players and substitutes of a Zandel league",
     "The file contains one record for each player of a division (.ZP8) or substitute of a league "
     "(.ZS8). Records 1 to 5 of a .ZS8 file are never used."},
    {"league team", "Teams of a Zandel division",
     "The file contains one record for each team. The number of a team is its record number."},
    {"league event", "Events of a Zandel division",
     "The file contains one record for each event. The number of an event is its record number."},
};

}  // namespace

const FormatNote& NoteOfLayout(std::string_view layout) {
  const auto note = std::ranges::find(kNotes, layout, &FormatNote::layout);
  if (note == std::end(kNotes)) throw std::logic_error("a layout without a note");
  return *note;
}

}  // namespace golf
