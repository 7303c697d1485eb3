#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Keys that settle a tie on a total by the figures that follow it: numbers with leading zeros, with
// a comma between them, which sort as texts. A negative number keeps its minus and sorts oddly.

// The score of a hole 1 to 18, or of the second nine (20).
using ScoreOfHole = std::function<std::int32_t(int hole)>;

// The total, then the last holes of the round, ever fewer of them. For a net key the share of the
// round handicap in those holes is taken off. Error 6 where a figure leaves 32 bits.
std::string LastHolesKey(int round_type, std::int32_t total, const ScoreOfHole& score,
                         std::optional<float> handicap = {});

// The total in its pattern, then the scores of the holes in the order given.
std::string HoleByHoleKey(std::int32_t total, const std::vector<int>& holes,
                          const ScoreOfHole& score, std::string_view total_pattern = "000");

// Holes 1 to `round_type`, and back.
std::vector<int> HolesForward(int round_type);
std::vector<int> HolesBackward(int round_type);

}  // namespace golf
