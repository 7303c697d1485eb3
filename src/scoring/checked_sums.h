#pragma once

#include <cstdint>

namespace golf {

// Add a value to a sum. Error 6 if the result does not fit the type. AddWhole rounds each result to
// a whole number, half to even.
std::int32_t AddWhole(std::int32_t sum, double value);
float AddSingle(float sum, double value);
// Takes and returns amounts times 10000. Amounts count as shown, rounded to whole cents.
std::int64_t AddEarnings(std::int64_t sum, std::int64_t amount);

}  // namespace golf
