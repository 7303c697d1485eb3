#pragma once

#include <filesystem>
#include <functional>

namespace golf::bench {

inline constexpr int kRoundsPlayed = 5;

// Makes an install with tournament 1. The tournament has this number of golfers, five rounds on
// five courses, and random scores. `team_of` returns the team of a golfer by the golfer's number,
// counted from 1.
void MakeScoredInstall(const std::filesystem::path& folder, int players,
                       const std::function<int(int)>& team_of);

}  // namespace golf::bench
