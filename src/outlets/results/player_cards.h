#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "outlets/results/result_entry.h"

namespace golf {

// Counts a player's holes by their scores against par.
struct HoleCounts {
  std::int32_t eagles = 0;  // or better
  std::int32_t birdies = 0;
  std::int32_t pars = 0;
  std::int32_t bogeys = 0;
  std::int32_t double_bogeys = 0;  // or worse
};

// Contains the score cards of a player and his statistics in the rounds of these cards. All texts
// are in code page 1252.
struct PlayerCards {
  std::vector<RoundCard> cards;  // of the played rounds, in ascending order
  HoleCounts gross;
  HoleCounts net;
  std::string putts;
  std::string fairways;
  std::string greens;
};

}  // namespace golf
