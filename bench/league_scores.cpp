// Measures the score transfer from Zandel to Kelvane as a whole process. The league event has 2,000
// golfers, all with a score. The roster has 20,000 golfers with histories of 20 scores. The
// benchmark compares the transfer with a bare loop that makes one system call for each record. The
// loop reads every file once, and reads and writes the golfer and the history of each score.
//
// league_scores [ROUNDS]            prints medians
// league_scores --bare-loop DIR     runs the bare loop

#include <cstdint>
#include <fstream>
#include <string>

#include "bare_file.h"
#include "score_roster.h"
#include "stores/course/course_layout.h"
#include "stores/zandel/zandel_layouts.h"
#include "whole_process.h"

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kLeagueGolfers = 2000;
constexpr int kTeams = 100;
constexpr int kCourses = 200;
constexpr int kEvent = 3;

std::ofstream NewFile(const fs::path& path) {
  fs::create_directories(path.parent_path());
  return std::ofstream(path, std::ios::binary);
}

void MakeLeague(const fs::path& folder) {
  const fs::path zandel = folder / "zddata";
  Record<LeagueControlLayout> control;
  control.Set<"LeagueName">("Large");
  control.Set<"EventCount">(5);
  control.Set<"CurrentEvent">(kEvent);
  control.Set<"LeagueHoles">(18);
  NewFile(zandel / "00011.ZL8") << control.Bytes();
  auto players = NewFile(zandel / "00011.ZP8");
  for (int id = 1; id <= kLeagueGolfers; ++id) {
    Record<LeaguePlayerLayout> player;
    player.Set<"GolferID">(id);
    player.Set<"FirstName">("Golfer");
    player.Set<"LastName">(std::to_string(id));
    player.Set<"Sex">(id % 2 == 0 ? 1 : 0);
    player.Set<"EventTeam">({kEvent}, static_cast<std::int16_t>(1 + id % kTeams));
    player.Set<"EventPostScore">({kEvent}, static_cast<std::int16_t>(70 + id % 50));
    players << player.Bytes();
  }
  NewFile(zandel / "0001.ZS8");
  auto teams = NewFile(zandel / "00011.ZT8");
  for (int number = 1; number <= kTeams; ++number) {
    Record<LeagueTeamLayout> team;
    team.Set<"EventCourse">({kEvent}, static_cast<std::int16_t>(1 + number % kCourses));
    team.Set<"EventTee">({kEvent, 1}, 1);
    team.Set<"EventTee">({kEvent, 2}, 2);
    teams << team.Bytes();
  }
  auto events = NewFile(zandel / "00011.ZE8");
  for (int number = 1; number <= 5; ++number) {
    Record<LeagueEventLayout> event;
    event.Set<"EventDate">(static_cast<float>(45100 + number));
    events << event.Bytes();
  }
}

void MakeCourses(const fs::path& file) {
  auto courses = NewFile(file);
  for (int number = 1; number <= kCourses; ++number) {
    Record<CourseLayout> course;
    course.Set<"activeflag">(1);
    course.Set<"HoleNumFlag">(18);
    course.Set<"Name">("Course " + std::to_string(number));
    for (int tee = 1; tee <= 2; ++tee) {
      course.Set<"ActiveTees">({tee}, 255);
      course.Set<"TeeName">({tee}, "Tee " + std::to_string(tee));
      for (int sex = 0; sex <= 1; ++sex) course.Set<"Rating">({tee, sex}, 71.2f);
    }
    courses << course.Bytes();
  }
}

void MakeInstall(const fs::path& folder) {
  MakeScoreRoster(folder);
  MakeLeague(folder);
  MakeCourses(folder / "kvdata" / "kvcrs.dat");
  MakeCourses(folder / "zddata" / "zdcrs.dat");
}

void BareLoop(const fs::path& folder) {
  const fs::path zandel = folder / "zddata";
  BareFile<CourseLayout>(folder / "kvdata" / "kvcrs.dat").ReadAll();
  BareFile<CourseLayout>(zandel / "zdcrs.dat").ReadAll();
  BareFile<LeagueControlLayout>(zandel / "00011.ZL8").ReadAll();
  BareFile<LeagueTeamLayout>(zandel / "00011.ZT8").ReadAll();
  BareFile<LeagueEventLayout>(zandel / "00011.ZE8").ReadAll();
  BareRoster roster(folder);
  BareFile<LeaguePlayerLayout> players(zandel / "00011.ZP8");
  for (int player = 0, count = players.Count(); player < count; ++player) {
    players.Read(player);
    roster.Post(players.buffer.Get<"GolferID">());
  }
}

}  // namespace
}  // namespace golf::bench

int main(int argc, char** argv) {
  using namespace golf::bench;
  RaceBareLoop(argc, argv, BareLoop,
               {{.title = "2,000 scores of a league into a roster of 20,000 golfers",
                 .make_install = MakeInstall,
                 .words = {"scores-zd-to-kv", "--league", "00011", "--batch",
                           std::to_string(kEvent), "--roster", "CLUB"}}});
}
