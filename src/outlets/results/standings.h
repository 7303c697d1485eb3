#pragma once

#include <optional>
#include <string>
#include <vector>

#include "outlets/results/result_entry.h"

namespace golf {

// Contains the entries that are ranked together: all entries, or the entries of a flight or a sex.
struct StandingsGroup {
  enum class Kind { kAll, kFlight, kSex };
  Kind kind = Kind::kAll;
  std::string key;                   // the letter of the flight, or "M" or "F"; empty for all
  std::vector<std::size_t> members;  // indexes of the entries, in ascending order
};
inline constexpr StandingsGroup::Kind kGroupKinds[] = {
    StandingsGroup::Kind::kAll, StandingsGroup::Kind::kFlight, StandingsGroup::Kind::kSex};

// Returns the group of all entries, then a group for each flight and each sex that an entry has.
std::vector<StandingsGroup> GroupsOf(const std::vector<ResultEntry>& entries);

// Returns the group of the entries of a flight and a sex. An empty text selects all flights or both
// sexes.
StandingsGroup FilteredGroup(const std::vector<ResultEntry>& entries, const std::string& flight,
                             const std::string& sex);

// Ranks the members of a group. The indexes of the result are those of the entries. See RankScores.
std::vector<RankedPlace> RankGroup(const std::vector<ResultEntry>& entries,
                                   const StandingsGroup& group, Span span, Measure measure,
                                   int position_option);

// Contains the places of an entry in the groups of each kind.
using EntryPlaces =
    ByEnum<StandingsGroup::Kind, std::size(kGroupKinds), BySpan<ByMeasure<std::optional<int>>>>;

// Returns the places of each entry.
std::vector<EntryPlaces> PlacesOf(const std::vector<ResultEntry>& entries, int position_option);

}  // namespace golf
