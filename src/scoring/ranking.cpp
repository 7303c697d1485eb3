#include "scoring/ranking.h"

#include <algorithm>

#include "scoring/places.h"

namespace golf {

std::vector<RankedPlace> RankScores(std::span<const RankedScore* const> scores, bool lowest_first,
                                    int position_option) {
  std::vector<RankedPlace> ranked;
  for (std::size_t i = 0; i < scores.size(); ++i) ranked.push_back({i, {}});
  std::stable_sort(ranked.begin(), ranked.end(), [&](const RankedPlace& a, const RankedPlace& b) {
    const RankedScore& left = *scores[a.index];
    const RankedScore& right = *scores[b.index];
    if (!left.value || !right.value) return left.value.has_value() && !right.value;
    if (*left.value != *right.value) return (*left.value < *right.value) == lowest_first;
    return left.tiebreak < right.tiebreak;
  });
  const Places places = NumberPlaces(ranked.size(), [&](std::size_t a, std::size_t b) {
    const RankedScore& left = *scores[ranked[a].index];
    const RankedScore& right = *scores[ranked[b].index];
    return left.value == right.value && left.tiebreak == right.tiebreak;
  });
  const std::vector<int>& numbers = places.Numbers(position_option);
  for (std::size_t i = 0; i < ranked.size(); ++i) {
    if (scores[ranked[i].index]->value) ranked[i].place = numbers[i];
  }
  return ranked;
}

}  // namespace golf
