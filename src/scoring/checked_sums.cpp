#include "scoring/checked_sums.h"

#include <limits>

#include "core/number_text.h"
#include "core/numbered_error.h"
#include "stores/quenby/roster_players.h"

namespace golf {

std::int32_t AddWhole(std::int32_t sum, double value) { return RoundToInt32(sum + value); }

float AddSingle(float sum, double value) { return CheckedSingle(sum + value); }

std::int64_t AddEarnings(std::int64_t sum, std::int64_t amount) {
  constexpr std::int64_t kCent = 100;
  constexpr std::int64_t kMostCents = std::numeric_limits<std::int64_t>::max() / kCent;
  const std::int64_t cents = sum / kCent + CurrencyInCents(amount);
  if (cents > kMostCents || cents < -kMostCents) {
    throw NumberedError(ErrorNumber::kOverflow, "The earnings are too large for their place.");
  }
  return cents * kCent;
}

}  // namespace golf
