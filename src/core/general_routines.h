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

// What becomes of a typed key: itself, its capital, or 0 where it is refused. Letters of A to Z,
// digits and the blank pass as the options say, the backspace always, every other key never.
char FilterKey(char key, unsigned options);

// Brings `value` between `low` and `high` and gives it as a whole number, half to even. A value
// below `low` first becomes `if_low` where that is given, one above `high` `if_high`; what they
// name is limited as well. Error 6 where the result is no 32-bit number.
std::int32_t LimitNumber(double& value, double low, double high, std::optional<double> if_low = {},
                         std::optional<double> if_high = {});
// The same with the number at the start of a text.
std::int32_t LimitNumber(std::string_view text, double low, double high,
                         std::optional<double> if_low = {}, std::optional<double> if_high = {});

// Gives a player's strokes to holes by their ranks, 1 the hardest. Above 9 `holes` it is holes 1 to
// 18, else holes 1 to 9: `result` and `ranks` must hold as many. A hole whose rank is outside 1 to
// 18 gets none; negative strokes (a plus player) are taken from the easiest holes first.
void AllocateHoleStrokes(std::span<int> result, std::span<const int> ranks, int holes, int strokes);

// Options of ShellSort.
inline constexpr unsigned kSortDescending = 1;
inline constexpr unsigned kSortFillsIndexes = 4;

// Sorts the first `count` values, and `indexes` with them, in place. With kSortFillsIndexes the
// indexes are 1 to `count` before. Equal values are never exchanged, yet the sort is not stable:
// its order of exchanges is part of what callers rely on.
void ShellSort(std::span<float> values, std::span<std::int32_t> indexes, std::size_t count,
               unsigned options);

}  // namespace golf
