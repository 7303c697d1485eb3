#include "core/general_routines.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include "core/number_text.h"

namespace golf {
namespace {

constexpr int kRanks = 18;

// A hole gets 5, 4, 3 or 2 strokes if at least this many strokes remain.
constexpr std::array<int, 4> kThresholds18 = {73, 55, 37, 19};
constexpr std::array<int, 4> kThresholds9 = {37, 28, 19, 10};

int StrokesFor(int left, const std::array<int, 4>& thresholds) {
  if (left < 1) return 0;
  int strokes = 5;
  for (const int threshold : thresholds) {
    if (left >= threshold) return strokes;
    --strokes;
  }
  return 1;
}

}  // namespace

char FilterKey(char key, unsigned options) {
  constexpr char kBackspace = 8;
  if (key == kBackspace || (key >= 'A' && key <= 'Z')) return key;
  if (key >= '0' && key <= '9') return options & kKeyRefusesDigits ? '\0' : key;
  if (key == ' ') return options & kKeyAllowsBlank ? key : '\0';
  if (key < 'a' || key > 'z') return 0;
  return options & kKeyToCapital ? static_cast<char>(key - 'a' + 'A') : key;
}

std::int32_t LimitNumber(double& value, double low, double high, std::optional<double> if_low,
                         std::optional<double> if_high) {
  if (if_low && value < low) value = *if_low;
  if (value < low) value = low;
  if (if_high && value > high) value = *if_high;
  if (value > high) value = high;
  return RoundToInt32(value);
}

std::int32_t LimitNumber(std::string_view text, double low, double high,
                         std::optional<double> if_low, std::optional<double> if_high) {
  double value = LeadingNumber(text);
  return LimitNumber(value, low, high, if_low, if_high);
}

void AllocateHoleStrokes(std::span<int> result, std::span<const int> ranks, int holes,
                         int strokes) {
  const bool eighteen = holes > 9;
  const std::size_t count = eighteen ? 18 : 9;
  std::fill_n(result.begin(), count, 0);
  int left = strokes;
  for (int rank = 1; rank <= kRanks; ++rank) {
    for (std::size_t hole = 0; hole < count; ++hole) {
      if (ranks[hole] != rank) continue;
      result[hole] = StrokesFor(left, eighteen ? kThresholds18 : kThresholds9);
      if (left >= 1) --left;
    }
  }
  for (int rank = kRanks; rank >= 1; --rank) {
    for (std::size_t hole = 0; hole < count && left < 0; ++hole) {
      if (ranks[hole] != rank) continue;
      result[hole] = -1;
      ++left;
    }
  }
}

void ShellSort(std::span<float> values, std::span<std::int32_t> indexes, std::size_t count,
               unsigned options) {
  if (options & kSortFillsIndexes)
    std::iota(indexes.begin(), indexes.begin() + static_cast<std::ptrdiff_t>(count), 1);
  const bool descending = options & kSortDescending;
  for (std::size_t gap = count; gap > 1;) {
    gap /= 2;
    for (bool exchanged = true; exchanged;) {
      exchanged = false;
      for (std::size_t i = 0; i + gap < count; ++i) {
        const std::size_t j = i + gap;
        const bool wrong = descending ? values[j] > values[i] : values[j] < values[i];
        if (!wrong) continue;
        std::swap(values[i], values[j]);
        std::swap(indexes[i], indexes[j]);
        exchanged = true;
      }
    }
  }
}

}  // namespace golf
