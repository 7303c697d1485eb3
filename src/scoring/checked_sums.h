#pragma once

#include <cstdint>

namespace golf {

// Sums as they are kept, with error 6 where one leaves its place. What is added to a whole number
// makes it one again at each step, half to even.
std::int32_t AddWhole(std::int32_t sum, double value);
float AddSingle(float sum, double value);
// Amounts times 10000. Earnings count as they are shown, in whole cents.
std::int64_t AddEarnings(std::int64_t sum, std::int64_t amount);

}  // namespace golf
