#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace golf {

// Options of FilterKey.
inline constexpr unsigned kKeyAllowsBlank = 1;
inline constexpr unsigned kKeyToCapital = 2;
inline constexpr unsigned kKeyRefusesDigits = 4;

// Returns a typed key, its capital, or 0 if the key is refused. The letters A to Z in either case
// and the backspace always pass. Digits and the blank pass as the options say. Every other key is
// refused.
char FilterKey(char key, unsigned options);

// Limits `value` in place to the range `low` to `high`, and returns it rounded to a whole number,
// half to even. A value below `low` first becomes `if_low` if that is given. A value above `high`
// first becomes `if_high` if that is given. These replacements are limited too. Error 6 if the
// result does not fit 32 bits.
std::int32_t LimitNumber(double& value, double low, double high, std::optional<double> if_low = {},
                         std::optional<double> if_high = {});
// Does the same with LeadingNumber(text).
std::int32_t LimitNumber(std::string_view text, double low, double high,
                         std::optional<double> if_low = {}, std::optional<double> if_high = {});

// Distributes a player's handicap strokes over the holes by their ranks, 1 the hardest. `result`
// receives the strokes of each hole: 0 to 5, or -1 for a hole where the player gives a stroke. If
// `holes` is above 9, holes 1 to 18 are filled, else holes 1 to 9. `result` and `ranks` must hold
// as many. A hole whose rank is outside 1 to 18 gets 0. Negative `strokes` (a plus handicap) are
// taken from the easiest holes first, one a hole.
void AllocateHoleStrokes(std::span<int> result, std::span<const int> ranks, int holes, int strokes);

// Options of ShellSort.
inline constexpr unsigned kSortDescending = 1;
inline constexpr unsigned kSortFillsIndexes = 4;

// Sorts the first `count` values, and `indexes` with them, in place. kSortFillsIndexes first sets
// the indexes to 1 to `count`. Equal values are never exchanged with each other, but the sort is
// not stable. Callers rely on the order that its exchanges give.
void ShellSort(std::span<float> values, std::span<std::int32_t> indexes, std::size_t count,
               unsigned options);

}  // namespace golf
