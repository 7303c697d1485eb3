#include "outlets/results/standings.h"

#include <cmath>
#include <set>
#include <utility>

#include "core/number_text.h"

namespace golf {
namespace {

using Kind = StandingsGroup::Kind;

// Adds a group if it has members.
void AddGroup(const std::vector<ResultEntry>& entries, Kind kind, std::string ResultEntry::*member,
              const std::string& key, std::vector<StandingsGroup>& groups) {
  StandingsGroup group{kind, key, {}};
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (entries[i].*member == key) group.members.push_back(i);
  }
  if (!group.members.empty()) groups.push_back(std::move(group));
}

}  // namespace

std::optional<double> NumberOfScore(const std::string& shown) {
  const bool is_plus = shown.starts_with('+');
  const std::optional<double> number = ReadLeadingNumber(is_plus ? shown.substr(1) : shown);
  if (!number || !std::isfinite(*number)) return std::nullopt;
  return is_plus ? -*number : *number;
}

std::vector<StandingsGroup> GroupsOf(const std::vector<ResultEntry>& entries) {
  std::vector<StandingsGroup> groups(1);
  for (std::size_t i = 0; i < entries.size(); ++i) groups.front().members.push_back(i);
  std::set<std::string> flights;
  for (const ResultEntry& entry : entries) flights.insert(entry.flight);
  for (const std::string& flight : flights) {
    AddGroup(entries, Kind::kFlight, &ResultEntry::flight, flight, groups);
  }
  for (const char* const sex : {"M", "F"}) {
    AddGroup(entries, Kind::kSex, &ResultEntry::sex, sex, groups);
  }
  return groups;
}

StandingsGroup FilteredGroup(const std::vector<ResultEntry>& entries, const std::string& flight,
                             const std::string& sex) {
  StandingsGroup group;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const bool is_member =
        (flight.empty() || entries[i].flight == flight) && (sex.empty() || entries[i].sex == sex);
    if (is_member) group.members.push_back(i);
  }
  return group;
}

std::vector<RankedPlace> RankGroup(const std::vector<ResultEntry>& entries,
                                   const StandingsGroup& group, Span span, Measure measure,
                                   int position_option) {
  std::vector<const RankedScore*> scores;
  for (const std::size_t i : group.members) {
    scores.push_back(&entries[i].scores[span][measure].ranked);
  }
  std::vector<RankedPlace> ranked = RankScores(scores, RanksLowestFirst(measure), position_option);
  for (RankedPlace& place : ranked) place.index = group.members[place.index];
  return ranked;
}

std::vector<EntryPlaces> PlacesOf(const std::vector<ResultEntry>& entries, int position_option) {
  std::vector<EntryPlaces> places(entries.size());
  for (const StandingsGroup& group : GroupsOf(entries)) {
    for (const Span span : kSpans) {
      for (const Measure measure : kMeasures) {
        for (const auto& [index, place] :
             RankGroup(entries, group, span, measure, position_option)) {
          places[index].At(group.kind, span, measure) = place;
        }
      }
    }
  }
  return places;
}

}  // namespace golf
