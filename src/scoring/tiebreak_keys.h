#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Keys that break a tie on a total by the figures that follow it. A key is a text of numbers with
// leading zeros, separated by commas. Sorted as texts, keys have the order of their numbers. A
// negative number has a leading minus and does not sort by its value.

// Returns the score of a hole 1 to 18, or of the second nine for 20, in strokes.
using ScoreOfHole = std::function<std::int32_t(int hole)>;

// Returns the total, followed by the sums of the last holes of the round: 9, 6, 3 and 1, or 6, 3
// and 1 for a `round_type` of 9. For a net key, `handicap` is the round handicap in strokes, and
// each sum is reduced by its share of it. Error 6 if a figure does not fit 32 bits.
std::string LastHolesKey(int round_type, std::int32_t total, const ScoreOfHole& score,
                         std::optional<float> handicap = {});

// Returns the total in its pattern, followed by the scores of the holes in the given order.
std::string HoleByHoleKey(std::int32_t total, const std::vector<int>& holes,
                          const ScoreOfHole& score, std::string_view total_pattern = "000");

// Return the holes 1 to `round_type`, ascending and descending.
std::vector<int> HolesForward(int round_type);
std::vector<int> HolesBackward(int round_type);

}  // namespace golf
