#pragma once

#include <filesystem>
#include <functional>

namespace golf::bench {

inline constexpr int kRoundsPlayed = 5;

// Makes an install with tournament 1: this number of golfers over five rounds on five courses, with
// random scores. `team_of` returns the team of a golfer by his number from 1.
void MakeScoredInstall(const std::filesystem::path& folder, int players,
                       const std::function<int(int)>& team_of);

}  // namespace golf::bench
