#include "outlets/results/entry_columns.h"

#include <algorithm>
#include <utility>

namespace golf {
namespace {

bool IsOnCourse(const ResultEntry& entry, int holes) {
  return entry.holes_played > 0 && entry.holes_played < holes;
}

}  // namespace

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

EntryColumn HolesColumn(int holes) {
  return {"Holes", [holes](const ResultEntry& entry) {
            return IsOnCourse(entry, holes) ? std::to_string(entry.holes_played) : std::string();
          }};
}

bool IsSomebodyOnCourse(const std::vector<ResultEntry>& entries, int holes) {
  return std::ranges::any_of(
      entries, [holes](const ResultEntry& entry) { return IsOnCourse(entry, holes); });
}

}  // namespace golf
