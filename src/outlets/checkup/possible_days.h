#pragma once

#include "core/date_value.h"

namespace golf {

// The days from 1 January 1920 to 31 December 2099 are possible.
inline constexpr DateValue kFirstPossibleDay = 7306;
inline constexpr DateValue kLastPossibleDay = 73050;

// Returns false for a value that is no number, too.
constexpr bool IsPossibleDay(DateValue date) {
  return date >= kFirstPossibleDay && date <= kLastPossibleDay;
}

}  // namespace golf
