#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace golf {

// Holds a calculated value: a text in code page 1252, a whole number or a number with decimals. A
// float can be NaN or infinite.
using ResultValue = std::variant<std::string, std::int32_t, float, double>;

// VisitPlayerValues and VisitTeamValues pass every calculated value to a visitor, always in the
// same order. A visitor has three member functions:
//   void Value(const char* name, ValueOf value_of);
//   void Array(const char* name, int count, ValueOf value_of);
//   void Arrays(const char* name, int first_key, int last_key, int count, ValueOf value_of);
// `name` is a constant: the name of the member function that returns the value. In Value,
// `value_of()` returns the value. In Array, `value_of(i)` returns the value of index `i`, 1 to
// `count`. In Arrays, `value_of(key, i)` returns it for a key from `first_key` to `last_key`. The
// visitor must read the values before it returns, since some of them are those of the round that
// was calculated last.
//
// An array has one of these counts:
//   kHoles       the holes 1 to 18
//   kWholeRound  the holes 1 to 18, the first nine, the second nine and the round
//   kRoundParts  the first nine, the second nine and the round
//   kTeamNames   the last names of a team in one text, then the names of its first eight golfers
// The keys of Arrays are differences between score and par, -kMostDifference to kMostDifference, or
// numbers of balls, 1 to kMostBalls.
inline constexpr int kMostBalls = 4;

}  // namespace golf
