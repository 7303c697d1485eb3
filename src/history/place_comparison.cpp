#include "history/place_comparison.h"

#include <algorithm>
#include <cstring>

namespace golf {
namespace {

// True if the file has the byte of `side` at the index `at` of a place. `side` is the old or the
// new bytes of the place. `first` is the index at which `now` begins.
bool IsByteOf(std::string_view side, std::string_view now, std::size_t first, std::size_t at) {
  if (at - first >= now.size()) return at >= side.size();
  return now[at - first] == (at < side.size() ? side[at] : '\0');
}

template <class IsRight>
bool AllOf(const ChangedBytes& run, const IsRight& is_right) {
  for (std::size_t at = run.at; at < run.End(); ++at) {
    if (!is_right(at)) return false;
  }
  return true;
}

}  // namespace

bool IsUntouched(const HistoryPlace& place, std::string_view now) {
  const std::size_t first = place.FirstChanged();
  const std::string_view old_bytes = place.old_bytes;
  const std::size_t both = std::min(first + now.size(), old_bytes.size());
  return std::all_of(place.changed.begin(), place.changed.end(), [&](const ChangedBytes& run) {
    if (run.End() <= both) {
      return std::memcmp(now.data() + run.at - first, old_bytes.data() + run.at, run.size) == 0;
    }
    // Behind the old end, an added record has no old bytes that could differ.
    if (first + now.size() <= run.at && old_bytes.size() <= run.at) return true;
    return AllOf(run, [&](std::size_t at) { return IsByteOf(old_bytes, now, first, at); });
  });
}

bool IsMixture(const HistoryPlace& place, std::string_view now) {
  const std::size_t first = place.FirstChanged();
  return std::all_of(place.changed.begin(), place.changed.end(), [&](const ChangedBytes& run) {
    return AllOf(run, [&](std::size_t at) {
      return IsByteOf(place.old_bytes, now, first, at) || IsByteOf(place.new_bytes, now, first, at);
    });
  });
}

}  // namespace golf
