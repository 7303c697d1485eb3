// Measures the score transfer from Quenby to Kelvane as a whole process. The tournament has 2,000
// players, all with a score for each hole. The roster has 20,000 golfers with histories of 20
// scores. The benchmark compares the transfer with a bare loop that makes one system call for each
// record. The loop reads every file once, reads and writes the golfer and the history of each
// score, and marks the entry in the tournament.
//
// The benchmark also measures an SQLite database with its default durability. It makes three
// updates for each score, all in one transaction.
//
// tournament_scores [ROUNDS]            prints medians
// tournament_scores --sqlite DIR        runs the posting in the database
// tournament_scores --bare-loop DIR     runs the bare loop

#include <cstdint>
#include <fstream>
#include <string>

#include "bare_file.h"
#include "score_roster.h"
#include "sqlite_records.h"
#include "stores/course/course_layout.h"
#include "stores/quenby/quenby_layouts.h"
#include "whole_process.h"

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kPlayers = 2000;
constexpr int kCourses = 200;

std::ofstream NewFile(const fs::path& path) {
  fs::create_directories(path.parent_path());
  return std::ofstream(path, std::ios::binary);
}

// Makes the courses and the index of the courses with 18 holes.
void MakeCourses(const fs::path& file, const fs::path& index_file) {
  auto courses = NewFile(file);
  auto index = NewFile(index_file);
  const auto number_to_index = [&](int number) {
    Record<CourseIndexLayout> entry;
    entry.Set<"Index">(static_cast<std::int16_t>(number));
    index << entry.Bytes();
  };
  number_to_index(kCourses);
  for (int number = 1; number <= kCourses; ++number) {
    Record<CourseLayout> course;
    course.Set<"activeflag">(1);
    course.Set<"HoleNumFlag">(18);
    course.Set<"Name">("Course " + std::to_string(number));
    for (int tee = 1; tee <= 2; ++tee) {
      course.Set<"ActiveTees">({tee}, 255);
      course.Set<"TeeName">({tee}, "Tee " + std::to_string(tee));
    }
    course.Fill<"Rating">(71.2);
    course.Fill<"slope">(120);
    course.Fill<"HolePar">(4);
    courses << course.Bytes();
    number_to_index(number);
  }
}

void MakeTournament(const fs::path& quenby) {
  Record<TournamentLayout> control;
  control.Set<"Name">("Large");
  control.Set<"NumRounds">(1);
  control.Set<"NumTeesMenPlay">(1);
  control.Set<"NumTeesLadiesPlay">(1);
  control.Set<"RoundType">(18);
  control.Set<"ActiveRound">(1);
  control.Set<"Version">("2005");
  control.Fill<"DateofRound">(45100);
  control.Fill<"CourseNumberPlayed">(kCourses / 2);
  control.Fill<"TeeNumberPlayed">(1);
  control.Fill<"TeeHandicapPercent">(100);
  control.Fill<"HandicapMax">(36);
  NewFile(quenby / "X0001.Q9C") << control.Bytes();
  auto golfers = NewFile(quenby / "QBGOLFER.Q9D");
  auto entries = NewFile(quenby / "X0001.Q9G");
  for (int i = 1; i <= kPlayers; ++i) {
    Record<PlayerLayout> golfer;
    golfer.Set<"IDNum">(i * (kRosterGolfers / kPlayers));
    golfer.Set<"NameLast">("Golfer " + std::to_string(i));
    golfers << golfer.Bytes();
    Record<TournamentPlayerLayout> entry;
    entry.Set<"TourRosterRecordPointer">(static_cast<std::int16_t>(i));
    entry.Fill<"TourGrossHandicap">(i % 30);
    entry.Fill<"TourScoreGross">(4 + i % 3);
    entries << entry.Bytes();
  }
}

constexpr const char* kDatabase = "scores.db";

template <class Layout>
void FillTable(SqliteRecords& database, const char* table, const fs::path& path) {
  database.MakeTable(table);
  BareFile<Layout> file(path);
  for (int i = 0, count = file.Count(); i < count; ++i) {
    file.Read(i);
    database.Upsert(table, i, file.buffer.Bytes());
  }
}

void MakeDatabase(const fs::path& folder) {
  SqliteRecords database(folder / kDatabase);
  database.Execute("begin");
  FillTable<KelvaneGolferLayout>(database, "golfers", folder / "kvdata" / "CLUB.KVG");
  FillTable<KelvaneHistoryLayout>(database, "histories", folder / "kvdata" / "CLUB.KVS");
  FillTable<TournamentPlayerLayout>(database, "entries", folder / "qbdata" / "X0001.Q9G");
  database.Execute("commit");
}

// Reads and writes the golfer, the history and the entry of each score.
void SqlitePosting(const fs::path& folder) {
  SqliteRecords database(folder / kDatabase);
  database.Execute("begin");
  for (int entry = 0; entry < kPlayers; ++entry) {
    const int golfer = (entry + 1) * (kRosterGolfers / kPlayers) - 1;
    for (const auto& [table, number] :
         {std::pair("golfers", golfer), std::pair("histories", golfer),
          std::pair("entries", entry)}) {
      std::string bytes = database.Read(table, number);
      bytes[bytes.size() / 2] ^= 1;
      database.Upsert(table, number, bytes);
    }
  }
  database.Execute("commit");
}

void MakeInstall(const fs::path& folder) {
  MakeScoreRoster(folder);
  MakeTournament(folder / "qbdata");
  MakeCourses(folder / "kvdata" / "kvcrs.dat", folder / "kvdata" / "18CRSKV.INX");
  MakeCourses(folder / "qbdata" / "qbcrs.dat", folder / "qbdata" / "18CRSQB.INX");
  MakeDatabase(folder);
}

void BareLoop(const fs::path& folder) {
  const fs::path quenby = folder / "qbdata";
  BareFile<CourseLayout>(folder / "kvdata" / "kvcrs.dat").ReadAll();
  BareFile<CourseLayout>(quenby / "qbcrs.dat").ReadAll();
  BareFile<TournamentLayout>(quenby / "X0001.Q9C").ReadAll();
  BareRoster roster(folder);
  BareFile<PlayerLayout> golfers(quenby / "QBGOLFER.Q9D");
  BareFile<TournamentPlayerLayout> entries(quenby / "X0001.Q9G");
  for (int entry = 0, count = entries.Count(); entry < count; ++entry) {
    entries.Read(entry);
    golfers.Read(entries.buffer.Get<"TourRosterRecordPointer">() - 1);
    roster.Post(golfers.buffer.Get<"IDNum">());
    entries.Write(entry);
  }
}

}  // namespace
}  // namespace golf::bench

int main(int argc, char** argv) {
  using namespace golf::bench;
  if (argc == 3 && std::string(argv[1]) == "--sqlite") {
    SqlitePosting(argv[2]);
    return 0;
  }
  RaceBareLoop(
      argc, argv, BareLoop,
      {{.title = "2,000 scores of a tournament into a roster of 20,000 golfers",
        .make_install = MakeInstall,
        .words = {"scores-qb-to-kv", "--tournament", "1", "--round", "1", "--roster", "CLUB"},
        .others = {{"SQLite", {argv[0], "--sqlite", "{}"}}}}});
}
