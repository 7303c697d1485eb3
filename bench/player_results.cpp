// Measures the scoring of players in a tournament of five rounds on five courses. It measures
// rounds per second through PlayerClass in this process, with the courses in memory. It also
// measures `results players` as a whole process, as a table and as JSON, and `jq` that reads and
// writes the same JSON.
//
// player_results [ROUNDS]   prints medians for 2,000 and for 8,000 players

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/application.h"
#include "scored_install.h"
#include "scoring/open_tournament.h"
#include "scoring/player/player_class.h"
#include "whole_process.h"

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

// Returns the nanoseconds for each round. Consecutive rounds are on different courses.
double TimeRounds(PlayerClass& player, int repeats) {
  std::int64_t sum = 0;
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < repeats; ++i) {
    player.CalculateSetToRecalculate();
    for (int round = 1; round <= kRoundsPlayed; ++round) {
      sum += player.Results(round).net[kWholeRound];
    }
  }
  const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
  if (sum <= 0) throw std::runtime_error("the rounds came to nothing");
  return taken.count() / (repeats * kRoundsPlayed);
}

void MeasureRounds(const fs::path& install, int rounds) {
  Application application(MakePlatform(install.string()));
  application.Start(DateFromCivil({2024, 5, 13}), {});
  OpenTournament(application.state(), 1);
  PlayerClass& player = application.state().Player();
  player.GetRecord(19, true);
  std::vector<double> nanoseconds;
  for (int i = 0; i < rounds; ++i) nanoseconds.push_back(TimeRounds(player, 4000));
  std::sort(nanoseconds.begin(), nanoseconds.end());
  const double median = nanoseconds[nanoseconds.size() / 2];
  std::printf("A round of 18 holes  %8.0f ns  %8.0f rounds/s\n", median, 1e9 / median);
}

std::vector<Measured> MeasureResults(const ScratchFolder& scratch, int players, int rounds) {
  const fs::path pristine = scratch.path() / "pristine";
  fs::remove_all(pristine);
  MakeScoredInstall(pristine, players, [](int number) { return number % 200 + 1; });
  const std::string results = GOLF_CLI " --install {} results players --tournament 1";
  const std::string stored = "{}/players.json";
  RunOnce({"JSON", {"sh", "-c", results + " --json > " + stored}}, pristine);
  const std::vector<Contender> contenders = {{"table", {"sh", "-c", results}},
                                             {"JSON", {"sh", "-c", results + " --json"}},
                                             {"jq over the JSON", {"jq", "-c", ".", stored}}};
  const auto medians = Race(pristine, scratch.path() / "work", contenders, rounds);
  Print("results of " + std::to_string(players) + " players over " + std::to_string(kRoundsPlayed) +
            " rounds",
        contenders, medians, 0);
  return medians;
}

}  // namespace
}  // namespace golf::bench

int main(int argc, char** argv) {
  using namespace golf::bench;
  const int rounds = RoundsAsked(argc, argv);
  const ScratchFolder scratch("bench-player-results");
  const auto small = MeasureResults(scratch, 2000, rounds);
  const auto large = MeasureResults(scratch, 8000, rounds);
  std::printf("Four times the players take %.2f times as long, in JSON %.2f times.\n",
              large[0].seconds / small[0].seconds, large[1].seconds / small[1].seconds);
  MeasureRounds(scratch.path() / "pristine", rounds);
  return 0;
}
