#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "outlets/results/result_entry.h"

namespace golf {

// Describes a column of standings. Texts are in code page 1252.
struct EntryColumn {
  std::string heading;
  std::function<std::string(const ResultEntry&)> text;
};

// Return a column with a text of each entry, with one part of a score, or with its total. The first
// part is 0.
EntryColumn FactColumn(std::string heading, std::string ResultEntry::*fact);
EntryColumn PartColumn(std::string heading, Span span, Measure measure, std::size_t part);
EntryColumn TotalColumn(std::string heading, Span span, Measure measure);
// Returns the column of the number of holes that a player has played. It is empty for a player who
// has played all holes of the round, or none. `holes` is the number of holes of a round.
EntryColumn HolesColumn(int holes);
// Returns true if at least one entry has a text in this column.
bool IsSomebodyOnCourse(const std::vector<ResultEntry>& entries, int holes);

}  // namespace golf
