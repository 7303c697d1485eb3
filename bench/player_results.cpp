// What scoring costs: rounds a second through PlayerClass in this process, with the courses in
// hand; and `results players` as a whole process, as a table and as JSON, over a tournament of five
// rounds on five courses.
//
// player_results [ROUNDS]   prints medians, for 2,000 and for 8,000 players

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/application.h"
#include "scoring/open_tournament.h"
#include "scoring/player_class.h"
#include "stores/course/course_layout.h"
#include "whole_process.h"

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kRoundsPlayed = 5;

template <class Layout>
void WriteRecords(const fs::path& path, int count, const auto& fill) {
  std::ofstream file(path, std::ios::binary);
  for (int number = 1; number <= count; ++number) {
    Record<Layout> record;
    fill(record, number);
    file << record.Bytes();
  }
}

void FillCourse(Record<CourseLayout>& course, int number) {
  constexpr int kPars[] = {4, 5, 3, 4, 4, 3, 4, 5, 4};
  course.Set<"activeflag">(1);
  course.Set<"HoleNumFlag">(18);
  course.Set<"Name">("Course " + std::to_string(number));
  course.Fill<"ActiveTees">(255);
  course.Fill<"slope">(120 + number);
  for (int tee = 1; tee <= kTeeSlots; ++tee) {
    for (int hole = 1; hole <= kHoles; ++hole) {
      course.Set<"HolePar">({tee, hole}, static_cast<std::int16_t>(kPars[hole % 9]));
      course.Set<"HoleHandicap">({tee, hole}, static_cast<std::int16_t>(hole * 7 % 19));
      course.Set<"StrkSqnc">({tee, hole}, static_cast<std::int16_t>(hole));
    }
  }
}

void FillControl(Record<TournamentLayout>& control, int) {
  control.Set<"Name">("Long Cup");
  control.Set<"NumRounds">(kRoundsPlayed);
  control.Set<"NumTeams">(200);
  control.Set<"RoundType">(18);
  control.Set<"IndextoHandicap">(-1);
  control.Set<"ActiveRound">(kRoundsPlayed);
  control.Set<"Version">("2005");
  control.Fill<"NumTeesMenPlay">(1);
  control.Fill<"NumTeesLadiesPlay">(1);
  control.Fill<"PointsGiven">(2);
  control.Fill<"TeeNumberPlayed">(2);
  control.Fill<"TeeHandicapPercent">(95);
  control.Fill<"HandicapMax">(36);
  for (int round = 1; round <= kRounds; ++round) {
    control.Set<"CourseNumberPlayed">({round}, static_cast<std::int16_t>(round));
  }
}

void FillGolfer(Record<PlayerLayout>& golfer, int number) {
  golfer.Set<"IDNum">(number);
  golfer.Set<"NameLast">("Golfer" + std::to_string(number));
  golfer.Set<"NameFirst">("Pat");
}

void MakeInstall(const fs::path& folder, int players) {
  const fs::path data = folder / "qbdata";
  fs::create_directories(data);
  std::mt19937 random(1);
  const auto fill_entry = [&random](Record<TournamentPlayerLayout>& entry, int number) {
    std::uniform_int_distribution<int> score(2, 9);
    entry.Set<"TourRosterRecordPointer">(static_cast<std::int16_t>(number));
    entry.Fill<"TourTeamOn">(number % 200 + 1);
    for (int round = 1; round <= kRoundsPlayed; ++round) {
      entry.Set<"TourIndex">({round}, static_cast<float>(number % 400) / 10);
      for (int hole = 1; hole <= kHoles; ++hole) {
        entry.Set<"TourScoreGross">({hole, round}, static_cast<std::int16_t>(score(random)));
      }
    }
  };
  WriteRecords<CourseLayout>(data / "qbcrs.dat", kRounds, FillCourse);
  WriteRecords<TournamentLayout>(data / "X0001.Q9C", 1, FillControl);
  WriteRecords<PlayerLayout>(data / "QBGOLFER.Q9D", players, FillGolfer);
  WriteRecords<TournamentPlayerLayout>(data / "X0001.Q9G", players, fill_entry);
  WriteRecords<TeamLayout>(data / "X0001.Q9T", 200, [](Record<TeamLayout>&, int) {});
}

// Nanoseconds for each round; each is on another course than the one before.
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
  MakeInstall(pristine, players);
  const std::vector<std::string> command = {GOLF_CLI,  "--install",    "{}", "results",
                                            "players", "--tournament", "1"};
  std::vector<Contender> contenders = {{"table", command}, {"JSON", command}};
  contenders[1].command.push_back("--json");
  const auto medians = Race(pristine, scratch.path() / "work", contenders, rounds);
  Print(std::to_string(players) + " players over " + std::to_string(kRoundsPlayed) + " rounds",
        contenders, medians, 0);
  return medians;
}

}  // namespace
}  // namespace golf::bench

int main(int argc, char** argv) {
  using namespace golf::bench;
  const int rounds = std::max(argc > 1 ? std::atoi(argv[1]) : 7, 5);
  const ScratchFolder scratch("bench-player-results");
  const auto small = MeasureResults(scratch, 2000, rounds);
  const auto large = MeasureResults(scratch, 8000, rounds);
  std::printf("Four times the players take %.2f times as long, in JSON %.2f times.\n",
              large[0].seconds / small[0].seconds, large[1].seconds / small[1].seconds);
  MeasureRounds(scratch.path() / "pristine", rounds);
  return 0;
}
