// Measures the golfer transfer from Kelvane to Quenby as a whole process. The Kelvane roster and
// Quenby's file have the same number of golfers, and half of the golfers are in both. The benchmark
// compares the transfer with a bare loop that makes one system call for each record. The loop reads
// Quenby's IDs once, and then reads each Kelvane golfer and writes a Quenby record.
//
// The benchmark also measures an SQLite database with its default durability. It inserts or updates
// each golfer in one transaction. TMPDIR selects the disk for all files.
//
// golfer_transfer [ROUNDS]            prints medians for 200, 10,000, 30,000 and 300,000 golfers
// golfer_transfer --bare-loop DIR     runs the bare loop
// golfer_transfer --sqlite DIR        runs the upsert

#include <fcntl.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>
#include <unordered_map>

#include "golfer_install.h"
#include "sqlite_records.h"
#include "whole_process.h"

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

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

void MakeInstall(const fs::path& folder, int golfers) {
  MakeGolferInstall(folder, golfers);
  MakeDatabase(folder);
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

const std::vector<std::string> kTransfer = {"golfers-kv-to-qb", "--roster", "CLUB", "--to", "1"};

BareLoopRace RaceOver(int golfers, const std::string& program) {
  return {
      .title = std::to_string(golfers) + " golfers into a file of as many, half of them the same",
      .make_install = [golfers](const fs::path& folder) { MakeInstall(folder, golfers); },
      .words = kTransfer,
      .others = {{"SQLite upsert, synced", {program, "--sqlite", "{}"}}}};
}

}  // namespace
}  // namespace golf::bench

int main(int argc, char** argv) {
  using namespace golf::bench;
  if (argc == 3 && std::string(argv[1]) == "--sqlite") {
    SqliteUpsert(argv[2]);
    return 0;
  }
  const auto seconds = RaceBareLoop(argc, argv, BareLoop,
                                    {RaceOver(200, argv[0]), RaceOver(10000, argv[0]),
                                     RaceOver(30000, argv[0]), RaceOver(300000, argv[0])});
  if (seconds.empty()) return 0;
  std::printf("Three times the golfers take %.2f times as long, thirty times %.2f times.\n",
              seconds[2] / seconds[1], seconds[3] / seconds[1]);
}
