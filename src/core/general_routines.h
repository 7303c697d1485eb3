#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace golf {

// These are the options of FilterKey. They can be combined.
inline constexpr unsigned kKeyAllowsBlank = 1;
inline constexpr unsigned kKeyToCapital = 2;
inline constexpr unsigned kKeyRefusesDigits = 4;

// Returns the typed key, its capital letter, or 0 if the key is refused. Always accepts the letters
// A to Z in either case and the backspace. The options decide about digits and the blank. Refuses
// every other key.
char FilterKey(char key, unsigned options);

// Limits `value` in place to the range `low` to `high`, and returns it rounded to a whole number,
// half to even. First replaces a value below `low` by `if_low`, if given, and raises it to at least
// `low`. Then replaces a value above `high` by `if_high`, if given, and lowers it to at most
// `high`. Raises error 6 if the result does not fit 32 bits.
std::int32_t LimitNumber(double& value, double low, double high, std::optional<double> if_low = {},
                         std::optional<double> if_high = {});
// Does the same with LeadingNumber(text).
std::int32_t LimitNumber(std::string_view text, double low, double high,
                         std::optional<double> if_low = {}, std::optional<double> if_high = {});

// Distributes a player's handicap strokes over the holes by their ranks. Rank 1 is the hardest
// hole. Sets `result` to the strokes of each hole: 0 to 5, or -1 for a hole where the player gives
// a stroke. Fills holes 1 to 18 if `holes` is above 9, and otherwise holes 1 to 9. `result` and
// `ranks` must have that many elements. A hole whose rank is outside 1 to 18 gets 0. A negative
// number of strokes is a plus handicap. The player then gives one stroke on each of as many holes,
// starting with the easiest.
void AllocateHoleStrokes(std::span<int> result, std::span<const int> ranks, int holes, int strokes);

// These are the options of ShellSort. They can be combined.
inline constexpr unsigned kSortDescending = 1;
inline constexpr unsigned kSortFillsIndexes = 4;

// Sorts the first `count` values in place, and reorders `indexes` in the same way.
// kSortFillsIndexes first sets the indexes to 1 to `count`. The sort is not stable, although it
// never exchanges two equal values. Callers depend on the exact order that its exchanges produce.
void ShellSort(std::span<float> values, std::span<std::int32_t> indexes, std::size_t count,
               unsigned options);

}  // namespace golf
