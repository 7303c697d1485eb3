// Measures the transfers from Kelvane to a league and from a league to Quenby as whole processes.
// There are 20,000 golfers and a league of 2,000 players. The benchmark compares each transfer with
// a bare loop that makes one system call for each record. The loop reads every record of the files
// once and writes every changed record once.
//
// league_golfers [ROUNDS]                 prints medians
// league_golfers --to-zandel DIR          runs the bare loop from Kelvane to the league
// league_golfers --to-quenby DIR          runs the bare loop from the league to Quenby

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <numeric>
#include <random>
#include <stdexcept>
#include <string>
#include <unordered_map>

#include "stores/kelvane/kelvane_layouts.h"
#include "stores/quenby/quenby_layouts.h"
#include "stores/zandel/zandel_layouts.h"
#include "whole_process.h"

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

using Player = Record<LeaguePlayerLayout>;

constexpr int kGolfers = 20000;
constexpr int kPlayers = 2000;
constexpr int kInQuenby = 1500;  // the number of players that Quenby already has
constexpr int kIDStep = 3;       // leaves free IDs between the used ones

// Returns the golfers' IDs in random order.
std::vector<int> ShuffledIDs() {
  std::vector<int> ids(kGolfers);
  std::iota(ids.begin(), ids.end(), 1);
  std::shuffle(ids.begin(), ids.end(), std::mt19937(1));
  return ids;
}

void MakeInstall(const fs::path& folder) {
  for (const char* name : {"kvdata", "qbdata", "zddata"}) fs::create_directories(folder / name);
  std::ofstream(folder / "kvdata" / "CLUB.KV5") << Record<KelvaneHeaderLayout>().Bytes();
  std::ofstream kelvane(folder / "kvdata" / "CLUB.KVG", std::ios::binary);
  std::ofstream quenby(folder / "qbdata" / "QBGOLFER.Q9D", std::ios::binary);
  const std::string before_first(9 * PlayerLayout::kLength, '\0');
  quenby << before_first;
  for (int number = 1; number <= kGolfers; ++number) {
    Record<KelvaneGolferLayout> golfer;
    golfer.Set<"Status">(1);
    golfer.Set<"IDNum">(number);
    golfer.Set<"NameLast">("Last " + std::to_string(number));
    golfer.Set<"Handicap">(12.5f);
    kelvane << golfer.Bytes();
    Record<PlayerLayout> player;
    player.Set<"IDNum">(number * kIDStep);
    player.Set<"NameLast">("Last " + std::to_string(number));
    quenby << player.Bytes();
  }
  Record<LeagueControlLayout> control;
  control.Set<"LeagueName">("League");
  control.Set<"PlayerFactor1">(kPlayers / 2);
  control.Set<"PlayerFactor2">(2);
  control.Set<"CurrentEvent">(1);
  std::ofstream(folder / "zddata" / "00011.ZL8", std::ios::binary) << control.Bytes();
  std::ofstream(folder / "zddata" / "0001.ZS8");
  std::ofstream players(folder / "zddata" / "00011.ZP8", std::ios::binary);
  int place = 0;
  for (const int id : ShuffledIDs()) {
    if (place++ == kPlayers) break;
    Player player;
    player.Set<"GolferID">(id);
    player.Set<"LastName">((place > kInQuenby ? "New " : "Last ") + std::to_string(id));
    player.Set<"EventHandicap">({1}, 9.0f);
    players << player.Bytes();
  }
}

void Need(bool worked) {
  if (!worked) throw std::runtime_error("the bare loop failed");
}

template <class Layout>
class BareFile {
 public:
  BareFile(const fs::path& path, int flags) : file_(open(path.c_str(), flags)) { Need(file_ >= 0); }
  ~BareFile() { close(file_); }
  BareFile(const BareFile&) = delete;
  BareFile& operator=(const BareFile&) = delete;

  int Count() const { return static_cast<int>(lseek(file_, 0, SEEK_END) / kLength); }
  void Read(int record, Record<Layout>& into) const {
    const auto bytes = into.MutableBytes();
    Need(pread(file_, bytes.data(), bytes.size(), (record - 1) * kLength) == kLength);
  }
  void Write(int record, const Record<Layout>& from) const {
    const auto bytes = from.Bytes();
    Need(pwrite(file_, bytes.data(), bytes.size(), (record - 1) * kLength) == kLength);
  }

 private:
  static constexpr auto kLength = static_cast<off_t>(Layout::kLength);
  int file_;
};

// The bare loops do not produce the files of a transfer. They only have the cost of reading and
// writing the same number of records.
void BareToZandel(const fs::path& folder) {
  const BareFile<LeaguePlayerLayout> league(folder / "zddata" / "00011.ZP8", O_RDWR);
  const BareFile<KelvaneGolferLayout> kelvane(folder / "kvdata" / "CLUB.KVG", O_RDONLY);
  Player player;
  std::unordered_map<int, int> records;
  const int players = league.Count();
  for (int record = 1; record <= players; ++record) {
    league.Read(record, player);
    records.emplace(player.Get<"GolferID">(), record);
  }
  Record<KelvaneGolferLayout> golfer;
  const int golfers = kelvane.Count();
  for (int place = 1; place <= golfers; ++place) {
    kelvane.Read(place, golfer);
    const auto found = records.find(golfer.Get<"IDNum">());
    if (found == records.end()) continue;
    player.Set<"LastName">(golfer.Get<"NameLast">());
    league.Write(found->second, player);
  }
}

void BareToQuenby(const fs::path& folder) {
  const BareFile<LeaguePlayerLayout> league(folder / "zddata" / "00011.ZP8", O_RDONLY);
  const BareFile<PlayerLayout> quenby(folder / "qbdata" / "QBGOLFER.Q9D", O_RDWR);
  Record<PlayerLayout> golfer;
  std::unordered_map<std::string, int> records;
  int last = quenby.Count();
  for (int record = 1; record <= last; ++record) {
    quenby.Read(record, golfer);
    records.emplace(Trim(golfer.Get<"NameLast">()), record);
  }
  Player player;
  const int players = league.Count();
  for (int place = 1; place <= players; ++place) {
    league.Read(place, player);
    const std::string name(Trim(player.Get<"LastName">()));
    const auto found = records.find(name);
    golfer.Set<"NameLast">(name);
    quenby.Write(found == records.end() ? ++last : found->second, golfer);
  }
}

}  // namespace
}  // namespace golf::bench

int main(int argc, char** argv) {
  using namespace golf::bench;
  const std::string word = argc == 3 ? argv[1] : "";
  if (word == "--to-zandel") return BareToZandel(argv[2]), 0;
  if (word == "--to-quenby") return BareToQuenby(argv[2]), 0;
  const int rounds = RoundsAsked(argc, argv, 15);
  const ScratchFolder scratch("bench-league-golfers");
  const auto pristine = scratch.path() / "pristine";
  MakeInstall(pristine);
  const std::vector<std::string> cli = {GOLF_CLI, "--quiet", "--install", "{}"};
  const auto race = [&](const std::string& title, std::vector<std::string> words,
                        const std::string& loop) {
    words.insert(words.begin(), cli.begin(), cli.end());
    const std::vector<Contender> contenders = {{title, words},
                                               {"bare loop", {argv[0], loop, "{}"}}};
    Print(title, contenders, Race(pristine, scratch.path() / "work", contenders, rounds), 1);
  };
  race("golfers-kv-to-zd", {"golfers-kv-to-zd", "--roster", "CLUB", "--league", "00011"},
       "--to-zandel");
  race("golfers-zd-to-qb", {"golfers-zd-to-qb", "--league", "00011", "--to", "0"}, "--to-quenby");
  return 0;
}
