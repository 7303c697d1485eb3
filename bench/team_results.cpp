// Measures the results of teams of four players over five rounds. It measures `results teams` and
// `results custom` as whole processes, for 50 and for 199 teams. It also measures one and four best
// balls in this process.
//
// team_results [ROUNDS]   prints medians

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/application.h"
#include "scored_install.h"
#include "scoring/layouts/report_layout.h"
#include "scoring/open_tournament.h"
#include "scoring/team/team_class.h"
#include "whole_process.h"

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kTeamSize = 4;
constexpr int kManyTeams = 199;

void MakeInstall(const fs::path& folder, int teams) {
  MakeScoredInstall(folder, teams * kTeamSize,
                    [](int number) { return (number - 1) / kTeamSize + 1; });
  Application application(MakePlatform(folder.string()));
  application.Start(DateFromCivil({2024, 5, 13}), {});
  ReportLayout layout;
  layout.BallSelection = "B";
  for (auto& hole : layout.places) hole[0] = {"12345678", "L12", "L12"};
  WriteReportLayout(application.state().files, application.state().QBDataPath + "Two.TR", layout);
}

std::vector<Measured> MeasureResults(const ScratchFolder& scratch, int teams, int rounds) {
  const fs::path pristine = scratch.path() / "pristine";
  fs::remove_all(pristine);
  MakeInstall(pristine, teams);
  const auto command = [](std::vector<std::string> words) {
    std::vector<std::string> all = {GOLF_CLI, "--install", "{}", "--json", "results"};
    all.insert(all.end(), words.begin(), words.end());
    return all;
  };
  const std::vector<Contender> contenders = {
      {"teams", command({"teams", "--tournament", "1"})},
      {"custom", command({"custom", "--tournament", "1", "--layout", "Two"})}};
  const auto medians = Race(pristine, scratch.path() / "work", contenders, rounds);
  Print(std::to_string(teams) + " teams of " + std::to_string(kTeamSize) + ", JSON", contenders,
        medians, 0);
  return medians;
}

// Returns the seconds for the best balls of all teams and rounds, including the golfers' rounds.
double TimeBestBalls(SharedState& state, int balls) {
  std::int64_t sum = 0;
  const auto start = std::chrono::steady_clock::now();
  for (int number = 1; number <= kManyTeams; ++number) {
    TeamClass& team = state.Team1();
    team.GetRecord(number);
    for (int round = 1; round <= kRoundsPlayed; ++round) {
      sum += std::stoi(team.BestBallNet(balls, 21, round));
    }
  }
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  if (sum <= 0) throw std::runtime_error("the balls came to nothing");
  return taken.count();
}

void MeasureBestBalls(const fs::path& install, int rounds) {
  Application application(MakePlatform(install.string()));
  application.Start(DateFromCivil({2024, 5, 13}), {});
  OpenTournament(application.state(), 1);
  TimeBestBalls(application.state(), 1);  // makes the index
  double medians[2] = {};
  for (const int i : {0, 1}) {
    std::vector<double> seconds;
    for (int n = 0; n < rounds; ++n) {
      seconds.push_back(TimeBestBalls(application.state(), i == 0 ? 1 : 4));
    }
    std::sort(seconds.begin(), seconds.end());
    medians[i] = seconds[seconds.size() / 2];
  }
  std::printf("One best ball %.4f s, four %.4f s: %.2f times\n", medians[0], medians[1],
              medians[1] / medians[0]);
}

}  // namespace
}  // namespace golf::bench

int main(int argc, char** argv) {
  using namespace golf::bench;
  const int rounds = RoundsAsked(argc, argv);
  const ScratchFolder scratch("bench-team-results");
  const auto few = MeasureResults(scratch, 50, rounds);
  const auto many = MeasureResults(scratch, kManyTeams, rounds);
  std::printf("%.2f times the golfers take %.2f times as long, under a layout %.2f times.\n",
              kManyTeams / 50.0, many[0].seconds / few[0].seconds,
              many[1].seconds / few[1].seconds);
  MeasureBestBalls(scratch.path() / "pristine", rounds);
  return 0;
}
