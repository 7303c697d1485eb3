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
// `name` is a constant: the name of the member function that returns the value. The arguments of
// `value_of` depend on the member function:
//   Value   `value_of()` returns the value.
//   Array   `value_of(i)` returns an element. `i` is 1 to `count`.
//   Arrays  `value_of(key, i)` returns an element. `key` is `first_key` to `last_key`, and `i` is 1
//           to `count`.
// A visitor must call `value_of` before its member function returns, since the next calculation
// replaces some values.
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
