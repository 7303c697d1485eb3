#include "scored_install.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <random>
#include <string>

#include "core/record.h"
#include "stores/course/course_layout.h"
#include "stores/quenby/quenby_layouts.h"

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

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

void FillControl(Record<TournamentLayout>& control, int teams) {
  control.Set<"Name">("Long Cup");
  control.Set<"NumRounds">(kRoundsPlayed);
  control.Set<"NumTeams">(static_cast<std::int16_t>(teams));
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

}  // namespace

void MakeScoredInstall(const fs::path& folder, int players,
                       const std::function<int(int)>& team_of) {
  const fs::path data = folder / "qbdata";
  fs::create_directories(data);
  std::mt19937 random(1);
  const auto fill_entry = [&](Record<TournamentPlayerLayout>& entry, int number) {
    std::uniform_int_distribution<int> score(2, 9);
    entry.Set<"TourRosterRecordPointer">(static_cast<std::int16_t>(number));
    entry.Fill<"TourTeamOn">(team_of(number));
    for (int round = 1; round <= kRoundsPlayed; ++round) {
      entry.Set<"TourIndex">({round}, static_cast<float>(number % 400) / 10);
      for (int hole = 1; hole <= kHoles; ++hole) {
        entry.Set<"TourScoreGross">({hole, round}, static_cast<std::int16_t>(score(random)));
      }
    }
  };
  WriteRecords<CourseLayout>(data / "qbcrs.dat", kRounds, FillCourse);
  int teams = 1;
  for (int number = 1; number <= players; ++number) teams = std::max(teams, team_of(number));
  WriteRecords<TournamentLayout>(
      data / "X0001.Q9C", 1,
      [teams](Record<TournamentLayout>& control, int) { FillControl(control, teams); });
  WriteRecords<PlayerLayout>(data / "QBGOLFER.Q9D", players, FillGolfer);
  WriteRecords<TournamentPlayerLayout>(data / "X0001.Q9G", players, fill_entry);
  WriteRecords<TeamLayout>(data / "X0001.Q9T", 200, [](Record<TeamLayout>&, int) {});
}

}  // namespace golf::bench
