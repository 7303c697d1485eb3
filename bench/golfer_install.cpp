#include "golfer_install.h"

#include <algorithm>
#include <fstream>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace golf::bench {

void MakeGolferInstall(const std::filesystem::path& folder, int golfers) {
  std::filesystem::create_directories(folder / "kvdata");
  std::filesystem::create_directories(folder / "qbdata");
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
  Record<KelvaneHeaderLayout> header;
  header.Set<"Holes">(18);
  std::ofstream(folder / "kvdata" / "CLUB.KV5", std::ios::binary) << header.Bytes();
  Record<RosterLayout> roster;
  roster.Set<"IsRosterActive">(-1);
  roster.Set<"ClubName">("Members");
  std::ofstream(folder / "qbdata" / "QBROSTER.Q9D", std::ios::binary) << roster.Bytes();
}

}  // namespace golf::bench
