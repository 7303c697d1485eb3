#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "outlets/results/result_entry.h"

namespace golf {

// Describes a column of standings. Texts are in code page 1252.
struct EntryColumn {
  std::string heading;
  std::function<std::string(const ResultEntry&)> text;
};

// Return a column of a text of the entries, of one part of a score, from 0, or of its total.
EntryColumn FactColumn(std::string heading, std::string ResultEntry::*fact);
EntryColumn PartColumn(std::string heading, Span span, Measure measure, std::size_t part);
EntryColumn TotalColumn(std::string heading, Span span, Measure measure);

}  // namespace golf
