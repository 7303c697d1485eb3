#include "outlets/results/entry_columns.h"

#include <utility>

namespace golf {

EntryColumn FactColumn(std::string heading, std::string ResultEntry::*fact) {
  return {std::move(heading), [fact](const ResultEntry& entry) { return entry.*fact; }};
}

EntryColumn PartColumn(std::string heading, Span span, Measure measure, std::size_t part) {
  return {std::move(heading), [=](const ResultEntry& entry) {
            const std::vector<std::string>& parts = entry.scores[span][measure].parts;
            return part < parts.size() ? parts[part] : std::string();
          }};
}

EntryColumn TotalColumn(std::string heading, Span span, Measure measure) {
  return {std::move(heading),
          [=](const ResultEntry& entry) { return entry.scores[span][measure].total; }};
}

}  // namespace golf
