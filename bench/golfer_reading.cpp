// Measures the reading of all golfers through the stores. The files are Kelvane's golfers, Quenby's
// golfers, and a tournament's entries with their golfers. The benchmark compares each reader with a
// plain loop that makes one system call for each record.
//
// golfer_reading [ROUNDS] [GOLFERS]   prints medians

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <vector>

#include "app/application.h"
#include "scoring/player/player_class.h"
#include "stores/kelvane/kelvane_files.h"
#include "whole_process.h"

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

void Need(bool worked) {
  if (!worked) throw std::runtime_error("a file could not be read as it was made");
}

template <class Layout>
void WriteGolfers(const fs::path& path, int golfers, void (*fill)(Record<Layout>&, int)) {
  std::ofstream file(path, std::ios::binary);
  for (int number = 1; number <= golfers; ++number) {
    Record<Layout> record;
    fill(record, number);
    file << record.Bytes();
  }
}

void MakeInstall(const fs::path& folder, int golfers) {
  fs::create_directories(folder / "kvdata");
  fs::create_directories(folder / "qbdata");
  std::ofstream(folder / "kvdata" / "CLUB.kv5");
  WriteGolfers<KelvaneGolferLayout>(folder / "kvdata" / "CLUB.kvg", golfers,
                                    [](Record<KelvaneGolferLayout>& record, int number) {
                                      record.Set<"Status">(1);
                                      record.Set<"IDNum">(number);
                                    });
  WriteGolfers<PlayerLayout>(
      folder / "qbdata" / "QBGOLFER.Q9D", golfers,
      [](Record<PlayerLayout>& record, int number) { record.Set<"IDNum">(number); });
  WriteGolfers<TournamentPlayerLayout>(
      folder / "qbdata" / "X0001.Q9G", golfers,
      [](Record<TournamentPlayerLayout>& record, int number) {
        record.Set<"TourRosterRecordPointer">(static_cast<std::int16_t>(number));
      });
}

// Returns the sum of all golfers' IDs. Also reads an entry for each golfer if there is a second
// file.
std::int64_t BareLoop(const std::vector<std::pair<fs::path, std::size_t>>& files,
                      std::size_t id_offset) {
  std::vector<int> open_files;
  for (const auto& [path, length] : files) {
    open_files.push_back(open(path.c_str(), O_RDONLY));
    Need(open_files.back() >= 0);
  }
  std::int64_t sum = 0;
  std::vector<char> record(files.front().second);
  std::vector<char> entry(files.back().second);
  const auto read = [](int file, std::vector<char>& into, off_t n) {
    const auto length = static_cast<ssize_t>(into.size());
    return pread(file, into.data(), into.size(), n * length) == length;
  };
  for (off_t n = 0; read(open_files.front(), record, n); ++n) {
    if (open_files.size() > 1) Need(read(open_files.back(), entry, n));
    sum += LoadLittleEndian<std::int32_t>(record.data() + id_offset);
  }
  for (const int file : open_files) close(file);
  return sum;
}

std::int64_t ReadKelvane(SharedState& state) {
  Need(OpenKVRoster(state, "CLUB"));
  auto& golfer = state.Kelvane().golfer;
  const std::int32_t places = KVGolferPlaces(state);
  std::int64_t sum = 0;
  for (std::int32_t place = 1; place <= places; ++place) {
    state.files.Read(kKelvaneGolferFile, place, golfer);
    sum += golfer.Get<"IDNum">();
  }
  CloseKVFiles(state);
  return sum;
}

std::int64_t ReadQuenby(SharedState& state) {
  TournamentPlayers& player = state.Player();
  player.OpenRosterFile();
  const std::int32_t length = player.RosterFileLength();
  std::int64_t sum = 0;
  for (std::int32_t record = 1; record <= length; ++record) {
    player.GetRecord(record, false);
    sum += player.StoredID();
  }
  player.CloseRosterFile();
  return sum;
}

std::int64_t ReadEntries(SharedState& state) {
  TournamentPlayers& player = state.Player();
  player.OpenRosterFile();
  player.TourOpenTournamentFile(1);
  const std::int32_t length = player.TourFileLength();
  std::int64_t sum = 0;
  for (std::int32_t record = 1; record <= length; ++record) {
    player.GetRecord(record, true);
    if (player.TourPlayerExists()) sum += player.StoredID();
  }
  player.TourCloseTournamentFile();
  player.CloseRosterFile();
  return sum;
}

double Seconds(const std::function<std::int64_t()>& read, std::int64_t sum) {
  const auto start = std::chrono::steady_clock::now();
  Need(read() == sum);
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Runs both readers alternately, so that they run under the same conditions.
void RaceReaders(const char* title, int golfers, int rounds,
                 const std::function<std::int64_t()>& store,
                 const std::function<std::int64_t()>& loop) {
  const std::int64_t sum = std::int64_t{golfers} * (golfers + 1) / 2;
  std::vector<double> of_store, of_loop;
  Seconds(loop, sum);  // loads the file into the system's cache
  for (int round = 0; round < rounds; ++round) {
    of_store.push_back(Seconds(store, sum));
    of_loop.push_back(Seconds(loop, sum));
  }
  const auto median = [](std::vector<double>& seconds) {
    std::sort(seconds.begin(), seconds.end());
    return seconds[seconds.size() / 2];
  };
  const double store_seconds = median(of_store);
  const double loop_seconds = median(of_loop);
  std::printf("  %-28s %10.0f golfers/s   loop %10.0f golfers/s   %5.2f x\n", title,
              golfers / store_seconds, golfers / loop_seconds, store_seconds / loop_seconds);
}

}  // namespace
}  // namespace golf::bench

int main(int argc, char** argv) {
  using namespace golf;
  using namespace golf::bench;
  const int rounds = std::max(argc > 1 ? std::atoi(argv[1]) : 15, 7);
  // An entry refers to its golfer by a number of 16 bits.
  const int golfers = std::clamp(argc > 2 ? std::atoi(argv[2]) : 30000, 1, 32767);
  const ScratchFolder scratch("bench-golfer-reading");
  MakeInstall(scratch.path(), golfers);
  Application application(MakePlatform(scratch.path().string()));
  SharedState& state = application.state();
  application.Start(DateFromCivil({2024, 5, 13}), {});
  state.StoreDataPath = state.QBDataPath;

  const std::pair kelvane(scratch.path() / "kvdata" / "CLUB.kvg", KelvaneGolferLayout::kLength);
  const std::pair quenby(scratch.path() / "qbdata" / "QBGOLFER.Q9D", PlayerLayout::kLength);
  const std::pair entries(scratch.path() / "qbdata" / "X0001.Q9G", TournamentPlayerLayout::kLength);
  constexpr std::size_t kKelvaneID = FieldOf<KelvaneGolferLayout, "IDNum">().offset;
  constexpr std::size_t kQuenbyID = FieldOf<PlayerLayout, "IDNum">().offset;
  std::printf("%d golfers, medians of %d\n", golfers, rounds);
  RaceReaders(
      "Kelvane", golfers, rounds, [&] { return ReadKelvane(state); },
      [&] { return BareLoop({kelvane}, kKelvaneID); });
  RaceReaders(
      "Quenby", golfers, rounds, [&] { return ReadQuenby(state); },
      [&] { return BareLoop({quenby}, kQuenbyID); });
  RaceReaders(
      "Quenby, with entries", golfers, rounds, [&] { return ReadEntries(state); },
      [&] {
        return BareLoop({quenby, entries}, kQuenbyID);
      });
  return 0;
}
