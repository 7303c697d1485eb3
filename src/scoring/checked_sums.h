#pragma once

#include <cstdint>

namespace golf {

// Add a value to a sum. Raise error 6 if the result does not fit the type. AddWhole rounds the
// result to a whole number, half to even.
std::int32_t AddWhole(std::int32_t sum, double value);
float AddSingle(float sum, double value);
// Adds two amounts times 10000. Rounds them to whole cents, as they are shown, before it adds.
std::int64_t AddEarnings(std::int64_t sum, std::int64_t amount);

}  // namespace golf
