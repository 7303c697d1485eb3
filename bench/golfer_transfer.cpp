// Measures the golfer transfer from Kelvane to Quenby as a whole process. The Kelvane roster and
// Quenby's file have the same number of golfers, and half of the golfers are in both. The benchmark
// compares the transfer with a bare loop that makes one system call for each record. The loop reads
// Quenby's IDs once, and then reads each Kelvane golfer and writes a Quenby record.
//
// The benchmark also measures an SQLite database with its default durability. It inserts or updates
// each golfer in one transaction. TMPDIR selects the disk for all files.
//
// golfer_transfer [ROUNDS]            prints medians for 200, 10,000 and 30,000 golfers
// golfer_transfer --bare-loop DIR     runs the bare loop
// golfer_transfer --sqlite DIR        runs the upsert

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <numeric>
#include <random>
#include <stdexcept>
#include <string>
#include <unordered_map>

#include "core/record.h"
#include "sqlite_records.h"
#include "stores/kelvane/kelvane_layouts.h"
#include "stores/quenby/quenby_layouts.h"
#include "whole_process.h"

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

using KelvaneGolfer = Record<KelvaneGolferLayout>;
using QuenbyGolfer = Record<PlayerLayout>;

constexpr int kFirstRecord = 10;

constexpr const char* kDatabase = "golfers.db";

// Makes a table of Quenby's golfers by ID.
void MakeDatabase(const fs::path& folder) {
  std::ifstream quenby(folder / "qbdata" / "QBGOLFER.Q9D", std::ios::binary);
  SqliteRecords database(folder / kDatabase);
  database.Execute("begin");
  database.MakeTable("golfers");
  QuenbyGolfer golfer;
  const auto bytes = golfer.MutableBytes();
  while (quenby.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) {
    if (golfer.Get<"IDNum">() > 0)
      database.Upsert("golfers", golfer.Get<"IDNum">(), golfer.Bytes());
  }
  database.Execute("commit");
}

void SqliteUpsert(const fs::path& folder) {
  std::ifstream kelvane(folder / "kvdata" / "CLUB.KVG", std::ios::binary);
  SqliteRecords database(folder / kDatabase);
  database.Execute("begin");
  KelvaneGolfer golfer;
  QuenbyGolfer player;
  const auto bytes = golfer.MutableBytes();
  while (kelvane.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) {
    player.Set<"IDNum">(golfer.Get<"IDNum">());
    player.Set<"NameLast">(golfer.Get<"NameLast">());
    player.Set<"Handicap">(golfer.Get<"Handicap">());
    database.Upsert("golfers", golfer.Get<"IDNum">(), player.Bytes());
  }
  database.Execute("commit");
}

// Makes the files and the database. The IDs are in random order. Quenby's file has the golfers with
// even IDs, and as many others.
void MakeInstall(const fs::path& folder, int golfers) {
  fs::create_directories(folder / "kvdata");
  fs::create_directories(folder / "qbdata");
  std::vector<int> ids(static_cast<std::size_t>(golfers));
  std::iota(ids.begin(), ids.end(), 1);
  std::shuffle(ids.begin(), ids.end(), std::mt19937(1));
  std::ofstream kelvane(folder / "kvdata" / "CLUB.KVG", std::ios::binary);
  std::ofstream quenby(folder / "qbdata" / "QBGOLFER.Q9D", std::ios::binary);
  quenby << std::string((kFirstRecord - 1) * PlayerLayout::kLength, '\0');
  for (const int id : ids) {
    KelvaneGolfer golfer;
    golfer.Set<"Status">(1);
    golfer.Set<"IDNum">(id);
    golfer.Set<"NameLast">("Golfer " + std::to_string(id));
    golfer.Set<"HandicapText">("12");
    golfer.Set<"Handicap">(12.0f);
    kelvane << golfer.Bytes();
    QuenbyGolfer player;
    player.Set<"IDNum">(id % 2 == 0 ? id : id + golfers + 1);
    quenby << player.Bytes();
  }
  kelvane.close();
  quenby.close();
  MakeDatabase(folder);
  Record<KelvaneHeaderLayout> header;
  header.Set<"Holes">(18);
  std::ofstream(folder / "kvdata" / "CLUB.KV5", std::ios::binary) << header.Bytes();
  Record<RosterLayout> roster;
  roster.Set<"IsRosterActive">(-1);
  roster.Set<"ClubName">("Members");
  std::ofstream(folder / "qbdata" / "QBROSTER.Q9D", std::ios::binary) << roster.Bytes();
}

void Need(bool worked) {
  if (!worked) throw std::runtime_error("the bare loop failed");
}

int OpenFile(const fs::path& path, int flags) {
  const int file = open(path.c_str(), flags);
  Need(file >= 0);
  return file;
}

int CountOf(int file, std::size_t length) {
  return static_cast<int>(lseek(file, 0, SEEK_END) / static_cast<off_t>(length));
}

void BareLoop(const fs::path& folder) {
  constexpr auto kFrom = static_cast<off_t>(KelvaneGolferLayout::kLength);
  constexpr auto kTo = static_cast<off_t>(PlayerLayout::kLength);
  constexpr off_t kId = FieldOf<PlayerLayout, "IDNum">().offset;
  const int quenby = OpenFile(folder / "qbdata" / "QBGOLFER.Q9D", O_RDWR);
  const int kelvane = OpenFile(folder / "kvdata" / "CLUB.KVG", O_RDONLY);
  std::unordered_map<int, int> records;
  int end = CountOf(quenby, PlayerLayout::kLength);
  for (int record = kFirstRecord - 1; record < end; ++record) {
    std::int32_t id = 0;
    Need(pread(quenby, &id, sizeof id, record * kTo + kId) == sizeof id);
    records.emplace(id, record);
  }
  KelvaneGolfer golfer;
  QuenbyGolfer player;
  const int golfers = CountOf(kelvane, KelvaneGolferLayout::kLength);
  for (int place = 0; place < golfers; ++place) {
    const auto from = golfer.MutableBytes();
    const auto to = player.MutableBytes();
    Need(pread(kelvane, from.data(), from.size(), place * kFrom) == kFrom);
    player.Set<"IDNum">(golfer.Get<"IDNum">());
    const auto found = records.find(golfer.Get<"IDNum">());
    const int record = found == records.end() ? end++ : found->second;
    Need(pwrite(quenby, to.data(), to.size(), record * kTo) == kTo);
  }
  close(quenby);
  close(kelvane);
}

BareLoopRace RaceOver(int golfers, const std::string& program) {
  return {
      .title = std::to_string(golfers) + " golfers into a file of as many, half of them the same",
      .make_install = [golfers](const fs::path& folder) { MakeInstall(folder, golfers); },
      .words = {"golfers-kv-to-qb", "--roster", "CLUB", "--to", "1"},
      .others = {{"SQLite upsert", {program, "--sqlite", "{}"}}}};
}

}  // namespace
}  // namespace golf::bench

int main(int argc, char** argv) {
  using namespace golf::bench;
  if (argc == 3 && std::string(argv[1]) == "--sqlite") {
    SqliteUpsert(argv[2]);
    return 0;
  }
  const auto seconds =
      RaceBareLoop(argc, argv, BareLoop,
                   {RaceOver(200, argv[0]), RaceOver(10000, argv[0]), RaceOver(30000, argv[0])});
  if (seconds.empty()) return 0;
  std::printf("Three times the golfers take %.2f times as long.\n", seconds[2] / seconds[1]);
}
