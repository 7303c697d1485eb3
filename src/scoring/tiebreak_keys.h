#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

// These functions make keys that break a tie between equal totals. A key is a text of numbers with
// leading zeros, separated by commas. Sorting keys as texts sorts them by their numbers. A negative
// number begins with a minus sign, so it does not sort by its value.

// Returns the score in strokes of a hole 1 to 18, or of the second nine for 20.
using ScoreOfHole = std::function<std::int32_t(int hole)>;

// Returns the total, followed by the sums of the last 9, 6, 3 and 1 holes of the round. If
// `round_type` is 9, the sums are those of the last 6, 3 and 1 holes. For a net key, `handicap` is
// the round handicap in strokes, and its share is subtracted from each sum. Raises error 6 if a
// number does not fit 32 bits.
std::string LastHolesKey(int round_type, std::int32_t total, const ScoreOfHole& score,
                         std::optional<float> handicap = {});

// Returns the total in its pattern, followed by the scores of the holes in the given order.
std::string HoleByHoleKey(std::int32_t total, const std::vector<int>& holes,
                          const ScoreOfHole& score, std::string_view total_pattern = "000");

// Return the holes 1 to `round_type` in ascending and in descending order.
std::vector<int> HolesForward(int round_type);
std::vector<int> HolesBackward(int round_type);

}  // namespace golf
