#include "outlets/results/standings.h"

#include <cmath>
#include <map>
#include <utility>

#include "core/number_text.h"

namespace golf {

std::optional<double> NumberOfScore(const std::string& shown) {
  const bool is_plus = shown.starts_with('+');
  const std::optional<double> number = ReadLeadingNumber(is_plus ? shown.substr(1) : shown);
  if (!number || !std::isfinite(*number)) return std::nullopt;
  return is_plus ? -*number : *number;
}

std::vector<StandingsGroup> GroupsOf(const std::vector<ResultEntry>& entries) {
  using Kind = StandingsGroup::Kind;
  std::vector<StandingsGroup> groups = {FilteredGroup(entries, "", "")};
  std::map<std::string, std::vector<std::size_t>> flights;
  std::map<std::string, std::vector<std::size_t>> sexes;
  for (const std::size_t i : groups.front().members) {
    flights[entries[i].flight].push_back(i);
    sexes[entries[i].sex].push_back(i);
  }
  for (const auto& [flight, members] : flights) groups.push_back({Kind::kFlight, flight, members});
  for (const char* const sex : {"M", "F"}) {
    if (sexes.contains(sex)) groups.push_back({Kind::kSex, sex, sexes[sex]});
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
          places[index][group.kind][span][measure] = place;
        }
      }
    }
  }
  return places;
}

}  // namespace golf
